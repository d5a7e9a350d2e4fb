// The maker's contact lines. An empty one shows nothing, and a click on it does nothing.
#pragma once

#include <string_view>

namespace screens {

inline constexpr std::string_view kWebsite = "";
inline constexpr std::string_view kEmail = "";
inline constexpr std::string_view kTelephone = "";

}  // namespace screens
