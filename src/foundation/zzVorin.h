// Times, dates and zones as the texts that calculations pass on and users read.
#pragma once

#include <string>
#include <string_view>

namespace foundation {

// x less its floor, 0 to below 1. Overflow where the floor does not fit 32 bits.
double FracPart(double x);

// The value as text, filled with "0" from the left up to `width` and then cut to its first `width`
// characters: 7 at width 2 is "07", 123 is "12". InvalidCall for a negative width.
std::string PadDigits(std::string_view value, int width);
std::string PadDigits(double value, int width);

// Decimal hours as "hh:mm:ss", seconds rounded, or "hh:mm" with noSeconds. Hours are brought into 0
// to `limit`. At limit 24 the result is a time of day (59.6 seconds carry, also where they are not
// shown; 24 is "00:00:00"); at any other limit it is a duration whose fields do not carry.
// InvalidCall where hours lie outside a limit that is not above 0, and for no number.
std::string DecimalToTimeText(double hours, double limit = 24, bool noSeconds = false);

// The fields of "h:m:s"; an empty text or 0 where a field is missing or fails.
std::string TimeTextHour(std::string_view text);
std::string TimeTextMinute(std::string_view text);
double TimeTextSecond(std::string_view text);

// "h:m:s" in decimal hours; a missing field counts as 0.
double TimeTextToDecimal(std::string_view text);

// "5-March-2011 6:12:9" with the user's month name. Seconds, minutes and hours carry once; a day
// or month out of range rolls over through the calendar.
std::string DateTimeText(double day, double month, double year, double hour, double minutes,
                         double seconds);

}  // namespace foundation
