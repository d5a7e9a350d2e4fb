// A temporary configuration folder for a test.
#pragma once

#include "support/temporary_folder.h"

namespace support {

// The variable is left as it is, so that no later test of the program uses the user's folder.
struct ConfigFolderScope : TemporaryFolder {
  ConfigFolderScope() { setenv("XDG_CONFIG_HOME", path.c_str(), 1); }
};

}  // namespace support
