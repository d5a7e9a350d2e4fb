#include "words/sun_text.h"

#include "foundation/numbers.h"

namespace words {
namespace {

std::string Days(int count) {
  return foundation::NumberText(count) + (count == 1 ? " day" : " days");
}

}  // namespace

std::string_view NoSunText(day::Sun::State state) {
  switch (state) {
    case day::Sun::State::PolarDay:
      return "The sun does not set";
    case day::Sun::State::PolarNight:
      return "The sun does not rise";
    default:
      return "";
  }
}

std::string NoSunDaysText(int polarDays, int polarNights) {
  std::string text;
  if (polarDays > 0) text = "No sunset on " + Days(polarDays);
  if (polarNights == 0) return text;
  return (text.empty() ? "No" : text + ", no") + " sunrise on " + Days(polarNights);
}

}  // namespace words
