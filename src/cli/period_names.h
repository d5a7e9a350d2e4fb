// Names of the three periods.
#pragma once

#include "day/day.h"

namespace cli {

constexpr const char* PeriodName(day::PeriodKind kind) {
  switch (kind) {
    case day::PeriodKind::Durvela:
      return "Durvela";
    case day::PeriodKind::Gulik:
      return "Gulik";
    case day::PeriodKind::Yum:
      return "Yum";
  }
  return "";
}

}  // namespace cli
