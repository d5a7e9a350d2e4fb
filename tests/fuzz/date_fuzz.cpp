// Any text as a date, a time and a number of hours, with further lines as the user's names of
// months: what is read is written back as the same moment.

#include <cmath>

#include "foundation/date_text.h"
#include "foundation/locale_names.h"
#include "foundation/numbers.h"
#include "foundation/zzVorin.h"
#include "fuzz/fuzz.h"

namespace {

void Date(std::string_view text, bool english) {
  const auto moment = foundation::TryReadDateTime(text);
  if (!moment) return;
  const foundation::DateTimeFields at = foundation::FieldsOf(*moment);
  const std::string written =
      foundation::DateTimeText(at.day, at.month, at.year, at.hour, at.minute, at.second);
  const auto again = foundation::TryReadDateTime(written);
  // Names of one's own may be no names at all.
  fuzz::Require(!english || (again && foundation::FieldsOf(*again) == at));
}

void Time(std::string_view text) {
  fuzz::Try([&] { foundation::TimeTextToDecimal(text); });
  fuzz::Try([&] { foundation::PadDigits(text, 2); });
  const double number = foundation::LeadingNumber(text);
  fuzz::Try([&] { foundation::PadDigits(number, 2); });
  fuzz::Try([&] { foundation::DecimalToTimeText(number, 9.5); });
  fuzz::Try([&] {
    const double part = foundation::FracPart(number);
    fuzz::Require(part >= 0 && part <= 1);
  });
  const std::string time = foundation::DecimalToTimeText(number);
  fuzz::Require(foundation::TryReadTime(time).has_value());
}

}  // namespace

void fuzz::Run(const std::string& bytes) {
  std::string_view rest = bytes;
  const std::string_view text = foundation::TakeLine(rest);
  foundation::LocaleNames names = foundation::EnglishNames();
  const bool english = rest.empty();
  for (std::string& month : names.months) {
    if (!rest.empty()) month = foundation::TakeLine(rest);
  }
  foundation::SetUserNames(names);
  fuzz::Try([&] { Date(text, english); });
  Time(text);
}
