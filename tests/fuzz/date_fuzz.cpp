// Arbitrary text as a date, a time and hours, with further lines as the user's month names.
// Whatever is read must be written back as the same moment.

#include "foundation/date_text.h"
#include "foundation/locale_names.h"
#include "foundation/numbers.h"
#include "foundation/time_text.h"
#include "fuzz/fuzz.h"

void fuzz::Run(const std::string& bytes) {
  std::string_view rest = bytes;
  const std::string_view text = foundation::TakeLine(rest);
  foundation::LocaleNames names = foundation::EnglishNames();
  const bool english = rest.empty();
  for (std::string& month : names.months) {
    if (!rest.empty()) month = foundation::TakeLine(rest);
  }
  foundation::SetUserNames(names);
  Try([&] {
    const auto at = foundation::FieldsOf(foundation::ReadDateTime(text));
    const auto again = foundation::TryReadDateTime(
        foundation::DateTimeText(at.day, at.month, at.year, at.hour, at.minute, at.second));
    // Arbitrary names need not be readable.
    Require(!english || (again && foundation::FieldsOf(*again) == at));
  });
  const auto date = foundation::TryReadTypedDate(text);
  Require(!date || *date == foundation::FloorToInt32(*date));

  const double number = foundation::LeadingNumber(text);
  Try([&] { foundation::TimeTextToDecimal(text); });
  Try([&] { foundation::PadDigits(text, 2) + foundation::PadDigits(number, 2); });
  Try([&] { foundation::DecimalToTimeText(number, 9.5); });
  Require(foundation::TryReadTime(foundation::DecimalToTimeText(number)).has_value());
  const double part = foundation::FracPart(number);
  Require(part >= 0 && part <= 1);
}
