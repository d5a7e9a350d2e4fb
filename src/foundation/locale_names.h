// The names of months and weekdays in the user's own locale.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace foundation {

struct LocaleNames {
  std::array<std::string, 12> months;             // January first, full names, UTF-8
  std::array<std::string, 7> weekdays;            // Sunday first, full names, UTF-8
  std::array<std::string, 7> shortWeekdays = {};  // Sunday first; empty: the full names cut short
  int firstWeekday = 1;                           // with which the week begins, 1 = Sunday
  std::array<std::string, 12> datedMonths = {};   // as a date inflects them; empty: as `months`
};

const LocaleNames& EnglishNames();

// The user's names. English until the host has put the user's locale here; the process locale is
// never asked.
const LocaleNames& UserNames();
void SetUserNames(LocaleNames names);

// The full name of month 1 to 12. InvalidCall for any other.
const std::string& MonthName(int month);

struct MonthMatch {
  int month = 0;           // 1 to 12; 0 is none
  std::size_t length = 0;  // bytes of the text that are the name
};

// The longest full month name, the user's or the English one in any case, that the text begins
// with: "Tháng 11" before "Tháng 1", "11月" before a number 11.
MonthMatch MonthAtStart(std::string_view text);

// The month, 1 to 12, that a text of two characters or more abbreviates: the only one whose name,
// plain or as a date inflects it, begins that way in any case. English names count if none of the
// user's does. 0 if there is no such month, or more than one.
int MonthByBeginning(std::string_view text);

// The full name of weekday 1 (Sunday) to 7 (Saturday). InvalidCall for any other.
const std::string& WeekdayName(int weekday);

// The same in short, as a table's head has it.
std::string ShortWeekdayName(int weekday);

// The name of day 1 to 7 of the user's week, whichever weekday that begins with. InvalidCall for
// any other.
const std::string& WeekdayNameOfWeek(int day);

}  // namespace foundation
