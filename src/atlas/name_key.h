// Names of places as they are compared.
#pragma once

#include <string>
#include <string_view>

namespace atlas {

// How letters with marks are spelled without them: "Köln" is "koln" or "koeln". The atlas has names
// of both kinds.
enum class Umlauts { Plain, Spelled };

// A name in small letters without marks: "São Paulo" becomes "sao paulo". Apostrophes are dropped,
// and any other run of signs becomes one blank: "St. John's" becomes "st johns". Letters beyond the
// Latin ones stay as they are.
std::string NameKey(std::string_view name, Umlauts umlauts = Umlauts::Plain);

}  // namespace atlas
