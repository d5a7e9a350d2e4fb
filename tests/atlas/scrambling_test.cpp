#include <gtest/gtest.h>

#include "atlas/getCountryZone.h"
#include "atlas/modEncDec.h"
#include "support/errors.h"
#include "support/table.h"

namespace atlas {
namespace {

using foundation::ByteText;
using support::Row;

TEST(Scrambling, AddsTheKeyFromItsSecondCharacter) {
  EXPECT_EQ(EncodeText(ByteText("AB"), kAtlasKey), ByteText("\x90\x99"));
  // Round the key: its first character meets the sixteenth byte.
  EXPECT_EQ(EncodeText(ByteText("New Delhi,Delhi,"), kAtlasKey),
            ByteText("\x9D\xBC\xC5\x77\x93\xB7\xB8\xAC\xB6\x6D\x94\x9C\xA0\x99\x9E\x80"));
  EXPECT_EQ(EncodeText(ByteText("ab"), "XY"), EncodeText(ByteText("ab"), "xy"));
  EXPECT_EQ(EncodeText(ByteText("ab"), ""), ByteText("ab"));
  EXPECT_EQ(EncodeText(ByteText(""), kAtlasKey), ByteText(""));
}

TEST(Scrambling, ComesBackForEveryByte) {
  std::string bytes;
  for (int byte = 0; byte < 256; ++byte) bytes += static_cast<char>(byte);
  for (const std::string_view key : {kAtlasKey, std::string_view("\xE9z\x01")}) {
    EXPECT_EQ(DecodeText(EncodeText(ByteText(bytes), key), key), ByteText(bytes));
  }
}

TEST(Scrambling, CountsIn16Bits) {
  const ByteText longest(std::string(32767, 'a'));
  EXPECT_EQ(DecodeText(EncodeText(longest, kAtlasKey), kAtlasKey), longest);
  EXPECT_ERROR(Overflow, EncodeText(ByteText(std::string(32768, 'a')), kAtlasKey));
  EXPECT_EQ(DecodeText(ByteText(std::string(32768, 'a')), kAtlasKey).Bytes().size(), 32768U);
}

TEST(CountryZone, IsThatOfTheFirstRowOfTheName) {
  ExpectRows(getCountryZone, Row("", "-5.30"), Row("iNDia", "-5.30"), Row("Nepal", "-5.45"),
             Row("Kirkistan", "-4.5"), Row("Surinam", "3"), Row("Croatia", "+1"),
             Row("Yemen", "-3"), Row("Wake Island", "0"), Row("Western Samoa", "0"),
             Row("Mauritania", "0"), Row("Saint Vincent - Gr", "+4"), Row("Burkina Fabo", "0"),
             Row("White Rubia", "+4"), Row("Afghanistan", "-4.30"), Row("Zimbabwe", "-2"),
             Row(" India", ""), Row("Saint Vincent", ""), Row("Atlantis", ""));
}

}  // namespace
}  // namespace atlas
