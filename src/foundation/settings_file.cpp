#include "foundation/settings_file.h"

#include <sys/stat.h>

#include <cstdlib>
#include <ctime>

#include "foundation/files.h"
#include "foundation/locked_file.h"

namespace foundation {
namespace {

namespace fs = std::filesystem;

std::string_view Variable(const char* name) {
  const char* value = std::getenv(name);
  return value == nullptr ? std::string_view() : value;
}

// ~/.config or its substitute.
fs::path UserFolder() {
  const std::string_view folder = Variable("XDG_CONFIG_HOME");
  return folder.empty() ? fs::path("/") / Variable("HOME") / ".config" : fs::path(folder);
}

IniDocument Read(const fs::path& file) {
  try {
    return IniDocument(ReadFile(file));
  } catch (const Error& error) {
    if (error.Kind() == ErrorKind::FileNotFound) return {};
    throw;
  }
}

}  // namespace

SettingsFile::State SettingsFile::StateOf(const fs::path& file) {
  struct stat now = {};
  if (stat(file.c_str(), &now) != 0) return {};
  return {now.st_dev, now.st_ino, now.st_size, {now.st_ctim.tv_sec, now.st_ctim.tv_nsec}};
}

// The clock at its last tick, some milliseconds ago: the time that changed files get.
SettingsFile::Time SettingsFile::LastTick() {
  timespec tick = {};
  clock_gettime(CLOCK_REALTIME_COARSE, &tick);
  return {tick.tv_sec, tick.tv_nsec};
}

// If the file cannot be read, keeps what was read before.
void SettingsFile::Refresh(Store& store) {
  const State state = StateOf(store.file);
  if (store.settled && state == store.state) return;
  // Otherwise another change within the tick would give the same state.
  store.settled = state.changed < LastTick();
  store.state = state;
  try {
    store.document = Read(store.file);
  } catch (const Error&) {
    store.settled = false;
  }
}

SettingsFile::Store& SettingsFile::StoreOf(std::string_view application) {
  auto found = stores_.find(application);
  if (found == stores_.end()) {
    const std::string name(application);
    found = stores_.emplace(name, Store{UserFolder() / name / (name + ".ini")}).first;
  }
  return found->second;
}

std::string SettingsFile::GetSetting(std::string_view application, std::string_view section,
                                     std::string_view key, std::string_view fallback) {
  Store& store = StoreOf(application);
  Refresh(store);
  return store.document.Value(section, key).value_or(std::string(fallback));
}

void SettingsFile::SaveSettings(std::string_view application, std::string_view section,
                                std::span<const Setting> settings) {
  const LockedFile file(StoreOf(application).file);
  const IniDocument former = Read(file.Path());
  IniDocument document = former;
  for (const auto& [key, value] : settings) document.Set(section, key, value);
  if (document.Bytes() != former.Bytes()) file.Replace(document.Bytes());
}

}  // namespace foundation
