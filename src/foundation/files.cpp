#include "foundation/files.h"

#include <fstream>
#include <new>
#include <stdexcept>

#include "foundation/error.h"

namespace foundation {

std::string ReadFile(const std::filesystem::path& file) {
  std::error_code failure;
  if (!std::filesystem::exists(file, failure)) throw Error(ErrorKind::FileNotFound);
  const auto size = std::filesystem::file_size(file, failure);  // fails for a folder
  std::ifstream stream(file, std::ios::binary);
  if (failure || !stream) throw Error(ErrorKind::FileAccess);
  try {
    std::string bytes(size, '\0');
    stream.read(bytes.data(), static_cast<std::streamsize>(size));
    if (!stream) throw Error(ErrorKind::FileAccess);
    return bytes;
  } catch (const std::bad_alloc&) {
    throw Error(ErrorKind::FileAccess);  // more than memory holds
  } catch (const std::length_error&) {
    throw Error(ErrorKind::FileAccess);
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
