// The maker's contact lines. Empty lines are hidden; a click on any line opens the website, if set.
#pragma once

#include <string_view>

#include "foundation/machine.h"

namespace screens {

inline constexpr std::string_view kWebsite = "";
inline constexpr std::string_view kEmail = "";
inline constexpr std::string_view kTelephone = "";

inline void OpenWebsite(foundation::Browser& browser) {
  if (!kWebsite.empty()) browser.Open(kWebsite);
}

}  // namespace screens
