// Names of bodies, signs and stars, their lords, and the dignities.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace engine {

// Longitudes are degrees from 0 to below 360; only RoundedSplit and ExactSplit wrap larger ones. An
// index outside its list raises Subscript, as does 360 when the lord of its sign is looked up.

// Bodies in chart order: 1 "Asc", 2 "Sun", 3 "Moon", "Mars", "Mercury", "Jupiter", "Venus",
// "Saturn", "Rahu", "Ketu", "Uranus", "Neptune", 13 "Pluto"; 0 is "".
std::string_view BodyName(int number);
// Bodies in the order of Body: 1 "ASC", "SUN", "MERCURY", "VENUS", "MARS", "JUPITER", "SATURN",
// "MOON", "RAHU", "KETU", "URANUS", "NEPTUNE", 13 "PLUTO".
std::string_view BodyNameUpper(std::int16_t number);

// The sign at a longitude, counted from 1.
std::int16_t RashiNumber(double longitude);
// The lord of a sign, 1 to 12, as a number for BodyName.
int RashiLordNumber(int sign);
// The same as a code, "MAR", by longitude or by sign; sign 0 has none.
std::string_view RashiLordCode(double longitude);
std::string_view RashiLordCodeAt(std::int16_t sign);

// The star at a longitude, counted from 1.
std::int16_t NakNumber(double longitude);
// Its quarter, 1 to 4.
std::int16_t NakQuarter(double longitude);
// Stars 1 "Ashwini" to 27 "Revati"; 0 is "". The spellings differ from those of StarTable.
std::string_view NakName(std::int16_t star);
// The star's lord, as a number for BodyName and as its name in upper case.
int NakLordNumber(double longitude);
std::string NakLordUpper(double longitude);

// Signs 1 "Aries" to 12 "Pisces". Short names, "ARI", exist only in language 0; any other
// language gets the full English name.
std::string RashiNameText(std::int16_t sign, bool isShort, std::int32_t language = 0);
// Language 1 is Hindi, in bytes for the legacy font; any other is English.
std::string_view RashiNameLang(std::int16_t sign, std::int32_t language);

// The house of a sign, 1 to 12, counting the ascendant's sign as 1.
std::int16_t HouseOfSign(double ascendant, std::int16_t sign);

// Bodies are matched by the first three letters of their name, ignoring case; any other name gives
// "".

// "COM" within the body's limit of the Sun. The difference does not wrap at 0.
std::string_view CombustTest(std::string_view body, double longitude, double sunLongitude);
// "DEB" or "EXL" inside the sign of the body's fall or exaltation. Most ranges begin a second of
// arc after the sign does.
std::string_view DebilTest(std::string_view body, double longitude);
std::string_view ExaltTest(std::string_view body, double longitude);

// A longitude within its sign.
struct DegreeSplit {
  int Sign = 0;  // 0 Aries to 11; 12 if rounding ends the zodiac, or at 360 itself
  int Degrees = 0;
  int Minutes = 0;
  int Seconds = 0;
  double Fraction = 0;  // of a second; 0 if the seconds are rounded
};
// Rounds to the nearest second and carries up to the sign. A longitude above 360 loses 360.
DegreeSplit RoundedSplit(double longitude);
// Truncates to the second; Fraction holds the rest.
DegreeSplit ExactSplit(double longitude);

}  // namespace engine
