// A temporary configuration folder for a test.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <string>

namespace support {

// Uses an empty folder for its lifetime, then restores the previous one.
class ConfigFolderScope {
 public:
  ConfigFolderScope() {
    if (const char* before = std::getenv(kVariable)) before_ = before;
    std::string pattern = std::filesystem::temp_directory_path() / "durvela-config-XXXXXX";
    if (mkdtemp(pattern.data()) == nullptr) std::abort();
    path = pattern;
    setenv(kVariable, pattern.c_str(), 1);
  }
  ~ConfigFolderScope() {
    setenv(kVariable, before_.c_str(), 1);  // empty counts as unset
    std::filesystem::remove_all(path);
  }
  ConfigFolderScope(const ConfigFolderScope&) = delete;
  ConfigFolderScope& operator=(const ConfigFolderScope&) = delete;

  std::filesystem::path path;

 private:
  static constexpr const char* kVariable = "XDG_CONFIG_HOME";
  std::string before_;
};

}  // namespace support
