// clsBirthDetails: sunrise and sunset of the Hindu day that contains a moment, the almanac's
// elements of that moment, and the attributes of a birth. Everything after sunrise is implemented
// in the almanac library.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <variant>

#include "foundation/session.h"

namespace dayperiods {

// Sunrise and sunset in decimal hours, which may be below 0 or above 24 if they fall outside the
// clock's day. Clock times are whole minutes, and 0 beyond 63 degrees of latitude; local mean times
// shift them by the place's distance from the zone's meridian.
struct SunriseRows {
  double localMeanRise = 0;  // row 1
  double localMeanSet = 0;   // row 2
  double clockRise = 0;      // row 3
  double clockSet = 0;       // row 4
  std::string date;          // row 5: "5 March 2011"; before sunrise on a first "0 March 2011"
};

// The number or its name, as the caller requested.
using ElementResult = std::variant<std::string, std::int16_t>;

// Number, month, lunar days, weekday, nakshatra, yoga, karana, watch of the day, animal, and nine
// signs.
using GhatRow = std::array<std::string_view, 18>;

// Latitudes are decimal degrees, north positive; longitudes are decimal degrees, east positive;
// zones are hours, east positive, so that clock time = Universal Time + zone.
class clsBirthDetails {
 public:
  // Rows of the Hindu day, sunrise to sunrise, that holds the moment. Before sunrise that is the
  // day before: nDay, and no other argument, is then lowered by 1 in place, to 0 on the first of a
  // month.
  // A date that does not exist rolls over: 30 February has the sun of 2 March, but keeps its own
  // name in row 5. A time carries as in DateTimeText, so that 24:00:00 ends the day.
  // InvalidCall or DivisionByZero if the sun does not cross the horizon (|tan latitude * tan
  // declination| of 1 or more); TypeMismatch for a time that one carry does not mend; InvalidCall
  // for a month that does not exist and outside the years 100 to 9999.
  SunriseRows Sunrise(double& Latitude, double& Longitude, double& ZoneRelativeGMT,
                      std::int16_t& nDay, std::int16_t& nMonth, std::int16_t& nYear,
                      std::int16_t& nHour, std::int16_t& nMin, std::int16_t& nSec);

  // One event: the text that SRS returns or, with blnDEC, decimal hours, 0 if that text is not a
  // time. RiseOrSet is "S" or "s" for sunset, anything else for sunrise. Coordinates are decimal
  // numbers as text with blnDecConvdata, otherwise degrees.minutes ending in a hemisphere letter.
  std::variant<std::string, double> GetRISESET(std::int16_t nDay, std::int16_t nMonth,
                                               std::int16_t nYear, std::string_view RiseOrSet,
                                               std::string_view Latitude,
                                               std::string_view Longitude, double ZoneRelativeGMT,
                                               bool blnDEC, bool blnDecConvdata);

  // "hh:mm" by the zone's clock; "" if the sun does not rise or set that day; "{invalid latitude}"
  // beyond 63 degrees. If sunrise is more than 90 degrees of hour angle from noon, both times
  // are 12 hours off; Sunrise corrects that, except for the day before. Note that the date is
  // passed year first, unlike everywhere else.
  std::string SRS(double Latitude, double Longitude, double ZoneRelativeGMT,
                  std::string_view RiseOrSet, std::int16_t year, std::int16_t month,
                  std::int16_t day);

  // DecimalTime + GMTOffset, in hours, wrapped into one day (and DecimalTime updated to match), as
  // "hh:mm". Minutes that round to 60 are not padded: "6:0". 24 stays "24:00".
  std::string GetMilitaryTime(double& DecimalTime, double GMTOffset);

  // Wraps an angle in radians into 0 to 2 pi.
  double GetRange(double x);

  // Elements of the almanac. Positions are sidereal longitudes of Moon and Sun, 0 to 360 degrees;
  // values far outside raise Subscript or Overflow.

  // The lunar day, 1 to 30; exactly at new moon, number 0 and "Purnima".
  ElementResult getTITHI(double MoonPos, double SUNpos, bool blnretNum);
  // 1 to 14 and 16 to 29 "Pratipada" to "Chaturdashi", 15 "Purnima", 30 "Amavasya".
  std::string getTithiName(std::int16_t TithiNum);
  // The half of the month: "Shukla", which includes the day of full moon, or "Krishna". Returns the
  // name whatever blnretNum is.
  std::string getPaksh(double MoonPos, double SUNpos, bool blnretNum = false);
  // The quarter of the nakshatra, "1" to "4".
  std::string getCharanPad(double position);
  // The yoga, 1 "Viskumbh" to 27 "Vaidhriti".
  ElementResult getYOG(double Mpos, double Spos, bool blnretNum);
  std::string getYogName(std::int16_t Yognum);
  // The karana, 1 to 60, computed in whole minutes of arc. Its name is "Bava", but "BAVA" when
  // looked up by number.
  ElementResult GetKaran(double Mpos, double Spos, bool blnretNum);
  std::string getKaranName(std::int16_t KaranNum);

