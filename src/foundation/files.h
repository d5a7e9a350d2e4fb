// Files read whole.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace foundation {

// The bytes of a file. FileNotFound where there is none, FileAccess where it cannot be read.
std::string ReadFile(const std::filesystem::path& file);

// Takes the next line off the front of a text, without its end: CR LF, CR or LF.
std::string_view TakeLine(std::string_view& text);

}  // namespace foundation
