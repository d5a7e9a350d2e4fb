// The Gregorian calendar counted day by day, as one would on paper.
#pragma once

namespace nightly {

struct Day {
  int year, month, day;
  int weekday;  // 1 = Sunday
  int serial;   // days since 30 December 1899

  bool IsLastOfMonth() const { return day == DaysOfMonth(); }
  int DaysOfMonth() const {
    const bool leap = year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
    if (month == 2) return leap ? 29 : 28;
    return month == 4 || month == 6 || month == 9 || month == 11 ? 30 : 31;
  }

  void Advance() {
    ++serial;
    weekday = weekday % 7 + 1;
    if (!IsLastOfMonth()) {
      ++day;
      return;
    }
    day = 1;
    month = month % 12 + 1;
    if (month == 1) ++year;
  }
};

// Two known days to count from: a Friday, and a Monday.
inline constexpr Day kFirstOf100 = {100, 1, 1, 6, -657434};
inline constexpr Day kFirstOf1900 = {1900, 1, 1, 2, 2};

}  // namespace nightly
