// Text with one byte per character: city files, legacy Hindi heads, PDF documents. A separate type,
// so that it is never mistaken for the program's UTF-8.
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

// Convert between UTF-8 and Windows code page 1252. Its five undefined bytes map to the control
// characters of the same number, so every byte text survives the round trip. Characters outside the
// code page become "?".
ByteText ToBytes(std::string_view utf8);
std::string FromBytes(const ByteText& text);

}  // namespace foundation
