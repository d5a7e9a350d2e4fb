#include "engine/sub_lords.h"

#include <cmath>

#include "foundation/checked.h"
#include "foundation/numbers.h"
#include "foundation/text.h"

namespace engine {

constexpr foundation::BoundedArray<StarRow, 0, 26> StarTable{{{
    {"Ashvani", "Ketu"},       {"Bharni", "Venus"},       {"Kartika", "Sun"},
    {"Rohini", "Moon"},        {"Mrigsira", "Mars"},      {"Ardra", "Rahu"},
    {"Punarvasu", "Jupiter"},  {"Pusya", "Saturn"},       {"Aslesha", "Mercury"},
    {"Magha", "Ketu"},         {"P.Phalguni", "Venus"},   {"U.Phalguni", "Sun"},
    {"Hasta", "Moon"},         {"Chitra", "Mars"},        {"Swati", "Rahu"},
    {"Vishakha", "Jupiter"},   {"Anuradha", "Saturn"},    {"Jyeshtha", "Mercury"},
    {"Moola", "Ketu"},         {"P.Ashadha", "Venus"},    {"U.Ashadha", "Sun"},
    {"Sharvana", "Moon"},      {"Dhanishtha", "Mars"},    {"Satbisa", "Rahu"},
    {"P.Bhadrapa", "Jupiter"}, {"U.Bhadrapad", "Saturn"}, {"Revti", "Mercury"},
}}};

constexpr foundation::BoundedArray<SubSpan, 0, 8> SubSpans{{{
    {"Sun", 2400},
    {"Mars", 2800},
    {"Ketu", 2800},
    {"Moon", 4000},
    {"Jupiter", 6400},
    {"Mercury", 6800},
    {"Rahu", 7200},
    {"Saturn", 7600},
    {"Venus", 8000},
}}};

namespace {

constexpr std::int32_t kSignSpan = 108000;
constexpr int kLords = 9;

// The Vimshottari periods in their order: 120 years in all.
constexpr struct {
  const char* Code;
  int Years;
} kPeriods[kLords] = {{"KET", 7},  {"VEN", 20}, {"SUN", 6},  {"MOO", 10}, {"MAR", 7},
                      {"RAH", 18}, {"JUP", 16}, {"SAT", 19}, {"MER", 17}};

// Rows printed differently from the running sum: start from 0 Aries, text, start in the sign.
constexpr struct {
  int Row;
  const char* Start;
  const char* Text;
  const char* InSign;
} kPrinted[] = {
    {19, "10920", "3 1 60", "10920"},
    {360, "216000", "30 0 0", "108000"},
    {361, "216962", "0 16 2", "962"},
};

std::string DegreesText(int seconds) {
  using foundation::NumberText;
  return NumberText(seconds / 3600) + " " + NumberText(seconds / 60 % 60) + " " +
         NumberText(seconds % 60);
}

SubSubRows FillSubSubTable() {
  using foundation::NumberText;
  SubSubRows rows{};  // clang 14 crashes on "rows;"
  int row = 0;
  int thirds = 0;  // of a second: a sub-sub span is 10/3 seconds times both lords' years
  for (int star = 0; star < kLords; ++star) {
    for (int sub = star; sub < star + kLords; ++sub) {
      for (int subSub = sub; subSub < sub + kLords; ++subSub) {
        const auto& subLord = kPeriods[sub % kLords];
        const auto& subSubLord = kPeriods[subSub % kLords];
        const int start = (thirds + 1) / 3;
        const int inSign = start % kSignSpan;
        rows[row] = {NumberText(1402 + row), kPeriods[star].Code, subLord.Code,
                     subSubLord.Code,        NumberText(start),   DegreesText(inSign),
                     NumberText(inSign)};
        ++row;
        thirds += 10 * subLord.Years * subSubLord.Years;
      }
    }
  }
  for (const auto& printed : kPrinted) {
    rows[printed.Row][4] = printed.Start;
    rows[printed.Row][5] = printed.Text;
    rows[printed.Row][6] = printed.InSign;
  }
  return rows;
}

int RowOf(std::string_view lord) {
  const std::string wanted = foundation::UpperAscii(lord);
  int row = 0;
  while (foundation::UpperAscii(SubSpans[row].Lord) != wanted) ++row;
  return row;
}

}  // namespace

const SubSubRows& SubSubTable() {
  static const SubSubRows rows = FillSubSubTable();
  return rows;
}

std::string_view StarLordOf(double seconds, foundation::MessageBoxes& boxes) {
  try {
    return StarTable[foundation::FloorToInt32(seconds / kStarSpan)].Lord;
  } catch (const foundation::Error& error) {
    boxes.Show(error.what(), foundation::MessageIcon::None);
    return {};
  }
}

std::string_view SubLordOf(double seconds, foundation::MessageBoxes& boxes) {
  const double stars = foundation::Finite(seconds / kStarSpan);
  const double offset = (stars - std::floor(stars)) * kStarSpan;
  int row = RowOf(StarLordOf(seconds, boxes));
  double end = SubSpans[row].Span;
  while (end <= offset) {
    row = (row + 1) % kLords;
    end += SubSpans[row].Span;
  }
  return SubSpans[row].Lord;
}

std::string_view SubSubLordOf(double seconds, foundation::MessageBoxes& boxes) {
  constexpr int kLast = 728;
  const SubSubRows& rows = SubSubTable();
  const std::string_view lord = StarLordOf(seconds, boxes);
  if (lord.empty()) return rows[kLast][3];
  const std::string star = foundation::UpperAscii(lord.substr(0, 3));
  double place = seconds;
  while (place > kSignSpan) place -= kSignSpan;
  for (int i = 1; i <= kLast; ++i) {
    if (rows[i][1] == star && foundation::LeadingNumber(rows[i][6]) > place) return rows[i - 1][3];
  }
  return rows[kLast][3];
}

}  // namespace engine
