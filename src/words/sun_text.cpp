#include "words/sun_text.h"

namespace words {

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

}  // namespace words
