#include "foundation/locale_names.h"

#include <utility>

#include "foundation/error.h"

namespace foundation {
namespace {

LocaleNames& Names() {
  static LocaleNames names = EnglishNames();
  return names;
}

template <std::size_t Count>
const std::string& NameAt(const std::array<std::string, Count>& names, int number) {
  if (number < 1 || number > static_cast<int>(Count)) throw Error(ErrorKind::InvalidCall);
  return names[static_cast<std::size_t>(number - 1)];
}

}  // namespace

const LocaleNames& EnglishNames() {
  static const LocaleNames kEnglish = {
      {"January", "February", "March", "April", "May", "June", "July", "August", "September",
       "October", "November", "December"},
      {"Sunday", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday"}};
  return kEnglish;
}

const LocaleNames& UserNames() {
  return Names();
}
void SetUserNames(LocaleNames names) {
  Names() = std::move(names);
}

const std::string& MonthName(int month) {
  return NameAt(UserNames().months, month);
}
const std::string& WeekdayName(int weekday) {
  return NameAt(UserNames().weekdays, weekday);
}

}  // namespace foundation
