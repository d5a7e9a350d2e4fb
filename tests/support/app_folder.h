// A temporary program folder for a test.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string_view>

#include "foundation/folders.h"

namespace support {

// Uses the folder for its lifetime, then restores the previous one.
class AppFolderScope {
 public:
  AppFolderScope() : before_(foundation::AppFolder()) {
    std::string pattern = std::filesystem::temp_directory_path() / "durvela-XXXXXX";
    if (mkdtemp(pattern.data()) == nullptr) std::abort();
    path = pattern;
    foundation::SetAppFolder(path);
  }
  ~AppFolderScope() {
    foundation::SetAppFolder(before_);
    std::filesystem::remove_all(path);
  }
  AppFolderScope(const AppFolderScope&) = delete;
  AppFolderScope& operator=(const AppFolderScope&) = delete;

  void Write(std::string_view name, std::string_view bytes) const {
    std::filesystem::create_directories((path / name).parent_path());
    std::ofstream(path / name, std::ios::binary) << bytes;
  }

  std::filesystem::path path;

 private:
  std::filesystem::path before_;
};

}  // namespace support
