// Days from the C library's calendar, which the program does not use.
#pragma once

#include <ctime>

#include "support/test.h"

namespace nightly {

struct Day {
  int year, month, day;
  int weekday;  // 1 = Sunday
  int serial;   // days since 30 December 1899
  bool isLastOfMonth;
};

// Stops at the first failure.
template <typename Check>
void EachDay(int firstYear, int lastYear, Check check) {
  std::tm at = {};
  at.tm_year = firstYear - 1900;
  for (at.tm_mday = 1; !testing::Test::HasFailure(); ++at.tm_mday) {
    const auto serial = static_cast<int>(timegm(&at) / 86400 + 25569);  // 25569 is 1 January 1970
    if (at.tm_year + 1900 > lastYear) return;
    SCOPED_TRACE(std::asctime(&at));
    std::tm next = at;
    ++next.tm_mday;
    timegm(&next);
    check(Day{at.tm_year + 1900, at.tm_mon + 1, at.tm_mday, at.tm_wday + 1, serial,
              next.tm_mday == 1});
  }
}

}  // namespace nightly
