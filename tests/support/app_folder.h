// A temporary program folder for a test.
#pragma once

#include "foundation/folders.h"
#include "support/temporary_folder.h"

namespace support {

// Restores the previous folder at the end.
struct AppFolderScope : TemporaryFolder {
  AppFolderScope() { foundation::SetAppFolder(path); }
  ~AppFolderScope() { foundation::SetAppFolder(before); }

  const std::filesystem::path before = foundation::AppFolder();
};

}  // namespace support
