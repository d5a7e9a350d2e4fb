// The program's data folders, and the phrases of its languages.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

#include "foundation/session.h"

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

// The phrase for a key, ignoring case, in a language: 0 (or -1) English, 1 Hindi, 2 Marathi, 3
// Malayalam, 4 Kannada. Returns the key if the language's file lacks it. FileNotFound or FileAccess
// if the file is missing, or for any other number.
std::string LanguagePhrase(std::string_view key, std::int32_t language);
// In the current language.
std::string LanguagePhrase(std::string_view key, const SessionTable& session);

}  // namespace foundation
