#include "foundation/files.h"

#include <fstream>
#include <new>
#include <stdexcept>

namespace foundation {

Error FileError(ErrorKind kind, const std::filesystem::path& file, std::string_view problem) {
  return Error(kind, "The file " + file.string() + " " + std::string(problem));
}

std::string ReadFile(const std::filesystem::path& file) {
  std::error_code failure;
  if (!std::filesystem::exists(file, failure)) {
    throw FileError(ErrorKind::FileNotFound, file, "does not exist");
  }
  const Error unreadable = FileError(ErrorKind::FileAccess, file, "cannot be read");
  const auto size = std::filesystem::file_size(file, failure);  // fails for a folder
  std::ifstream stream(file, std::ios::binary);
  if (failure || !stream) throw unreadable;
  try {
    std::string bytes(size, '\0');
    stream.read(bytes.data(), static_cast<std::streamsize>(size));
    if (!stream) throw unreadable;
    return bytes;
  } catch (const std::bad_alloc&) {
    throw unreadable;  // larger than memory
  } catch (const std::length_error&) {
    throw unreadable;
  }
}

std::string_view TakeLine(std::string_view& text) {
  const std::size_t end = text.find_first_of("\r\n");
  const std::string_view line = text.substr(0, end);
  if (end == std::string_view::npos) {
    text = {};
  } else {
    text.remove_prefix(text.substr(end).starts_with("\r\n") ? end + 2 : end + 1);
  }
  return line;
}

}  // namespace foundation
