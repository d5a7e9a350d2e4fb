#include "foundation/phrases.h"

#include <array>
#include <filesystem>

#include "foundation/files.h"
#include "foundation/folders.h"
#include "foundation/text.h"

namespace foundation {
namespace {

namespace fs = std::filesystem;

constexpr std::array<std::string_view, 5> kLanguageFiles = {
    "eenglish.txt", "ehindi.txt", "emarathi.txt", "emalayalam.txt", "ekannad.txt"};

// Separates key and phrase; may occur again in the phrase.
constexpr char kSeparator = '\xA7';

// For an unknown language, the folder itself, which cannot be read as a file.
fs::path LanguageFile(std::int32_t language) {
  const fs::path folder = AppFolder() / "Language" / "";
  if (language == -1) language = 0;
  const bool known = language >= 0 && language < std::int32_t{kLanguageFiles.size()};
  return known ? folder / kLanguageFiles[static_cast<std::size_t>(language)] : folder;
}

}  // namespace

std::string LanguagePhrase(std::string_view key, std::int32_t language) {
  const std::string file = ReadFile(LanguageFile(language));
  const std::string wanted = UpperAscii(key);
  for (std::string_view rest = file; !rest.empty();) {
    const std::string_view line = TakeLine(rest);
    const std::size_t end = line.find(kSeparator);
    if (end != std::string_view::npos && UpperAscii(line.substr(0, end)) == wanted) {
      return std::string(line.substr(end + 1));
    }
  }
  return std::string(key);
}

std::string LanguagePhrase(std::string_view key, const SessionTable& session) {
  return LanguagePhrase(key, session.CurrentLanguage);
}

}  // namespace foundation
