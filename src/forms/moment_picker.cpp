#include "forms/moment_picker.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "foundation/date_text.h"

namespace forms {
namespace {

using foundation::DateFromParts;
using foundation::DateTime;
using foundation::DateTimeFields;

constexpr int kFirstYear = 100, kLastYear = 9999, kMonths = 12;
constexpr int kMinutesOfDay = 24 * 60;
constexpr int kMinutesOfPart[] = {60, 1, 12 * 60};

bool IsDate(const Control& picker) {
  return picker.kind == Kind::DatePicker;
}

std::string DateText(DateTime date) {
  const DateTimeFields at = foundation::FieldsOf(date);
  return foundation::DayMonthYear(at.day, at.month, at.year, '/');
}

std::optional<DateTime> Read(const Control& picker, std::string_view text) {
  if (IsDate(picker)) return foundation::TryReadTypedDate(text);
  const auto time = foundation::TryReadTypedTime(text);
  return time && foundation::FieldsOf(*time).second == 0 ? time : std::nullopt;
}

std::string RefusalOf(const Control& picker) {
  return (IsDate(picker) ? "Not a date. Type day, month and year (100 to 9999), as in " +
                               DateText(DateFromParts(2011, 3, 5))
                         : "Not a time. Type hours and minutes, as in 6:05 PM or 18:05") +
         ". Still in use: " + MomentText(picker);
}

void Change(Control& picker, DateTime moment, std::string refusal) {
  if (picker.moment == moment && picker.refusal == refusal) return;
  picker.moment = moment;
  picker.refusal = std::move(refusal);
  if (picker.onChange) picker.onChange();
}

DateTime SteppedDays(DateTime date, int days) {
  return std::clamp(date + days, DateFromParts(kFirstYear, 1, 1), DateFromParts(kLastYear, 12, 31));
}

DateTime SteppedMonths(DateTime date, int months) {
  const DateTimeFields at = foundation::FieldsOf(date);
  const int sinceYear0 = at.year * kMonths + at.month - 1 + months;
  const int year = sinceYear0 / kMonths, month = sinceYear0 % kMonths + 1;
  if (year < kFirstYear || year > kLastYear) return date;
  const DateTime lastOfMonth = DateFromParts(year, month + 1, 0);
  return std::min(DateFromParts(year, month, 1) + at.day - 1, lastOfMonth);
}

DateTime SteppedMinutes(DateTime time, int minutes) {
  const DateTimeFields at = foundation::FieldsOf(time);
  int minute = (at.hour * 60 + at.minute + minutes) % kMinutesOfDay;
  if (minute < 0) minute += kMinutesOfDay;
  return foundation::TimeFromParts(minute / 60, minute % 60, at.second);
}

}  // namespace

std::string MomentText(const Control& picker) {
  return IsDate(picker) ? DateText(picker.moment) : foundation::HourMinuteHalf(picker.moment);
}

void SetMoment(Control& picker, DateTime moment) {
  Change(picker, moment, {});
}

void TypeMoment(Control& picker, std::string_view text) {
  if (const auto moment = Read(picker, text)) {
    Change(picker, *moment, {});
  } else {
    Change(picker, picker.moment, RefusalOf(picker));
  }
}

void StepMoment(Control& picker, int part, int steps) {
  if (!IsDate(picker)) {
    SetMoment(picker, SteppedMinutes(picker.moment, steps * kMinutesOfPart[part]));
  } else if (part == 0) {
    SetMoment(picker, SteppedDays(picker.moment, steps));
  } else {
    SetMoment(picker, SteppedMonths(picker.moment, part == 1 ? steps : kMonths * steps));
  }
}

}  // namespace forms
