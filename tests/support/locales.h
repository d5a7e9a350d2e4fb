// Locale names for tests.
#pragma once

#include <utility>

#include "foundation/locale_names.h"

namespace support {

inline foundation::LocaleNames Hindi() {
  return {{"जनवरी", "फ़रवरी", "मार्च", "अप्रैल", "मई", "जून", "जुलाई", "अगस्त", "सितंबर", "अक्तूबर", "नवंबर",
           "दिसंबर"},
          {"रविवार", "सोमवार", "मंगलवार", "बुधवार", "गुरुवार", "शुक्रवार", "शनिवार"}};
}

// Sets names for its lifetime, then restores the English ones.
class UserNamesScope {
 public:
  explicit UserNamesScope(foundation::LocaleNames names) {
    foundation::SetUserNames(std::move(names));
  }
  ~UserNamesScope() { foundation::SetUserNames(foundation::EnglishNames()); }
  UserNamesScope(const UserNamesScope&) = delete;
  UserNamesScope& operator=(const UserNamesScope&) = delete;
};

}  // namespace support
