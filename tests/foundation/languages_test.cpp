// Folders, language files and the encodings of texts.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <set>
#include <string>
#include <string_view>

#include "foundation/byte_text.h"
#include "foundation/files.h"
#include "foundation/legacy_hindi.h"
#include "foundation/modFileFx.h"
#include "foundation/text.h"
#include "support/app_folder.h"
#include "support/errors.h"
#include "support/table.h"

namespace foundation {
namespace {

using support::Row;

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
  const auto phrase = [](auto key, int language) { return LanguagePhrase(key, language); };
  ExpectRows(phrase, Row("Sun", 0, "Sun"), Row("sUN", -1, "Sun"),
             Row("no separator", 0, "no separator"), Row("", 0, "nothing"), Row("Moon", 0, "Moon"),
             Row("Moon", 1, ""));
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

using Phrases = std::map<std::string, std::string>;

constexpr std::string_view kVocabulary =
#include "foundation/vocabulary.inc"
    ;

// Whether every character stands in the block of 128 from `start`, of those with three bytes.
bool InScript(std::string_view phrase, int start) {
  return !phrase.empty() && std::ranges::all_of(Characters(phrase), [&](auto c) {
    if (c.size() != 3) return false;
    const int code = (c[0] & 0x0F) << 12 | (c[1] & 0x3F) << 6 | (c[2] & 0x3F);
    return code >= start && code < start + 0x80;
  });
}

struct LanguageCase {
  std::string file;
  int scriptStart;  // of the language's block; 0 for the words themselves
  Phrases known;
};

const LanguageCase kLanguages[] = {
    {"eenglish", 0, {{"MOON", "Moon"}, {"P. PHALG", "P. Phalg"}, {"BAVA", "Bava"}}},
    {"ehindi", 0x900, {{"SUN", "सूर्य"}, {"PISCES", "मीन"}, {"REVTI", "रेवती"}, {"MAGHA", "मघा"}}},
    {"emarathi", 0x900, {{"MAR", "मंगळ"}, {"LIBRA", "तूळ"}, {"PURNIMA", "पौर्णिमा"}}},
    {"emalayalam", 0xD00, {{"ARIES", "മേടം"}, {"SATBISA", "ചതയം"}, {"JUPITER", "വ്യാഴം"}}},
    {"ekannad", 0xC80, {{"ASHVANI", "ಅಶ್ವಿನಿ"}, {"MOON", "ಚಂದ್ರ"}, {"AMAVASYA", "ಅಮಾವಾಸ್ಯೆ"}}}};

TEST(LanguageFiles, HoldEachWordOnceInTheirOwnScript) {
  for (const auto& [file, scriptStart, known] : kLanguages) {
    SCOPED_TRACE(file);
    std::ifstream in(LANGUAGE_FOLDER "/" + file + ".txt", std::ios::binary);
    std::set<std::string> missing;
    for (const auto word : Split(kVocabulary, ',')) missing.insert(UpperAscii(word));
    Phrases phrases;
    for (std::string line; std::getline(in, line);) {
      if (line.empty()) continue;
      const auto separator = line.find('\xA7');
      ASSERT_NE(separator, line.npos) << line;
      const std::string key = UpperAscii(line.substr(0, separator));
      const std::string phrase = line.substr(separator + 1);
      EXPECT_EQ(missing.erase(key), 1U) << key << " stands twice or is no word of the system";
      const bool itself = scriptStart == 0 || key == ":";
      EXPECT_TRUE(itself ? UpperAscii(phrase) == key : InScript(phrase, scriptStart)) << line;
      phrases[key] = phrase;
    }
    EXPECT_EQ(missing, std::set<std::string>{});
    for (const auto& [key, phrase] : known) EXPECT_EQ(phrases[key], phrase);
  }
}

TEST(LegacyHindi, ReadsAsItIsSpelled) {
  const std::pair<std::string_view, std::string_view> texts[] = {
#include "foundation/legacy_hindi.inc"
  };
  for (const auto& [legacy, unicode] : texts) EXPECT_EQ(FromLegacyHindi(legacy), unicode) << legacy;
  EXPECT_EQ(FromLegacyHindi(""), "");
}

TEST(Folders, OfPagesIsTheUsersOwnWhereTheProgramIsShared) {
  const support::AppFolderScope folder;
  const auto temp = [&](bool shared, const char* cache, const char* home) {
    if (shared) folder.Write("shared", "");
    setenv("XDG_CACHE_HOME", cache, 1);
    setenv("HOME", home, 1);
    return TempFolder();
  };
  ExpectRows(temp, Row(false, "/cache", "/home/a", folder.path / "temp/"),
             Row(true, "/cache", "/home/a", std::filesystem::path("/cache/Durvela/temp/")),
             Row(true, "", "/home/a", std::filesystem::path("/home/a/.cache/Durvela/temp/")));
}

}  // namespace
}  // namespace foundation
