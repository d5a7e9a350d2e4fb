#include "atlas/scrambling.h"

#include <cstdint>
#include <limits>
#include <string>

#include "foundation/error.h"
#include "foundation/text.h"

namespace atlas {
namespace {

using foundation::ByteText;

// The key runs cyclically, starting at its second character.
ByteText Shifted(const ByteText& text, std::string_view key, int direction) {
  if (key.empty()) return text;
  const std::string upperKey = foundation::UpperAscii(key);
  std::string bytes = text.Bytes();
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    bytes[i] = static_cast<char>(bytes[i] + direction * upperKey[(i + 1) % upperKey.size()]);
  }
  return ByteText(std::move(bytes));
}

}  // namespace

ByteText EncodeText(const ByteText& text, std::string_view key) {
  if (text.Bytes().size() > std::numeric_limits<std::int16_t>::max()) {
    throw foundation::Error(foundation::ErrorKind::Overflow);
  }
  return Shifted(text, key, 1);
}

ByteText DecodeText(const ByteText& text, std::string_view key) {
  return Shifted(text, key, -1);
}

}  // namespace atlas
