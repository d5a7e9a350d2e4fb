// The scrambling of city files: a running key is added byte by byte.
#pragma once

#include <string_view>

#include "foundation/byte_text.h"

namespace atlas {

inline constexpr std::string_view kAtlasKey = "townworldmap7415";

// Texts keep their length; the case of the key's letters does not count, and an empty key leaves
// the text as it is. With the key above, printable ASCII becomes bytes 0x51 to 0xD5.
// EncodeText raises Overflow for more than 32,767 bytes.
foundation::ByteText EncodeText(const foundation::ByteText& text, std::string_view key);
foundation::ByteText DecodeText(const foundation::ByteText& text, std::string_view key);

}  // namespace atlas
