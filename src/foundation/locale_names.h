// The names of months and weekdays in the user's locale.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace foundation {

struct LocaleNames {
  std::array<std::string, 12> months;             // January first, full names, UTF-8
  std::array<std::string, 7> weekdays;            // Sunday first, full names, UTF-8
  std::array<std::string, 7> shortWeekdays = {};  // Sunday first; if empty, cut from the full names
  int firstWeekday = 1;                           // 1 = Sunday
  std::array<std::string, 12> datedMonths = {};   // as inflected in dates; if empty, as `months`
};

const LocaleNames& EnglishNames();

// English until the host sets the names of the user's locale. The process locale is never used.
const LocaleNames& UserNames();
void SetUserNames(LocaleNames names);

// The full name of month 1 to 12. InvalidCall for any other.
const std::string& MonthName(int month);

struct MonthMatch {
  int month = 0;           // 1 to 12; 0 is none
  std::size_t length = 0;  // bytes of the text that are the name
};

// The longest full month name, the user's or English, that the text begins with, ignoring case:
// "Tháng 11" rather than "Tháng 1", "11月" rather than the number 11.
MonthMatch MonthAtStart(std::string_view text);

// The month, 1 to 12, that a text of at least two characters abbreviates, ignoring case: the only
// one whose name, plain or as inflected in dates, begins with the text. Tries English names if none
// of the user's match. 0 if no month or several match.
int MonthByBeginning(std::string_view text);

// The full name of weekday 1 (Sunday) to 7 (Saturday). InvalidCall for any other.
const std::string& WeekdayName(int weekday);

// Its short form, for table headings. InvalidCall likewise.
std::string ShortWeekdayName(int weekday);

// The name of day 1 to 7 of the user's week, which begins with `firstWeekday`. InvalidCall for any
// other.
const std::string& WeekdayNameOfWeek(int day);

}  // namespace foundation
