// The names of months and weekdays in the user's own locale.
#pragma once

#include <array>
#include <string>

namespace foundation {

struct LocaleNames {
  std::array<std::string, 12> months;   // January first, full names, UTF-8
  std::array<std::string, 7> weekdays;  // Sunday first, full names, UTF-8
};

const LocaleNames& EnglishNames();

// The user's names. English until the host has put the user's locale here; the process locale is
// never asked.
const LocaleNames& UserNames();
void SetUserNames(LocaleNames names);

// The full name of month 1 to 12. InvalidCall for any other.
const std::string& MonthName(int month);

// The full name of weekday 1 (Sunday) to 7 (Saturday). InvalidCall for any other.
const std::string& WeekdayName(int weekday);

}  // namespace foundation
