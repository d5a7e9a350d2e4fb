// The Sun's course and season, the lunar month, and the years of the eras.

#include "almanac/moment_chart.h"
#include "dayperiods/clsBirthDetails.h"
#include "foundation/bounded_array.h"
#include "foundation/date_text.h"
#include "foundation/numbers.h"
#include "foundation/time_text.h"

namespace dayperiods {
namespace {

using foundation::BoundedArray;
using foundation::NumberText;

struct SunCourse {
  const char* ayan;
  const char* gol;
  const char* ritu;
};

// By tropical sign of the Sun, 1 Aries to 12.
constexpr BoundedArray<SunCourse, 1, 12> kCourses{std::to_array<SunCourse>({
    {"UTTAR", "UTTAR", "VASANT"},
    {"UTTAR", "UTTAR", "GRISHMA"},
    {"UTTAR", "UTTAR", "GRISHMA"},
    {"DAKSHIN", "UTTAR", "VARSHA"},
    {"DAKSHIN", "UTTAR", "VARSHA"},
    {"DAKSHIN", "UTTAR", "SHARAD"},
    {"DAKSHIN", "DAKSHIN", "SHARAD"},
    {"DAKSHIN", "DAKSHIN", "HEMANT"},
    {"DAKSHIN", "DAKSHIN", "HEMANT"},
    {"UTTAR", "DAKSHIN", "SHISHIR"},
    {"UTTAR", "DAKSHIN", "SHISHIR"},
    {"UTTAR", "DAKSHIN", "VASANT"},
})};

const SunCourse& CourseOf(double sun, double ayanamsa) {
  const double tropical = sun + ayanamsa;
  const int sign = foundation::FloorToInt16(tropical / 30);
  return kCourses[((sign % 12) + 12) % 12 + 1];
}

struct LunarMonth {
  std::int16_t code;  // the nakshatra that marks it
  const char* name;
};

// By solar month, 1 January to 12.
constexpr BoundedArray<LunarMonth, 1, 12> kMonths{std::to_array<LunarMonth>({
    {8, "PAUSA"},
    {10, "MAGHA"},
    {12, "PHALGUNA"},
    {14, "CHAITRA"},
    {16, "VAISAKHA"},
    {18, "JYAISTHA"},
    {20, "ASADHA"},
    {22, "SRAVANA"},
    {25, "BHADRA"},
    {1, "ASVINA"},
    {3, "KARTIKA"},
    {5, "MARGSHIRSH"},
})};

std::int16_t TithiOf(const engine::clsPP& chart) {
  return std::get<std::int16_t>(clsBirthDetails().getTITHI(chart.pp_Moon, chart.pp_Sun, true));
}

}  // namespace

std::string clsBirthDetails::getAyan(double SUNpos, double Ayanamsapos) {
  return CourseOf(SUNpos, Ayanamsapos).ayan;
}

std::string clsBirthDetails::getGol(double SUNpos, double Ayanamsapos) {
  return CourseOf(SUNpos, Ayanamsapos).gol;
}

std::string clsBirthDetails::getRitu(double SUNpos, double Ayanamsapos) {
  return CourseOf(SUNpos, Ayanamsapos).ritu;
}

std::int16_t clsBirthDetails::MASatBirth(std::int16_t month) {
  return kMonths[month].code;
}

std::string clsBirthDetails::Mas(std::int16_t code) {
  for (int month = 1; month <= 12; ++month) {
    if (kMonths[month].code == code) return kMonths[month].name;
  }
  return "";
}

std::string clsBirthDetails::GetMas(std::int16_t day, std::int16_t month, std::int16_t year,
                                    std::int16_t hour, std::int16_t minute, std::int16_t second,
                                    std::string_view Longitude, std::string_view Lattitude,
                                    std::string_view zone,
                                    const foundation::SessionTable& session) {
  const int days = month == 2 ? 28 : 30;
  const auto isPastFullMoon = [&](int d) {
    const std::int16_t tithi = TithiOf(almanac::ChartOf({year, month, d, hour, minute, second},
                                                        {Longitude, Lattitude, zone}, session));
    return tithi == 16 || tithi == 17;
  };
  int d = 1;
  while (d <= days && !isPastFullMoon(d)) ++d;
  const bool isNextMonth = d <= days && d >= day;
  const int itsMonth = isNextMonth ? month % 12 + 1 : month;
  return Mas(MASatBirth(static_cast<std::int16_t>(itsMonth)));
}

std::array<std::string, 2> clsBirthDetails::GetSamvat(
    std::int16_t day, std::int16_t month, std::int16_t year, std::int16_t hour, std::int16_t minute,
    std::int16_t second, std::string_view Longitude, std::string_view Lattitude,
    std::string_view zone, const foundation::SessionTable& session) {
  const auto newYear = [&] {
    foundation::DateTime date = foundation::ReadDateTime("1-april-" + NumberText(year));
    for (int i = 1; i <= 30; ++i) {
      foundation::DateTimeFields at = foundation::FieldsOf(++date);
      at.hour = hour, at.minute = minute, at.second = second;
      if (TithiOf(almanac::ChartOf(at, {Longitude, Lattitude, zone}, session)) == 1) return at;
    }
    return foundation::FieldsOf(date);
  }();
  const bool hasBegun = month > 4 || (month == newYear.month && day >= newYear.day);
  const auto eraYear = [&](int offset) {
    return foundation::PadDigits(year + offset - 1900 + (hasBegun ? 1 : 0), 4);
  };
  return {eraYear(1821), eraYear(1956)};
}

}  // namespace dayperiods
