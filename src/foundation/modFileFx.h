// Where the program's data lie, and the phrases of its languages.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

#include "foundation/session.h"

namespace foundation {

// The program's own folder, from the start; or the one that was set. This and all others end in a
// separator.
std::filesystem::path AppFolder();
void SetAppFolder(std::filesystem::path folder);

// Folders under it, whether they exist or not.
std::filesystem::path AtlasFolder();       // city files
std::filesystem::path BackgroundFolder();  // page backgrounds

// Where the pages of a report are kept: under the program's folder; or, where the program was
// installed for several users, which the file "shared" beside it says, under the user's cache
// folder: $XDG_CACHE_HOME, else $HOME/.cache, else the system's folder for such files.
std::filesystem::path TempFolder();

// The phrase for a key, case aside, in a language: 0 (or -1) English, 1 Hindi, 2 Marathi,
// 3 Malayalam, 4 Kannada. The key itself where the language's file has no such entry.
// FileNotFound or FileAccess without such a file, as for any other number.
std::string LanguagePhrase(std::string_view key, std::int32_t language);
// In the current language.
std::string LanguagePhrase(std::string_view key, const SessionTable& session);

}  // namespace foundation
