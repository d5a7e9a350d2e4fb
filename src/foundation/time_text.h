// Times, dates and zones as text, for calculations and for display.
#pragma once

#include <string>
#include <string_view>

namespace foundation {

// x minus its floor, 0 to below 1. Overflow if the floor does not fit 32 bits.
double FracPart(double x);

// Pads a value with "0" from the left to `width`, then cuts it to its first `width` characters: 7
// at width 2 is "07", 123 is "12". InvalidCall for a negative width.
std::string PadDigits(std::string_view value, int width);
std::string PadDigits(double value, int width);

// Decimal hours in the whole seconds that DecimalToTimeText shows; half a second rounds up.
// Overflow for infinity, InvalidCall for NaN.
double SecondsOfHours(double hours);

// Decimal hours as "hh:mm:ss" with seconds rounded, or "hh:mm" with noSeconds. Hours are wrapped
// into 0 to `limit`. Limit 24 gives a time of day: 59.6 seconds carry, even if not shown, and 24 is
// "00:00:00". Any other limit gives a duration, whose fields do not carry. InvalidCall if hours lie
// outside a limit that is not positive, and for NaN.
std::string DecimalToTimeText(double hours, double limit = 24, bool noSeconds = false);

// Fields of "h:m:s"; a missing field is an empty text or 0.
std::string TimeTextHour(std::string_view text);
std::string TimeTextMinute(std::string_view text);
double TimeTextSecond(std::string_view text);

// "h:m:s" in decimal hours; missing fields count as 0.
double TimeTextToDecimal(std::string_view text);

// "5-March-2011 6:12:9" with the user's month name. Seconds, minutes and hours carry once; days and
// months out of range roll over through the calendar.
std::string DateTimeText(double day, double month, double year, double hour, double minutes,
                         double seconds);

}  // namespace foundation
