// A chart as tables: one row per body with its place, lords and state.
#pragma once

#include <array>
#include <string>
#include <string_view>

namespace engine {

// Columns that both tables share.
struct PlanetCells {
  std::string_view Name;  // "Asc", "Sun" to "Pluto" as in BodyName
  double Longitude = 0;   // degrees
  int Sign = 0;           // 0 Aries to 11; 12 if rounding the seconds ends the zodiac
  std::string Degrees;    // within the sign; two digits, as the next two
  std::string Minutes;
  std::string Seconds;         // rounded
  int Star = 0;                // 1 to 27
  std::string Quarter;         // of the star, "1" to "4"
  std::string_view RashiLord;  // code of the sign's lord, "MAR"
  std::string NakLord;         // the star's lord, "MERCURY"
};

struct PlanetRow : PlanetCells {
  std::string_view SubLord;     // "Mercury"
  std::string_view SubSubLord;  // "MER"
};

struct PlanetRow2 : PlanetCells {
  std::string_view Combust;  // "COM" or ""
  std::string Dignity;       // "DEB", "EXL" or ""
  std::string_view Motion;   // "RET" or a blank; "" for the ascendant
};

using PlanetsTable = std::array<PlanetRow, 13>;
using PlanetsTable2 = std::array<PlanetRow2, 13>;

}  // namespace engine
