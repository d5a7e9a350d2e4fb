// Writes dates and times as text and reads them back.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "foundation/calendar.h"

namespace foundation {

// "5 March 2011" in the user's locale, separated by `between`. InvalidCall for a month outside 1 to
// 12.
std::string DayMonthYear(double day, int month, double year, char between);

// "6:5:9", without leading zeros.
std::string HourMinuteSecond(double hour, double minute, double second);

// A date ("5-March-2011", "5/3/2011": day, month, year), a time ("6:12", "6:12:9", "12:00 PM"),
// or a date, a blank and a time. "-", "/" or blanks separate the fields of a date; a month is a
// number, or a full name in the user's locale or in English, ignoring case. Years 0 to 29 mean 2000
// to 2029, and 30 to 99 mean 1930 to 1999. Nothing for any other text, such as "24:00", or
// if the day does not exist.
std::optional<DateTime> TryReadDateTime(std::string_view text);

// The same; TypeMismatch instead of nothing.
DateTime ReadDateTime(std::string_view text);

// A time without a date, as a fraction of a day.
std::optional<DateTime> TryReadTime(std::string_view text);

// Reads a date in the looser form that users type: full stops also separate the fields
// ("5.3.2011"), and MonthByBeginning resolves abbreviated months ("5 Mar 2011", "5. Mar. 2011").
std::optional<DateTime> TryReadTypedDate(std::string_view text);

// Reads a time in the looser form that users type, which needs no colon: "0605 pm", "1805".
std::optional<DateTime> TryReadTypedTime(std::string_view text);

// "06:05 PM", in English in every locale, so that any keyboard can type it. Drops the seconds.
std::string HourMinuteHalf(DateTime time);

}  // namespace foundation
