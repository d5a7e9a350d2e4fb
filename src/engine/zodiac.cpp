#include "engine/zodiac.h"

#include <cmath>

#include "engine/angles.h"
#include "foundation/bounded_array.h"
#include "foundation/numbers.h"
#include "foundation/text.h"

namespace engine {
namespace {

using foundation::BoundedArray;
using foundation::FloorToInt16;

constexpr BoundedArray<std::string_view, 0, 13> kBodies{
    {"", "Asc", "Sun", "Moon", "Mars", "Mercury", "Jupiter", "Venus", "Saturn", "Rahu", "Ketu",
     "Uranus", "Neptune", "Pluto"}};

constexpr BoundedArray<std::string_view, 1, 13> kBodiesOfTheory{
    {"ASC", "SUN", "MERCURY", "VENUS", "MARS", "JUPITER", "SATURN", "MOON", "RAHU", "KETU",
     "URANUS", "NEPTUNE", "PLUTO"}};

constexpr BoundedArray<std::string_view, 1, 12> kSigns{
    {"Aries", "Taurus", "Gemini", "Cancer", "Leo", "Virgo", "Libra", "Scorpio", "Sagittarius",
     "Capricorn", "Aquarius", "Pisces"}};

// Bytes of the legacy Devanagari font.
constexpr BoundedArray<std::string_view, 1, 12> kSignsInHindi{{"es\"k", "o`\"k", "feFkqu", "ddZ",
                                                               "flag", "dU;k", "rqyk", "o`f'pd",
                                                               "/uq", "edj", "dqaHk", "ehu"}};

constexpr BoundedArray<int, 1, 12> kSignLords{{4, 7, 5, 3, 2, 5, 7, 4, 6, 8, 8, 6}};

constexpr BoundedArray<std::string_view, 0, 12> kSignLordCodes{
    {"", "MAR", "VEN", "MER", "MOO", "SUN", "MER", "VEN", "MAR", "JUP", "SAT", "SAT", "JUP"}};

constexpr BoundedArray<std::string_view, 0, 27> kStars{
    {"",         "Ashwini",  "Bharani",  "Krittika", "Rohini",    "Mrigasira", "Ardra",
     "Punarva",  "Pushya",   "Ashlesha", "Magha",    "P. Phalg",  "U. Phalg",  "Hasta",
     "Chitra",   "Swati",    "Vishakha", "Anuradha", "Jyeshtha",  "Moola",     "P. Asadh",
     "U. Asadh", "Shravana", "Dhanista", "Shatabhi", "P. Bhadra", "U. Bhadra", "Revati"}};

// By star number modulo nine.
constexpr BoundedArray<int, 0, 8> kStarLords{{5, 10, 7, 2, 3, 4, 9, 6, 8}};

// Degrees from the Sun.
constexpr struct {
  std::string_view Code;
  double Limit;
} kCombust[] = {{"MOO", 12}, {"MON", 12}, {"MAR", 17}, {"MER", 14},
                {"JUP", 11}, {"VEN", 10}, {"SAT", 15}};

// Seconds of arc from 0 Aries, both ends included.
struct Range {
  double From, To;
};
struct Dignities {
  std::string_view Code;
  Range Fall;
  Range Exaltation;
};
constexpr Dignities kDignities[] = {
    {"SUN", {648001, 756000}, {1, 108000}},        {"MOO", {756001, 864000}, {108001, 216000}},
    {"MON", {756001, 864000}, {108001, 216000}},   {"MAR", {324001, 432000}, {972001, 1080000}},
    {"MER", {1188001, 1296000}, {540000, 648000}}, {"JUP", {972001, 1080000}, {324001, 432000}},
    {"VEN", {540000, 648000}, {1188001, 1296000}}, {"SAT", {1, 108000}, {648001, 756000}},
};

std::string CodeOf(std::string_view body) {
  return foundation::UpperAscii(body.substr(0, 3));
}

bool IsInside(std::string_view body, double longitude, Range Dignities::*range) {
  const double seconds = longitude * 3600;
  const std::string code = CodeOf(body);
  for (const Dignities& row : kDignities) {
    if (row.Code == code) return (row.*range).From <= seconds && seconds <= (row.*range).To;
  }
  return false;
}

}  // namespace

std::string_view BodyName(int number) {
  return kBodies[number];
}

std::string_view BodyNameUpper(std::int16_t number) {
  return kBodiesOfTheory[number];
}

std::int16_t RashiNumber(double longitude) {
  return FloorToInt16(longitude / 30 + 1);
}

int RashiLordNumber(int sign) {
  return kSignLords[sign];
}

std::string_view RashiLordCode(double longitude) {
  return RashiLordCodeAt(RashiNumber(longitude));
}

std::string_view RashiLordCodeAt(std::int16_t sign) {
  return kSignLordCodes[sign];
}

std::int16_t NakNumber(double longitude) {
  return FloorToInt16(longitude * 3 / 40 + 1);
}

std::int16_t NakQuarter(double longitude) {
  return FloorToInt16(FractionOf(longitude * 3 / 40) * 4 + 1);
}

std::string_view NakName(std::int16_t star) {
  return kStars[star];
}

int NakLordNumber(double longitude) {
  return kStarLords[NakNumber(longitude) % 9];
}

std::string NakLordUpper(double longitude) {
  return foundation::UpperAscii(BodyName(NakLordNumber(longitude)));
}

std::string RashiNameText(std::int16_t sign, bool isShort, std::int32_t language) {
  const std::string_view name = kSigns[sign];
  return isShort && language == 0 ? CodeOf(name) : std::string(name);
}

std::string_view RashiNameLang(std::int16_t sign, std::int32_t language) {
  return language == 1 ? kSignsInHindi[sign] : kSigns[sign];
}

std::int16_t HouseOfSign(double ascendant, std::int16_t sign) {
  if (sign < 1 || sign > 12) throw foundation::Error(foundation::ErrorKind::Subscript);
  const int house = sign - RashiNumber(ascendant) + 1;
  return static_cast<std::int16_t>(house < 1 ? house + 12 : house);
}

std::string_view CombustTest(std::string_view body, double longitude, double sunLongitude) {
  const std::string code = CodeOf(body);
  for (const auto& row : kCombust) {
    if (row.Code == code) return std::abs(longitude - sunLongitude) <= row.Limit ? "COM" : "";
  }
  return "";
}

std::string_view DebilTest(std::string_view body, double longitude) {
  return IsInside(body, longitude, &Dignities::Fall) ? "DEB" : "";
}

std::string_view ExaltTest(std::string_view body, double longitude) {
  return IsInside(body, longitude, &Dignities::Exaltation) ? "EXL" : "";
}

DegreeSplit ExactSplit(double longitude) {
  if (longitude > 360) longitude -= 360;
  DegreeSplit split;
  split.Sign = FloorToInt16(longitude / 30);
  const double degrees = longitude - 30.0 * split.Sign;
  split.Degrees = WholePart(degrees);
  const double minutes = (degrees - split.Degrees) * 60;
  split.Minutes = WholePart(minutes);
  const double seconds = (minutes - split.Minutes) * 60;
  split.Seconds = WholePart(seconds);
  split.Fraction = seconds - split.Seconds;
  return split;
}

DegreeSplit RoundedSplit(double longitude) {
  DegreeSplit split = ExactSplit(longitude);
  split.Seconds = WholePart(split.Seconds + split.Fraction + 0.5);
  split.Fraction = 0;
  if (split.Seconds == 60) {
    split.Seconds = 0;
    ++split.Minutes;
  }
  if (split.Minutes == 60) {
    split.Minutes = 0;
    ++split.Degrees;
  }
  if (split.Degrees == 30) {
    split.Degrees = 0;
    ++split.Sign;
  }
  return split;
}

}  // namespace engine
