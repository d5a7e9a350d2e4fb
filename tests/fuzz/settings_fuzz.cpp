// A key and its new value in the first two lines, and any bytes after them as the settings file:
// the key gets the value, also for programs that start later, and no other byte of the file
// changes.

#include <algorithm>
#include <fstream>

#include "foundation/settings_file.h"
#include "fuzz/fuzz.h"
#include "support/temporary_folder.h"

namespace {

constexpr std::string_view kProgram = "Durvela", kSection = "settings", kNone = "no such value";

std::string Read(foundation::SettingsFile settings, std::string_view key) {
  return settings.GetSetting(kProgram, kSection, key, kNone);
}

// Whether bytes were put into a file, none taken out.
bool OnlyGrew(const std::string& before, const std::string& after) {
  const auto rest = std::ranges::mismatch(before, after).in1;
  return after.size() >= before.size() && after.ends_with(std::string(rest, before.end()));
}

}  // namespace

void fuzz::Run(const std::string& bytes) {
  static const support::ConfigFolderScope home;
  static const std::filesystem::path path = home.path / "Durvela" / "Durvela.ini";
  std::string_view rest = bytes;
  const std::string_view key = foundation::TakeLine(rest);
  const std::string_view value = foundation::TakeLine(rest);
  const std::string before(rest);
  std::filesystem::create_directories(path.parent_path());
  std::ofstream(path, std::ios::binary) << before;

  foundation::SettingsFile settings;
  const bool isNew = settings.GetSetting(kProgram, kSection, key, kNone) == kNone &&
                     before.find_first_of("@\\") == before.npos;  // no "@Invalid()"
  const std::string other = Read({}, "other");
  settings.SaveSetting(kProgram, kSection, key, value);
  Require(settings.GetSetting(kProgram, kSection, key, kNone) == value);
  Require(Read({}, key) == value);
  Require(key == "other" || Read({}, "other") == other);
  Require(!isNew || OnlyGrew(before, foundation::ReadFile(path)));
}
