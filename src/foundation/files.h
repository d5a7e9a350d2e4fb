// Reading files and lines, and errors that name a file.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "foundation/error.h"

namespace foundation {

// An error such as "The file x.afm cannot be read", where `problem` is "cannot be read".
Error FileError(ErrorKind kind, const std::filesystem::path& file, std::string_view problem);

// The contents of a file. FileNotFound if it does not exist, FileAccess if it cannot be read.
std::string ReadFile(const std::filesystem::path& file);

// Removes the first line from a text and returns it without its line end (CR LF, CR or LF).
std::string_view TakeLine(std::string_view& text);

}  // namespace foundation
