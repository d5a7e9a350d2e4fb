// clsBirthDetails: when the sun rose and set for the Hindu day that holds a moment, the almanac's
// elements of that moment, and what they say of a birth. All beyond sunrise has its bodies in the
// almanac library.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <variant>

#include "foundation/session.h"

namespace dayperiods {

// Sunrise and sunset of one day in decimal hours, which may lie below 0 or above 24 where the day
// of the clock does not hold them. By the zone's clock they are whole minutes, and 0 beyond 63
// degrees of latitude; local mean times are those moved by the place's way from the meridian.
struct SunriseRows {
  double localMeanRise = 0;  // row 1
  double localMeanSet = 0;   // row 2
  double clockRise = 0;      // row 3
  double clockSet = 0;       // row 4
  std::string date;          // row 5: "5 March 2011"; before sunrise on a first "0 March 2011"
};

// A number, or the name that belongs to it, as the caller asked.
using ElementResult = std::variant<std::string, std::int16_t>;

// Number, month, lunar days, weekday, nakshatra, yoga, karana, watch of the day, animal, and nine
// signs.
using GhatRow = std::array<std::string_view, 18>;

// Latitudes are decimal degrees, north positive; longitudes decimal degrees, east positive; zones
// hours, east positive, so that clock time = Universal Time + zone.
class clsBirthDetails {
 public:
  // Rows of the Hindu day, sunrise to sunrise, that holds the moment. Before sunrise that is the
  // day before: nDay, alone of the arguments, is then lowered by 1 in place, to 0 on the first of a
  // month.
  // InvalidCall or DivisionByZero where the sun does not cross the horizon (|tan latitude * tan
  // declination| of 1 or more); TypeMismatch for a moment that does not exist.
  SunriseRows Sunrise(double& Latitude, double& Longitude, double& ZoneRelativeGMT,
                      std::int16_t& nDay, std::int16_t& nMonth, std::int16_t& nYear,
                      std::int16_t& nHour, std::int16_t& nMin, std::int16_t& nSec);

  // One time: the text of SRS, or with blnDEC decimal hours, 0 where that text is no time.
  // RiseOrSet is "S" or "s" for the sunset, any other text for the sunrise. The coordinates are
  // decimal numbers as texts with blnDecConvdata, else degrees.minutes with a hemisphere letter at
  // their end.
  std::variant<std::string, double> GetRISESET(std::int16_t nDay, std::int16_t nMonth,
                                               std::int16_t nYear, std::string_view RiseOrSet,
                                               std::string_view Latitude,
                                               std::string_view Longitude, double ZoneRelativeGMT,
                                               bool blnDEC, bool blnDecConvdata);

  // "hh:mm" by the zone's clock; "" where the sun does not rise or set that day; "{invalid
  // latitude}" beyond 63 degrees. Where the sun is more than 90 degrees of hour angle from noon
  // at its rise, rise and set come 12 hours wrong; Sunrise puts that right. The date is given from
  // the year down, unlike everywhere else.
  std::string SRS(double Latitude, double Longitude, double ZoneRelativeGMT,
                  std::string_view RiseOrSet, std::int16_t year, std::int16_t month,
                  std::int16_t day);

  // DecimalTime + GMTOffset, hours, brought into one day (DecimalTime is written back), as
  // "hh:mm". Minutes that round to 60 leave plain numbers: "6:0". 24 stays "24:00".
  std::string GetMilitaryTime(double& DecimalTime, double GMTOffset);

  // An angle in radians brought into 0 to 2 pi.
  double GetRange(double x);

  // The almanac's elements. Positions are sidereal longitudes of Moon and Sun, 0 to 360 degrees;
  // what lies far outside ends in Subscript or Overflow.

