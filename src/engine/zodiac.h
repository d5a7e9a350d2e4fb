// The vocabulary of a chart: names of bodies, signs and stars, their lords, and the dignities.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace engine {

// Longitudes are degrees, 0 to below 360, and but for RoundedSplit and ExactSplit not brought into
// that range. An index outside its list raises Subscript, as 360 itself does where the lord of its
// sign is looked up.

// Numbers of bodies in the order in which a chart names them: 1 "Asc", 2 "Sun", 3 "Moon", "Mars",
// "Mercury", "Jupiter", "Venus", "Saturn", "Rahu", "Ketu", "Uranus", "Neptune", 13 "Pluto"; 0 is
// "".
std::string_view BodyName(int number);
// In the order of the theory: 1 "ASC", "SUN", "MERCURY", "VENUS", "MARS", "JUPITER", "SATURN",
// "MOON", "RAHU", "KETU", "URANUS", "NEPTUNE", 13 "PLUTO".
std::string_view BodyNameUpper(std::int16_t number);

// The sign at a longitude, from 1.
std::int16_t RashiNumber(double longitude);
// The lord of a sign of 1 to 12, as a number of BodyName.
int RashiLordNumber(int sign);
// As a code, "MAR"; by longitude or by sign of 0 (which has none) to 12.
std::string_view RashiLordCode(double longitude);
std::string_view RashiLordCodeAt(std::int16_t sign);

// The star at a longitude, from 1.
std::int16_t NakNumber(double longitude);
// Its quarter, 1 to 4.
std::int16_t NakQuarter(double longitude);
// Stars 1 "Ashwini" to 27 "Revati"; 0 is "". The spellings differ from those of StarTable.
std::string_view NakName(std::int16_t star);
// The lord of the star, as a number of BodyName and as its name in upper case.
int NakLordNumber(double longitude);
std::string NakLordUpper(double longitude);

// Signs 1 "Aries" to 12 "Pisces". Short, and in language 0, "ARI"; a short name of another
// language is the English one uncut.
std::string RashiNameText(std::int16_t sign, bool isShort, std::int32_t language = 0);
// In language 1 Hindi, as bytes of the legacy font's encoding; in any other English.
std::string_view RashiNameLang(std::int16_t sign, std::int32_t language);

// The house that a sign of 1 to 12 is, where the ascendant's own is 1.
std::int16_t HouseOfSign(double ascendant, std::int16_t sign);

// Bodies by the first three letters of their name, case aside; any other name gives "".

// "COM" within the body's limit of the Sun, the difference taken without a wrap at 0.
std::string_view CombustTest(std::string_view body, double longitude, double sunLongitude);
// "DEB" and "EXL" inside the sign of the body's fall or exaltation. Most begin a second of arc
// after the sign's own beginning.
std::string_view DebilTest(std::string_view body, double longitude);
std::string_view ExaltTest(std::string_view body, double longitude);

// A longitude within its sign.
struct DegreeSplit {
  int Sign = 0;  // 0 Aries to 11; 12 where the rounding ends the zodiac, or at 360 itself
  int Degrees = 0;
  int Minutes = 0;
  int Seconds = 0;
  double Fraction = 0;  // of a second; 0 where the seconds are rounded
};
// To the nearest second, carried through to the sign. A longitude above 360 loses 360.
DegreeSplit RoundedSplit(double longitude);
// To the second below, with what is left.
DegreeSplit ExactSplit(double longitude);

}  // namespace engine