  // The end of the element that is current at a moment, to the second, as "18/November/1990
  // 17:3:49" with the user's month name. Uses the clock, place and war-time correction of the
  // current record, and the session's default ayanamsa and node. Years 0 to 99 are read like a
  // two-digit text. InvalidCall for a month without a name and for an end after the year 9999;
  // TypeMismatch for any other moment that does not exist; errors of GenHoro.
  std::string GetTITHIending(std::int16_t day, std::int16_t month, std::int16_t year,
                             std::int16_t hour, std::int16_t minute, std::int16_t second,
                             const foundation::SessionTable& session);
  std::string GetNakshatraending(std::int16_t day, std::int16_t month, std::int16_t year,
                                 std::int16_t hour, std::int16_t minute, std::int16_t second,
                                 const foundation::SessionTable& session);
  std::string GetYogEnding(std::int16_t day, std::int16_t month, std::int16_t year,
                           std::int16_t hour, std::int16_t minute, std::int16_t second,
                           const foundation::SessionTable& session);
  std::string GetKaranEnding(std::int16_t day, std::int16_t month, std::int16_t year,
                             std::int16_t hour, std::int16_t minute, std::int16_t second,
                             const foundation::SessionTable& session);

  // The Sun's course, its half of the zodiac ("UTTAR" or "DAKSHIN") and its season. The two
  // arguments add up to the tropical longitude in degrees.
  std::string getAyan(double SUNpos, double Ayanamsapos);
  std::string getGol(double SUNpos, double Ayanamsapos);
  std::string getRitu(double SUNpos, double Ayanamsapos);

  // The code of the lunar month for a solar month, 1 to 12: the number of its nakshatra. Subscript
  // outside.
  std::int16_t MASatBirth(std::int16_t month);
  // The lunar month with a code, "CHAITRA"; "" for any other code.
  std::string Mas(std::int16_t code);

  // The lunar month of a date: that of its solar month, or the next one if the first day of the
  // month with tithi 16 or 17, at that time of day, is the date or later. Place texts are those of
  // GenHoro, whose errors are passed on; the session only supplies ayanamsa and node.
  std::string GetMas(std::int16_t day, std::int16_t month, std::int16_t year, std::int16_t hour,
                     std::int16_t minute, std::int16_t second, std::string_view Longitude,
                     std::string_view Lattitude, std::string_view zone,
                     const foundation::SessionTable& session);
  // The Shaka and Vikram years, four digits each. The new year is the first date from 2 April whose
  // lunar day is 1 at that time of day, or else 1 May. Years 0 to 99 are read as for the endings.
  std::array<std::string, 2> GetSamvat(std::int16_t day, std::int16_t month, std::int16_t year,
                                       std::int16_t hour, std::int16_t minute, std::int16_t second,
                                       std::string_view Longitude, std::string_view Lattitude,
                                       std::string_view zone,
                                       const foundation::SessionTable& session);

  // Attributes of a birth by the Moon's sidereal longitude, 0 to below 360 degrees: class, control
  // group, element.
  std::string getVarna(double MoonPos);
  std::string getVashya(double MoonPos);
  std::string getHansak(double MoonPos);
  // By the Moon's nakshatra, 1 to 27, "" for 0: animal, temperament, pulse, union. Subscript
  // outside.
  std::string getYoni(std::int16_t Nak);
  std::string getGan(std::int16_t Nak);
  std::string getNadi(std::int16_t Nak);
  std::string getYunja(std::int16_t Nak);
  // By nakshatra and quarter: the first syllable of the name, "Choo (Chooha)", its class, "SIMHA",
  // and the class prefixed with "_". "" if there is none.
  std::string getNaamAkshar(std::int16_t Nak, std::int16_t Quarter);
  std::string getNaamAksharVarga(std::int16_t Nak, std::int16_t Quarter);
  std::string getVarga(std::int16_t Nak, std::int16_t Quarter);
  // "Gold", "Silver", "Copper" or "Iron", by a sign counted from the Moon's, and by a nakshatra; ""
  // for any other number.
  std::string GetRashiPaya(std::int16_t sign);
  std::string GetNakPaya(std::int16_t Nak);
  // What to avoid under a Moon sign, 1 to 12; 0 counts as 12. Always in English, whatever the
  // language. Subscript outside.
  const GhatRow& getGhat(std::int16_t sign, std::int32_t language);
};

}  // namespace dayperiods