  // The lunar day, 1 to 30; at the very moment of the new moon number 0 and "Purnima".
  ElementResult getTITHI(double MoonPos, double SUNpos, bool blnretNum);
  // 1 to 14 and again 16 to 29 "Pratipada" to "Chaturdashi", 15 "Purnima", 30 "Amavasya".
  std::string getTithiName(std::int16_t TithiNum);
  // The half of the month: "Shukla", the full moon's day with it, or "Krishna"; a name however
  // blnretNum is.
  std::string getPaksh(double MoonPos, double SUNpos, bool blnretNum = false);
  // The quarter of the nakshatra, "1" to "4".
  std::string getCharanPad(double position);
  // The yoga, 1 "Viskumbh" to 27 "Vaidhriti".
  ElementResult getYOG(double Mpos, double Spos, bool blnretNum);
  std::string getYogName(std::int16_t Yognum);
  // The karana, 1 to 60, reckoned in whole minutes of arc: "Bava", and "BAVA" by its number.
  ElementResult GetKaran(double Mpos, double Spos, bool blnretNum);
  std::string getKaranName(std::int16_t KaranNum);

  // When the element that holds a moment ends, to the second, as "18/November/1990 17:3:49" with
  // the user's month name: by the clock, place and war-time correction of the current record, with
  // the session's default ayanamsa and node. Years 0 to 99 are those of a text's two figures.
  // InvalidCall for a month without a name and for an end after the year 9999, TypeMismatch for any
  // other moment that does not exist; the errors of GenHoro.
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

  // The Sun's course, its half of the zodiac ("UTTAR" or "DAKSHIN") and its season, by the tropical
  // longitude that both arguments make together, degrees.
  std::string getAyan(double SUNpos, double Ayanamsapos);
  std::string getGol(double SUNpos, double Ayanamsapos);
  std::string getRitu(double SUNpos, double Ayanamsapos);

  // The code of the lunar month that a solar month, 1 to 12, stands for: the number of its
  // nakshatra. Subscript for any other.
  std::int16_t MASatBirth(std::int16_t month);
  // The lunar month of a code, "CHAITRA"; "" for any other code.
  std::string Mas(std::int16_t code);

  // The lunar month of a date: that of its solar month, or the next one where the first day of the
  // month with tithi 16 or 17, at that time of day, is the date or a later one. Place texts are
  // those of GenHoro, whose errors come through; the session gives ayanamsa and node alone.
  std::string GetMas(std::int16_t day, std::int16_t month, std::int16_t year, std::int16_t hour,
                     std::int16_t minute, std::int16_t second, std::string_view Longitude,
                     std::string_view Lattitude, std::string_view zone,
                     const foundation::SessionTable& session);
  // The Shaka and the Vikram year, four digits each. The new year is the first date from 2 April on
  // whose lunar day is 1 at that time of day, or 1 May; its year is read as that of the endings.
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
  // By its nakshatra, 1 to 27, "" for 0: animal, temperament, pulse, union. Subscript outside.
  std::string getYoni(std::int16_t Nak);
  std::string getGan(std::int16_t Nak);
  std::string getNadi(std::int16_t Nak);
  std::string getYunja(std::int16_t Nak);
  // By nakshatra and quarter: the syllable with which a name begins, "Choo (Chooha)", its class,
  // "SIMHA", and the class with a "_" before it. "" where there is none.
  std::string getNaamAkshar(std::int16_t Nak, std::int16_t Quarter);
  std::string getNaamAksharVarga(std::int16_t Nak, std::int16_t Quarter);
  std::string getVarga(std::int16_t Nak, std::int16_t Quarter);
  // "Gold", "Silver", "Copper" or "Iron", by a sign counted from the Moon's and by a nakshatra; ""
  // for any other number.
  std::string GetRashiPaya(std::int16_t sign);
  std::string GetNakPaya(std::int16_t Nak);
  // What is to be shunned under a Moon sign, 1 to 12, and 0 for 12; in English, whatever the
  // language. Subscript outside.
  const GhatRow& getGhat(std::int16_t sign, std::int32_t language);
};

}  // namespace dayperiods
