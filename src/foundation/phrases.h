// The phrases of the program's language files.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "foundation/session.h"

namespace foundation {

// The phrase for a key, ignoring case, in a language: 0 (or -1) English, 1 Hindi, 2 Marathi, 3
// Malayalam, 4 Kannada. Returns the key if the language's file lacks it. FileNotFound or FileAccess
// if the file is missing, or for any other number.
std::string LanguagePhrase(std::string_view key, std::int32_t language);
// In the current language.
std::string LanguagePhrase(std::string_view key, const SessionTable& session);

}  // namespace foundation
