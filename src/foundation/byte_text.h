// Text of files that hold one byte a character: city files, legacy Hindi heads, documents. A type
// of its own, so that it never mixes unseen with the UTF-8 of the program.
#pragma once

#include <string>
#include <string_view>
#include <utility>

namespace foundation {

class ByteText {
 public:
  ByteText() = default;
  explicit ByteText(std::string bytes) : bytes_(std::move(bytes)) {}

  const std::string& Bytes() const { return bytes_; }
  friend bool operator==(const ByteText&, const ByteText&) = default;

 private:
  std::string bytes_;
};

// Between UTF-8 and the bytes of Windows code page 1252; its five bytes without a character stand
// for the control characters of the same number, so that every byte text comes back whole. A
// character that the code page lacks becomes "?".
ByteText ToBytes(std::string_view utf8);
std::string FromBytes(const ByteText& text);

}  // namespace foundation
