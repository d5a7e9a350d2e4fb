// Temporary folders for a test.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string_view>

namespace support {

// Empty at first; removed at the end of its lifetime.
struct TemporaryFolder {
  TemporaryFolder() {
    std::string pattern = std::filesystem::temp_directory_path() / "durvela-XXXXXX";
    if (mkdtemp(pattern.data()) == nullptr) std::abort();
    path = pattern;
  }
  ~TemporaryFolder() { std::filesystem::remove_all(path); }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  void Write(std::string_view name, std::string_view bytes) const {
    std::filesystem::create_directories((path / name).parent_path());
    std::ofstream(path / name, std::ios::binary) << bytes;
  }

  std::filesystem::path path;
};

// As the configuration folder. The variable is left as it is, so that no later test of the program
// uses the user's folder.
struct ConfigFolderScope : TemporaryFolder {
  ConfigFolderScope() { setenv("XDG_CONFIG_HOME", path.c_str(), 1); }
};

}  // namespace support
