#include "foundation/folders.h"

#include <cstdlib>
#include <utility>

namespace foundation {
namespace {

namespace fs = std::filesystem;

fs::path& Folder() {
  std::error_code unknown;
  static fs::path folder = fs::read_symlink("/proc/self/exe", unknown).parent_path();
  return folder;
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

}  // namespace foundation
