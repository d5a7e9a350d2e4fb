// Reading files and lines.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace foundation {

// The contents of a file. FileNotFound if it does not exist, FileAccess if it cannot be read.
std::string ReadFile(const std::filesystem::path& file);

// Removes the first line from a text and returns it without its line end (CR LF, CR or LF).
std::string_view TakeLine(std::string_view& text);

}  // namespace foundation
