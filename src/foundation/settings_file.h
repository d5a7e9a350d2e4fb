// The settings store: one file per user and application, "<application>/<application>.ini" in the
// user's configuration folder.
#pragma once

#include <compare>
#include <cstdint>
#include <filesystem>
#include <map>
#include <string>

#include "foundation/ini_document.h"
#include "foundation/settings.h"

namespace foundation {

// Several programs can share it: changes by others show at the next read, and a save changes only
// its own keys. A value that cannot be read is the fallback, or the last one read. Not thread-safe.
class SettingsFile : public Settings {
 public:
  std::string GetSetting(std::string_view application, std::string_view section,
                         std::string_view key, std::string_view fallback) override;
  void SaveSettings(std::string_view application, std::string_view section,
                    std::span<const Setting> settings) override;

 private:
  struct Time {
    std::int64_t seconds = 0, nanoseconds = 0;
    friend auto operator<=>(const Time&, const Time&) = default;
  };

  // A fingerprint for detecting changes to the file; all zeros if the file is missing. Uses the
  // status change time (ctime), because programs can set the modification time back.
  struct State {
    std::uint64_t device = 0, number = 0;
    std::int64_t size = 0;
    Time changed;
    friend bool operator==(const State&, const State&) = default;
  };

  struct Store {
    std::filesystem::path file;
    IniDocument document = {};
    State state = {};
    bool settled = false;  // any later change gives another state
  };

  static State StateOf(const std::filesystem::path& file);
  static Time LastTick();
  static void Refresh(Store& store);
  Store& StoreOf(std::string_view application);

  std::map<std::string, Store, std::less<>> stores_;
};

}  // namespace foundation
