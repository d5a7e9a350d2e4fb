// The zone of a country, from one fixed table.
#pragma once

#include <string>
#include <string_view>

namespace atlas {

// A zone offset such as "-5.30" (hours.minutes) for a country's name, case aside; India's for an
// empty name, and an empty text for a name that the table lacks. One zone a country, without
// daylight saving.
std::string getCountryZone(std::string_view country);

}  // namespace atlas
