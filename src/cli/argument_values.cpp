#include "cli/argument_values.h"

#include <cmath>
#include <optional>

#include "cli/failure.h"
#include "foundation/numbers.h"
#include "foundation/text.h"

namespace cli {
namespace {

bool AreDigits(std::string_view text) {
  return !text.empty() && text.find_first_not_of("0123456789") == std::string_view::npos;
}

// Sign, digits and a point: no exponent, no "nan".
std::optional<double> PlainDecimal(std::string_view text) {
  std::string_view digits = text;
  if (digits.starts_with('-') || digits.starts_with('+')) digits.remove_prefix(1);
  const auto parts = foundation::Split(digits, '.');
  const bool isDecimal =
      parts.size() == 2 && (AreDigits(parts[0]) || parts[0].empty()) && AreDigits(parts[1]);
  if (!isDecimal && !AreDigits(digits)) return std::nullopt;
  return foundation::WholeNumber(text);
}

// Of digits, few enough to fit.
int Whole(std::string_view digits) {
  return foundation::RoundToInt32(foundation::LeadingNumber(digits));
}

}  // namespace

double ReadDegrees(const std::string& option, const std::string& text, double most) {
  constexpr std::size_t kLongest = 40;
  const auto number = text.size() > kLongest ? std::nullopt : PlainDecimal(text);
  if (!number || std::abs(*number) > most) {
    const std::string limit = foundation::NumberText(most);
    throw Failure(Status::InvalidArguments,
                  option + " " + text + " is no number of degrees from -" + limit + " to " + limit);
  }
  return *number + 0.0;  // without the sign of a zero
}

std::chrono::local_days ReadDate(const std::string& option, const std::string& text) {
  const auto parts = foundation::Split(text, '-');
  constexpr std::size_t kMostDigits = 8;
  const bool isDate = parts.size() == 3 && AreDigits(parts[0]) && parts[0].size() >= 4 &&
                      parts[0].size() <= kMostDigits && AreDigits(parts[1]) &&
                      parts[1].size() == 2 && AreDigits(parts[2]) && parts[2].size() == 2;
  if (!isDate) {
    throw Failure(Status::InvalidArguments, option + " " + text + " is no date YYYY-MM-DD");
  }
  const int year = Whole(parts[0]);
  if (year < 100 || year > 9999) {
    throw Failure(Status::Impossible, option + " " + text + " is outside the years 100 to 9999");
  }
  const std::chrono::year_month_day date{std::chrono::year(year),
                                         std::chrono::month(static_cast<unsigned>(Whole(parts[1]))),
                                         std::chrono::day(static_cast<unsigned>(Whole(parts[2])))};
  if (!date.ok()) {
    throw Failure(Status::InvalidArguments, option + " " + text + " does not exist");
  }
  return std::chrono::local_days(date);
}

}  // namespace cli
