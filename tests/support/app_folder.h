// An empty program folder of a test's own.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string_view>

#include "foundation/modFileFx.h"

namespace support {

// Puts it in place, and afterwards the former one back.
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
