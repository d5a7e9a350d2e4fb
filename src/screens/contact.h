// The maker's contact lines. An empty one shows nothing; a click on any opens the website, if there
// is one.
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
