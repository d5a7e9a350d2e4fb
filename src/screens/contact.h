// The maker's contact lines. An empty one shows nothing; a click on any opens the website, if there
// is one.
#pragma once

#include <string_view>

namespace screens {

inline constexpr std::string_view kWebsite = "";
inline constexpr std::string_view kEmail = "";
inline constexpr std::string_view kTelephone = "";

}  // namespace screens
