// Folders, language files and the bytes of files.

#include <gtest/gtest.h>

#include <fstream>

#include "foundation/byte_text.h"
#include "foundation/files.h"
#include "foundation/modFileFx.h"
#include "support/app_folder.h"
#include "support/errors.h"

namespace foundation {
namespace {

TEST(Folders, LieUnderThePrograms) {
  EXPECT_EQ(AppFolder().parent_path().filename(), "foundation");
  const support::AppFolderScope folder;
  EXPECT_EQ(AtlasFolder(), folder.path / "atlas" / "");
  EXPECT_EQ(BackgroundFolder(), folder.path / "BG" / "");
}

TEST(LanguagePhrases, ComeFromTheFirstLineOfTheKey) {
  const support::AppFolderScope folder;
  folder.Write("Language/eenglish.txt", "no separator\r\nSUN\xA7Sun\nsun\xA7second\r\n\xA7nothing");
  folder.Write("Language/ehindi.txt", "sun\xA7सूर्य \xA7 rest\rMoon\xA7");
  EXPECT_EQ(LanguagePhrase("Sun", 0), "Sun");
  EXPECT_EQ(LanguagePhrase("sUN", -1), "Sun");
  EXPECT_EQ(LanguagePhrase("no separator", 0), "no separator");
  EXPECT_EQ(LanguagePhrase("", 0), "nothing");
  EXPECT_EQ(LanguagePhrase("Moon", 0), "Moon");
  EXPECT_EQ(LanguagePhrase("Moon", 1), "");
  SessionTable session;
  session.CurrentLanguage = 1;
  EXPECT_EQ(LanguagePhrase("SUN", session), "सूर्य \xA7 rest");
}

TEST(LanguagePhrases, FailWithoutAFile) {
  const support::AppFolderScope folder;
  EXPECT_ERROR(FileNotFound, LanguagePhrase("Sun", 2));
  folder.Write("Language/eenglish.txt", "");
  EXPECT_ERROR(FileAccess, LanguagePhrase("Sun", 5));
  EXPECT_ERROR(FileAccess, LanguagePhrase("Sun", -2));
}

TEST(Lines, EndWithAnyOfTheThreeEnds) {
  std::string_view text = "a\r\nb\rc\n\nd";
  for (const std::string_view line : {"a", "b", "c", "", "d"}) EXPECT_EQ(TakeLine(text), line);
  EXPECT_EQ(text, "");
}

TEST(ByteTexts, AreOfCodePage1252) {
  EXPECT_EQ(ToBytes("A°é€Ÿ"), ByteText("A\xB0\xE9\x80\x9F"));
  EXPECT_EQ(ToBytes("दिā\xE9"), ByteText("????"));
  std::string bytes;
  for (int byte = 0; byte < 256; ++byte) bytes += static_cast<char>(byte);
  EXPECT_EQ(ToBytes(FromBytes(ByteText(bytes))), ByteText(bytes));
}

}  // namespace
}  // namespace foundation
