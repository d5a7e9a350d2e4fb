#include "foundation/modFileFx.h"

#include <array>
#include <cstdlib>
#include <utility>

#include "foundation/files.h"
#include "foundation/text.h"

namespace foundation {
namespace {

namespace fs = std::filesystem;

fs::path& Folder() {
  std::error_code unknown;
  static fs::path folder = fs::read_symlink("/proc/self/exe", unknown).parent_path();
  return folder;
}

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

fs::path AppFolder() {
  return Folder() / "";
}

void SetAppFolder(fs::path folder) {
  Folder() = std::move(folder);
}

fs::path AtlasFolder() {
  return AppFolder() / "atlas" / "";
}

fs::path BackgroundFolder() {
  return AppFolder() / "BG" / "";
}

fs::path TempFolder() {
  std::error_code unknown;
  if (!fs::exists(AppFolder() / "shared", unknown)) return AppFolder() / "temp" / "";
  const char* cache = std::getenv("XDG_CACHE_HOME");
  const char* home = std::getenv("HOME");
  const fs::path folder = cache != nullptr && *cache != '\0' ? fs::path(cache)
                          : home != nullptr                  ? fs::path(home) / ".cache"
                                                             : fs::temp_directory_path(unknown);
  return folder / "Durvela" / "temp" / "";
}

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
