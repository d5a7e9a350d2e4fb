#include "engine/clsPP.h"

#include <cmath>

#include "foundation/checked.h"
#include "foundation/text.h"

namespace engine {
namespace {

using foundation::Finite;
using foundation::LastCharacter;
using foundation::LeadingNumber;
using foundation::NumberText;

// "28.40N" as "28N4": the number at the start, written shortest, its point replaced by the letter.
// A text that ends in neither letter stays as it is.
std::string LetterForPoint(std::string_view text, std::string_view positive,
                           std::string_view negative) {
  const std::string_view letter = LastCharacter(text);
  if (letter != positive && letter != negative) return std::string(text);
  std::string number = NumberText(LeadingNumber(text));
  if (const std::size_t point = number.find('.'); point != std::string::npos) {
    number.replace(point, 1, letter);
  }
  return number;
}

double Decimal(const LatLongParts& parts, std::string_view negative) {
  const double degrees = Finite(parts.minutes / 60 + parts.degrees);
  return parts.hemisphere == negative ? -degrees : degrees;
}

}  // namespace

LatLongParts clsPP::SepLatLong(std::string_view text) {
  LatLongParts parts;
  std::string digits;
  for (const std::string_view character : foundation::Characters(text)) {
    if (character >= "0" && character <= "9") {
      digits += character;
    } else {
      parts.hemisphere = character;
      parts.degrees = LeadingNumber(digits);
      digits.clear();
    }
  }
  if (digits.size() < 2) digits += '0';
  parts.minutes = LeadingNumber(digits);
  return parts;
}

void clsPP::DecodeZone(std::string_view zone) {
  const double number = LeadingNumber(zone);
  const double degrees = std::floor(number);
  const double minutes = foundation::RoundToInt16(100 * (number - degrees));
  const double sign = LastCharacter(zone) == "W" ? -1 : 1;
  ppZoneDegrees = sign * (minutes / 60 + degrees);
  ppZoneHours = ppZoneDegrees / 15;
  ppStdLongitude = ppZoneDegrees;
}

void clsPP::GenHoro(double day, double month, double year, double hour, double minute,
                    double second, std::string_view Longitude, std::string_view Lattitude,
                    std::string_view zone, std::int32_t nAyan, foundation::Boolean16 blnRahuKetu,
                    double warTimeCorrection) {
  ppLongitudeText = Longitude;
  ppLatitudeText = Lattitude;
  ppZoneText = zone;
  WarTimeCorrection = warTimeCorrection;

  std::string latitude = LetterForPoint(Lattitude, "N", "S");
  // A latitude whose letter went with its point gets it back; a longitude does not.
  if (latitude.find_first_of("NS") == std::string::npos) latitude += LastCharacter(Lattitude);
  const LatLongParts latitudeParts = SepLatLong(latitude);
  const LatLongParts longitudeParts = SepLatLong(LetterForPoint(Longitude, "E", "W"));

  DecodeZone(zone);

  ppDay = foundation::RoundToInt16(day);
  ppMonth = foundation::RoundToInt16(month);
  ppYear = foundation::RoundToInt32(year);
  ppHour = foundation::RoundToInt16(hour);
  ppMin = foundation::RoundToInt16(minute);
  ppSec = second;
  ayanMode_ = foundation::RoundToInt16(nAyan);
  nodeModeA_ = blnRahuKetu;
  nodeModeB_ = blnRahuKetu;

  ppLongitude = Decimal(longitudeParts, "W");
  ppLatitude = Decimal(latitudeParts, "S");
}

}  // namespace engine
