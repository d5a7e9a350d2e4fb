// Scrambling of city files: adds a repeating key byte by byte.
#pragma once

#include <string_view>

#include "foundation/byte_text.h"

namespace atlas {

inline constexpr std::string_view kAtlasKey = "townworldmap7415";

// The text keeps its length. The key's case is ignored; an empty key leaves the text unchanged.
// With the key above, printable ASCII becomes bytes 0x51 to 0xD5. EncodeText raises Overflow beyond
// 32,767 bytes.
foundation::ByteText EncodeText(const foundation::ByteText& text, std::string_view key);
foundation::ByteText DecodeText(const foundation::ByteText& text, std::string_view key);

}  // namespace atlas
