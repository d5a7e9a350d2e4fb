// The zone of a country, from a fixed table.
#pragma once

#include <string>
#include <string_view>

namespace atlas {

// The zone offset of a country, such as "-5.30" (hours.minutes), ignoring case; India's for an
// empty name, empty text for an unknown one. One zone per country, without daylight saving.
std::string getCountryZone(std::string_view country);

}  // namespace atlas
