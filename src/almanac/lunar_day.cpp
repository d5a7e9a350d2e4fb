// Elements that depend only on the longitudes of Moon and Sun.

#include <cmath>

#include "dayperiods/clsBirthDetails.h"
#include "engine/zodiac.h"
#include "foundation/bounded_array.h"
#include "foundation/numbers.h"
#include "foundation/text.h"

namespace dayperiods {
namespace {

using foundation::BoundedArray;

constexpr int kTithisPerHalf = 15;
constexpr int kPurnima = 15;
constexpr int kAmavasya = 30;

// For both halves; the last day of each has its own name.
constexpr BoundedArray<const char*, 1, 14> kTithis{
    {"Pratipada", "Dvitiya", "Tritiya", "Chaturthi", "Panchami", "Shashthi", "Saptami", "Ashtami",
     "Navami", "Dashmi", "Ekadashi", "Dwadashi", "Trayodashi", "Chaturdashi"}};

constexpr BoundedArray<const char*, 1, 27> kYogas{
    {"Viskumbh", "Priti",  "Ayushman",  "Saubhagya", "Sobhana", "Atiganda", "Sukarma",
     "Dhriti",   "Sula",   "Gand",      "Vriddhi",   "Dhruva",  "Vyaghata", "Harsana",
     "Vajra",    "Siddhi", "Vyatipata", "Variyan",   "Parigha", "Siva",     "Siddha",
     "Sadhya",   "Subha",  "Shukla",    "Brahma",    "Indra",   "Vaidhriti"}};

// The moving karanas repeat eight times from the second half-tithi of a month; the fixed ones come
// before and after.
constexpr BoundedArray<const char*, 0, 6> kMovingKaranas{
    {"BAVA", "BALAVA", "KAULAV", "TAITIL", "GAR", "VANIJ", "VISHTI"}};
constexpr int kFirstKaran = 1;
constexpr BoundedArray<const char*, 58, 60> kLastKaranas{{"SHAKUNI", "CHATUSHPAD", "NAG"}};

std::int16_t TithiNumber(double moon, double sun) {
  double d = moon - sun;
  if (d < 0) d += 360;
  const double x = d / 12;
  const std::int16_t number = foundation::FloorToInt16(std::ceil(x));
  return static_cast<std::int16_t>(number > kAmavasya ? number - kAmavasya : number);
}

}  // namespace

ElementResult clsBirthDetails::getTITHI(double MoonPos, double SUNpos, bool blnretNum) {
  const std::int16_t number = TithiNumber(MoonPos, SUNpos);
  if (blnretNum) return number;
  const int r = number % kTithisPerHalf;
  if (r == 0) return number == kAmavasya ? "Amavasya" : "Purnima";
  return kTithis[r];
}

std::string clsBirthDetails::getTithiName(std::int16_t TithiNum) {
  if (TithiNum == kPurnima) return "Purnima";
  if (TithiNum == kAmavasya) return "Amavasya";
  return kTithis[TithiNum > kPurnima ? TithiNum - kTithisPerHalf : TithiNum];
}

std::string clsBirthDetails::getPaksh(double MoonPos, double SUNpos, bool) {
  return TithiNumber(MoonPos, SUNpos) > kPurnima ? "Krishna" : "Shukla";
}

std::string clsBirthDetails::getCharanPad(double position) {
  return foundation::NumberText(engine::NakQuarter(position));
}

ElementResult clsBirthDetails::getYOG(double Mpos, double Spos, bool blnretNum) {
  std::int16_t y = foundation::FloorToInt16((Mpos + Spos) * 3 / 40 + 1);
  while (y >= 28) y = static_cast<std::int16_t>(y - 27);
  if (blnretNum) return y;
  return getYogName(y);
}

std::string clsBirthDetails::getYogName(std::int16_t Yognum) {
  return kYogas[Yognum];
}

ElementResult clsBirthDetails::GetKaran(double Mpos, double Spos, bool blnretNum) {
  constexpr double kMinutesPerCircle = 21600;
  constexpr int kMinutesPerKaran = 360;
  double m = Mpos * 60;
  const double s = Spos * 60;
  if (m < s) m += kMinutesPerCircle;
  std::int32_t k = foundation::RoundToInt32(m - s) / kMinutesPerKaran;
  if (k > 59) k -= 60;
  const std::int16_t number = foundation::RoundToInt16(k + 1);
  if (blnretNum) return number;
  return foundation::ProperCase(getKaranName(number));
}

std::string clsBirthDetails::getKaranName(std::int16_t KaranNum) {
  if (KaranNum == kFirstKaran) return "KINSTUGHNA";
  if (KaranNum > kFirstKaran && KaranNum < 58) return kMovingKaranas[(KaranNum - 2) % 7];
  return kLastKaranas[KaranNum];
}

}  // namespace dayperiods
