#include <gtest/gtest.h>

#include "atlas/getCountryZone.h"
#include "atlas/modEncDec.h"
#include "support/errors.h"

namespace atlas {
namespace {

using foundation::ByteText;

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
  const std::pair<std::string_view, std::string_view> rows[] = {
      {"", "-5.30"},
      {"iNDia", "-5.30"},
      {"Nepal", "-5.45"},
      {"Kirkistan", "-4.5"},
      {"Surinam", "3"},
      {"Croatia", "+1"},
      {"Yemen", "-3"},
      {"Wake Island", "0"},
      {"Western Samoa", "0"},
      {"Mauritania", "0"},
      {"Saint Vincent - Gr", "+4"},
      {"Burkina Fabo", "0"},
      {"White Rubia", "+4"},
      {"Afghanistan", "-4.30"},
      {"Zimbabwe", "-2"},
      {" India", ""},
      {"Saint Vincent", ""},
      {"Atlantis", ""},
  };
  for (const auto& [country, zone] : rows) EXPECT_EQ(getCountryZone(country), zone) << country;
}

}  // namespace
}  // namespace atlas
