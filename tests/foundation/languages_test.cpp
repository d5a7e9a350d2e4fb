// Language files and text encodings.

#include <fstream>
#include <map>
#include <set>

#include "foundation/byte_text.h"
#include "foundation/files.h"
#include "foundation/folders.h"
#include "foundation/legacy_hindi.h"
#include "foundation/phrases.h"
#include "foundation/text.h"
#include "support/app_folder.h"
#include "support/test.h"
#include "support/words.h"

namespace foundation {
namespace {

TEST(LanguagePhrases, ComeFromTheFirstMatchingLine) {
  const support::AppFolderScope folder;
  folder.Write("Language/eenglish.txt", "no separator\r\nSUN\xA7Sun\nsun\xA7second\r\n\xA7nothing");
  folder.Write("Language/ehindi.txt", "sun\xA7सूर्य \xA7 rest\rMoon\xA7");
  const auto phrase = [](auto key, int language) { return LanguagePhrase(key, language); };
  ExpectRows(phrase, Row("sUN", -1, "Sun"), Row("no separator", 0, "no separator"),
             Row("", 0, "nothing"), Row("Moon", 0, "Moon"), Row("Moon", 1, ""));
  SessionTable session;
  session.CurrentLanguage = 1;
  EXPECT_EQ(LanguagePhrase("SUN", session), "सूर्य \xA7 rest");
  EXPECT_ERROR(FileNotFound, LanguagePhrase("Sun", 2));
  EXPECT_ERROR(FileAccess, LanguagePhrase("Sun", 5));
  EXPECT_EQ(support::FailureOf([] { LanguagePhrase("Sun", 2); }),
            "The file " + (folder.path / "Language/emarathi.txt").string() + " does not exist");
}

TEST(ByteTexts, UseCodePage1252) {
  // Without the five bytes that the code page leaves undefined.
  EXPECT_EQ(FromBytes(ByteText("\x80\x82\x83\x84\x85\x86\x87\x88\x89\x8A\x8B\x8C\x8E"
                               "\x91\x92\x93\x94\x95\x96\x97\x98\x99\x9A\x9B\x9C\x9E\x9F")),
            "€‚ƒ„…†‡ˆ‰Š‹ŒŽ‘’“”•–—˜™š›œžŸ");
  EXPECT_EQ(FromBytes(ByteText("\x01 ~\x7F\xA0\xA3\xBF\xC0\xE9\xFF")), "\x01 ~\x7F\u00A0£¿Àéÿ");
  EXPECT_EQ(ToBytes("दिā\xE9"), ByteText("????"));
  std::string bytes;
  for (int byte = 0; byte < 256; ++byte) bytes += static_cast<char>(byte);
  EXPECT_EQ(ToBytes(FromBytes(ByteText(bytes))), ByteText(bytes));
}

const struct {
  std::string file, first, last;  // range of the script's characters; empty for English
  std::map<std::string, std::string> known;
} kLanguages[] = {  // by number
    {"eenglish", "", "", {{"MOON", "Moon"}, {"P. PHALG", "P. Phalg"}, {"BAVA", "Bava"}}},
    {"ehindi", "ऀ", "ॿ", {{"SUN", "सूर्य"}, {"PISCES", "मीन"}, {"REVTI", "रेवती"}}},
    {"emarathi", "ऀ", "ॿ", {{"MAR", "मंगळ"}, {"LIBRA", "तूळ"}, {"PURNIMA", "पौर्णिमा"}}},
    {"emalayalam", "ഀ", "ൿ", {{"ARIES", "മേടം"}, {"SATBISA", "ചതയം"}, {"JUPITER", "വ്യാഴം"}}},
    {"ekannad", "ಀ", "ೲ", {{"ASHVANI", "ಅಶ್ವಿನಿ"}, {"MOON", "ಚಂದ್ರ"}, {"AMAVASYA", "ಅಮಾವಾಸ್ಯೆ"}}}};

TEST(LanguageFiles, ContainEachWordOnceInTheirScript) {
  SetAppFolder(std::filesystem::path(LANGUAGE_FOLDER).parent_path());
  std::int32_t language = -1;
  for (const auto& [file, first, last, known] : kLanguages) {
    SCOPED_TRACE(file);
    ++language;
    std::set<std::string> missing;
    for (const auto word : Split(support::kVocabulary, ',')) missing.insert(UpperAscii(word));
    std::ifstream in(LANGUAGE_FOLDER "/" + file + ".txt", std::ios::binary);
    for (std::string key, phrase;
         std::getline(in >> std::ws, key, '\xA7') && std::getline(in, phrase);) {
      EXPECT_EQ(missing.erase(UpperAscii(key)), 1U) << key << " is a duplicate or not a word";
      EXPECT_NE(phrase, "");
      if (first.empty() || key == ":") {
        EXPECT_EQ(UpperAscii(phrase), UpperAscii(key));
        continue;
      }
      for (const auto letter : Characters(phrase)) {
        EXPECT_TRUE(first <= letter && letter <= last) << phrase;
      }
    }
    EXPECT_EQ(missing, std::set<std::string>{});
    for (const auto& [key, phrase] : known) EXPECT_EQ(LanguagePhrase(key, language), phrase);
  }
}

TEST(LegacyHindi, ConvertsToUnicode) {
  const std::pair<std::string_view, std::string_view> texts[] = {
#include "foundation/legacy_hindi.inc"
  };
  for (const auto& [legacy, unicode] : texts) EXPECT_EQ(FromLegacyHindi(legacy), unicode) << legacy;
}

TEST(Folders, KeepPagesInTheUserCacheIfShared) {
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
