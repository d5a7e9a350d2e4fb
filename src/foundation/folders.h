// The program's data folders.
#pragma once

#include <filesystem>

namespace foundation {

// The folder of the executable, unless another was set. All folders here end in a separator.
std::filesystem::path AppFolder();
void SetAppFolder(std::filesystem::path folder);

// Folders under it; they need not exist.
std::filesystem::path AtlasFolder();       // city files
std::filesystem::path BackgroundFolder();  // page backgrounds

// The folder for report pages: under the program's folder or, if a file "shared" in that folder
// marks an installation for several users, in the user's cache folder: $XDG_CACHE_HOME, else
// $HOME/.cache, else the system's temporary folder.
std::filesystem::path TempFolder();

}  // namespace foundation
