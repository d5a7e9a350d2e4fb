#include "engine/place_decoding.h"

#include <cmath>

#include "foundation/checked.h"
#include "foundation/numbers.h"
#include "foundation/text.h"

namespace engine {
namespace {

using foundation::LastCharacter;
using foundation::LeadingNumber;

// Turns "28.40N" into "28N4": the leading number in its shortest form, with the letter in place of
// the point. Text that ends in neither letter is returned unchanged.
std::string LetterForPoint(std::string_view text, std::string_view positive,
                           std::string_view negative) {
  const std::string_view letter = LastCharacter(text);
  if (letter != positive && letter != negative) return std::string(text);
  std::string number = foundation::NumberText(LeadingNumber(text));
  if (const std::size_t point = number.find('.'); point != std::string::npos) {
    number.replace(point, 1, letter);
  }
  return number;
}

}  // namespace

LatLongParts SepLatLong(std::string_view text) {
  LatLongParts parts;
  std::string digits;
  while (!text.empty()) {
    const std::string_view character = foundation::FirstCharacters(text, 1);
    text.remove_prefix(character.size());
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

LatLongParts LatitudeParts(std::string_view text) {
  std::string latitude = LetterForPoint(text, "N", "S");
  // A latitude whose letter was dropped with its point gets it back; a longitude does not.
  if (latitude.find_first_of("NS") == std::string::npos) latitude += LastCharacter(text);
  return SepLatLong(latitude);
}

LatLongParts LongitudeParts(std::string_view text) {
  return SepLatLong(LetterForPoint(text, "E", "W"));
}

double DecimalDegrees(const LatLongParts& parts, std::string_view negative) {
  const double degrees = foundation::Finite(parts.minutes / 60 + parts.degrees);
  return parts.hemisphere == negative ? -degrees : degrees;
}

double ZoneDegrees(std::string_view zone) {
  const double number = LeadingNumber(zone);
  const double degrees = std::floor(number);
  const double minutes = foundation::RoundToInt16(100 * (number - degrees));
  const double sign = LastCharacter(zone) == "W" ? -1 : 1;
  return sign * (minutes / 60 + degrees);
}

}  // namespace engine
