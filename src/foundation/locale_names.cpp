#include "foundation/locale_names.h"

#include <algorithm>
#include <bit>
#include <bitset>
#include <utility>

#include "foundation/error.h"
#include "foundation/letters.h"
#include "foundation/text.h"

namespace foundation {
namespace {

constexpr std::size_t kShortestBeginning = 2;  // characters

using Months = std::array<std::string, 12>;

Months Folded(const Months& months) {
  Months folded;
  std::transform(months.begin(), months.end(), folded.begin(), FoldCase);
  return folded;
}

struct Names {
  LocaleNames user = EnglishNames();
  Months foldedUser = Folded(user.months);
  Months foldedDated = {};
  const Months foldedEnglish = foldedUser;
};

Names& TheNames() {
  static Names names;
  return names;
}

// Bit 0 is January.
std::bitset<12> BeginningWith(std::string_view folded, const Months& months) {
  std::bitset<12> found;
  for (std::size_t i = 0; i < months.size(); ++i) found[i] = months[i].starts_with(folded);
  return found;
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
  return TheNames().user;
}

void SetUserNames(LocaleNames names) {
  TheNames().foldedUser = Folded(names.months);
  TheNames().foldedDated = Folded(names.datedMonths);
  TheNames().user = std::move(names);
}

MonthMatch MonthAtStart(std::string_view text) {
  const std::string folded = FoldCase(text);  // keeps the length of every character
  const Names& names = TheNames();
  MonthMatch longest;
  for (const Months* months : {&names.foldedUser, &names.foldedEnglish}) {
    for (std::size_t i = 0; i < months->size(); ++i) {
      const std::string& name = (*months)[i];
      if (name.size() > longest.length && folded.starts_with(name)) {
        longest = {static_cast<int>(i) + 1, name.size()};
      }
    }
  }
  return longest;
}

int MonthByBeginning(std::string_view text) {
  if (Characters(text).size() < kShortestBeginning) return 0;
  const std::string folded = FoldCase(text);
  const Names& names = TheNames();
  auto found = BeginningWith(folded, names.foldedUser) | BeginningWith(folded, names.foldedDated);
  if (found.none()) found = BeginningWith(folded, names.foldedEnglish);
  return found.count() == 1 ? std::countr_zero(found.to_ulong()) + 1 : 0;
}

const std::string& MonthName(int month) {
  return NameAt(UserNames().months, month);
}

const std::string& WeekdayName(int weekday) {
  return NameAt(UserNames().weekdays, weekday);
}

std::string ShortWeekdayName(int weekday) {
  const std::string& full = WeekdayName(weekday);
  const std::string& name = UserNames().shortWeekdays[static_cast<std::size_t>(weekday - 1)];
  return name.empty() ? std::string(FirstLetters(full, 3)) : name;
}

const std::string& WeekdayNameOfWeek(int day) {
  if (day < 1 || day > 7) throw Error(ErrorKind::InvalidCall);
  return WeekdayName((UserNames().firstWeekday - 1 + day - 1) % 7 + 1);
}

}  // namespace foundation
