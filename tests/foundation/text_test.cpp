#include "foundation/text.h"

#include <gtest/gtest.h>

#include "support/errors.h"

namespace foundation {
namespace {

TEST(Text, GoesByCharactersNotBytes) {
  EXPECT_EQ(Characters("8°4").size(), 3U);
  EXPECT_EQ(LastCharacter("28°"), "°");
  EXPECT_EQ(LastCharacter(""), "");
  EXPECT_EQ(LastCharacter("77.13E"), "E");
  EXPECT_EQ(LastCharacter("वि"), "ि");
  EXPECT_EQ(LastCharacter("a\x80"), "\x80");
  EXPECT_EQ(FirstCharacters("शनिवार", 3), "शनि");
  EXPECT_EQ(FirstCharacters("ab", 3), "ab");
  EXPECT_ERROR(InvalidCall, FirstCharacters("ab", -1));
}

TEST(Text, TakesAStrayByteAsACharacter) {
  EXPECT_EQ(Characters("a\xC3").size(), 2U);
  EXPECT_EQ(Characters("\x80\xFF").size(), 2U);
  EXPECT_EQ(Characters("\xE0\xA4z").size(), 3U);
}

TEST(Text, FoldsCaseOfLettersWithASmallForm) {
  EXPECT_EQ(FoldCase("MÄRZ PAŹDZIERNIK ΜΆΡΤΙΟΣ МАРТ ՄԱՐՏ"), "märz październik μάρτιοσ март մարտ");
  EXPECT_EQ(FoldCase("×ß्"), "×ß्");
}

TEST(Text, MakesAWordsFirstLetterACapital) {
  EXPECT_EQ(ProperCase("KINSTUGHNA naG  x"), "Kinstughna Nag  X");
  EXPECT_EQ(ProperCase("u. PHALG"), "U. Phalg");
}

TEST(Text, BeginsWithAnotherCaseAside) {
  EXPECT_TRUE(BeginsWith("Delhi, India", "dELHI"));
  EXPECT_TRUE(BeginsWith("ÉVORA", "év"));
  EXPECT_TRUE(BeginsWith("दिल्ली", "दि"));
  EXPECT_TRUE(BeginsWith("", ""));
  EXPECT_FALSE(BeginsWith("Del", "Delhi"));
  EXPECT_FALSE(BeginsWith("दिल्ली", "द\xE0"));
  EXPECT_FALSE(BeginsWith("\xE9", "é"));
}

TEST(Text, SplitsAtEverySeparator) {
  EXPECT_EQ(Split("", ':').size(), 1U);
  const auto fields = Split("6::9:", ':');
  ASSERT_EQ(fields.size(), 4U);
  EXPECT_EQ(fields[0], "6");
  EXPECT_EQ(fields[1], "");
  EXPECT_EQ(fields[3], "");
}

}  // namespace
}  // namespace foundation
