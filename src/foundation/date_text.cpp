#include "foundation/date_text.h"

#include <algorithm>

#include "foundation/error.h"
#include "foundation/locale_names.h"
#include "foundation/numbers.h"
#include "foundation/text.h"
#include "foundation/time_text.h"

namespace foundation {
namespace {

// Reads a text piece by piece from the left.
class Reader {
 public:
  explicit Reader(std::string_view text) : rest_(text) { SkipBlanks(); }

  bool AtEnd() const { return rest_.empty(); }
  std::string_view Rest() const { return rest_; }

  void SkipBlanks() {
    while (!rest_.empty() && rest_.front() == ' ') rest_.remove_prefix(1);
  }

  bool Take(char c) {
    if (rest_.empty() || rest_.front() != c) return false;
    rest_.remove_prefix(1);
    return true;
  }

  // The separator of two fields of a date: "-" or "/", with or without blanks around it, or blanks.
  bool TakeDateSeparator() {
    const std::size_t before = rest_.size();
    SkipBlanks();
    if (Take('-') || Take('/')) SkipBlanks();
    return rest_.size() < before;
  }

  // An integer of one to four digits.
  std::optional<int> TakeNumber() {
    int number = 0;
    std::size_t digits = 0;
    while (digits < rest_.size() && rest_[digits] >= '0' && rest_[digits] <= '9') {
      if (digits == 4) return std::nullopt;
      number = number * 10 + (rest_[digits] - '0');
      ++digits;
    }
    if (digits == 0) return std::nullopt;
    rest_.remove_prefix(digits);
    return number;
  }

  // Tries a name first, since a name may begin with a number.
  std::optional<int> TakeMonth() {
    const MonthMatch name = MonthAtStart(rest_);
    if (name.month == 0) return TakeNumber();
    rest_.remove_prefix(name.length);
    return name.month;
  }

  // Returns the hours to add for "AM" or "PM", ignoring case, to an hour counted from 0.
  std::optional<int> TakeHalfOfDay() {
    const std::string half = FoldCase(rest_.substr(0, 2));
    if (half != "am" && half != "pm") return std::nullopt;
    rest_.remove_prefix(2);
    return half == "pm" ? 12 : 0;
  }

 private:
  std::string_view rest_;
};

std::optional<DateTime> TakeDate(Reader& reader) {
  const auto day = reader.TakeNumber();
  if (!day || !reader.TakeDateSeparator()) return std::nullopt;
  const auto month = reader.TakeMonth();
  if (!month || !reader.TakeDateSeparator()) return std::nullopt;
  auto year = reader.TakeNumber();
  if (!year) return std::nullopt;
  if (*year < 100) *year += *year < 30 ? 2000 : 1900;
  if (*month < 1 || *month > 12 || *day < 1 || *day > 31) return std::nullopt;

  const DateTime date = DateFromParts(*year, *month, *day);
  if (FieldsOf(date).day != *day) return std::nullopt;  // a day 31 that rolled over
  return date;
}

std::optional<DateTime> TakeTime(Reader& reader) {
  auto hour = reader.TakeNumber();
  if (!hour || !reader.Take(':')) return std::nullopt;
  const auto minute = reader.TakeNumber();
  std::optional<int> second = 0;
  if (reader.Take(':')) second = reader.TakeNumber();
  if (!minute || !second) return std::nullopt;
  reader.SkipBlanks();
  if (const auto half = reader.TakeHalfOfDay()) {
    if (*hour < 1 || *hour > 12) return std::nullopt;
    hour = *hour % 12 + *half;
  }
  if (*hour > 23 || *minute > 59 || *second > 59) return std::nullopt;
  return TimeFromParts(*hour, *minute, *second);
}

// A time that is the rest of the text.
std::optional<DateTime> TakeLastTime(Reader& reader) {
  const auto time = TakeTime(reader);
  reader.SkipBlanks();
  return reader.AtEnd() ? time : std::nullopt;
}

}  // namespace

std::string DayMonthYear(double day, int month, double year, char between) {
  return NumberText(day) + between + MonthName(month) + between + NumberText(year);
}

std::string HourMinuteSecond(double hour, double minute, double second) {
  return NumberText(hour) + ":" + NumberText(minute) + ":" + NumberText(second);
}

std::string HourMinuteHalf(DateTime time) {
  const DateTimeFields at = FieldsOf(time);
  const int hour = at.hour % 12 == 0 ? 12 : at.hour % 12;
  return PadDigits(hour, 2) + ":" + PadDigits(at.minute, 2) + (at.hour < 12 ? " AM" : " PM");
}

std::optional<DateTime> TryReadTime(std::string_view text) {
  Reader reader(text);
  return TakeLastTime(reader);
}

std::optional<DateTime> TryReadDateTime(std::string_view text) {
  if (const auto time = TryReadTime(text)) return time;
  Reader reader(text);
  const auto date = TakeDate(reader);
  const bool apart = reader.Rest().starts_with(' ');
  reader.SkipBlanks();
  if (!date || reader.AtEnd()) return date;
  if (!apart) return std::nullopt;
  const auto time = TakeLastTime(reader);
  if (!time) return std::nullopt;
  return *date + *time;
}

std::optional<DateTime> TryReadTypedDate(std::string_view text) {
  if (text.find(':') != text.npos) return std::nullopt;  // a time
  std::string date(text);
  std::ranges::replace(date, '.', ' ');
  if (const auto exact = TryReadDateTime(date)) return exact;
  Reader reader(date);
  if (!reader.TakeNumber() || !reader.TakeDateSeparator()) return std::nullopt;
  const std::string_view rest = reader.Rest();
  const std::string_view name = rest.substr(0, rest.find_first_of(" -/"));
  const int month = MonthByBeginning(name);
  if (month == 0) return std::nullopt;
  return TryReadDateTime(date.replace(date.size() - rest.size(), name.size(), NumberText(month)));
}

std::optional<DateTime> TryReadTypedTime(std::string_view text) {
  std::string time(text);
  const std::size_t digits = std::min(time.find_first_not_of("0123456789"), time.size());
  if (digits == 3 || digits == 4) time.insert(digits - 2, ":");
  return TryReadTime(time);
}

DateTime ReadDateTime(std::string_view text) {
  const auto moment = TryReadDateTime(text);
  if (!moment) throw Error(ErrorKind::TypeMismatch);
  return *moment;
}

}  // namespace foundation
