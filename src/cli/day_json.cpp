#include "cli/day_json.h"

#include <cmath>
#include <nlohmann/json.hpp>
#include <optional>

#include "cli/period_names.h"
#include "words/clock_text.h"

namespace cli {
namespace {

using Json = nlohmann::ordered_json;

// To six decimals, a tenth of a metre.
double Rounded(double degrees) {
  constexpr double kUnits = 1e6;
  return std::round(degrees * kUnits) / kUnits + 0.0;
}

Json PlaceJson(const atlas::Place& place) {
  return {{"name", place.name},
          {"state", place.state},
          {"country", place.country},
          {"latitude", Rounded(place.latitude)},
          {"longitude", Rounded(place.longitude)},
          {"zone", place.zone.empty() ? Json() : Json(place.zone)}};
}

Json MomentJson(const clocks::ZoneClock& clock, std::optional<clocks::Instant> instant) {
  if (!instant) return nullptr;
  const std::string text = words::MomentText(clock, *instant);
  constexpr std::string_view kForm = "2026-11-08T06:38:00+05:30";
  return text.size() == kForm.size() ? Json(text) : Json();
}

const char* StateName(day::Sun::State state) {
  switch (state) {
    case day::Sun::State::Rises:
      return "rises";
    case day::Sun::State::PolarDay:
      return "polarDay";
    case day::Sun::State::PolarNight:
      return "polarNight";
  }
  return "";
}

}  // namespace

std::string DayJson(const atlas::Place& place, const clocks::ZoneClock& clock,
                    const day::Day& value) {
  Json periods = Json::array();
  for (const day::Period& period : value.periods) {
    periods.push_back({{"name", PeriodName(period.kind)},
                       {"part", period.part},
                       {"begin", MomentJson(clock, period.begin)},
                       {"end", MomentJson(clock, period.end)}});
  }
  const Json json = {{"place", PlaceJson(place)},
                     {"date", words::DateText(value.date)},
                     {"weekday", value.weekday},
                     {"sun",
                      {{"state", StateName(value.sun.state)},
                       {"rise", MomentJson(clock, value.sun.rise)},
                       {"set", MomentJson(clock, value.sun.set)},
                       {"nextRise", MomentJson(clock, value.sun.nextRise)}}},
                     {"periods", std::move(periods)}};
  // Bytes that are no UTF-8, as an argument may have, are replaced.
  return json.dump(-1, ' ', false, Json::error_handler_t::replace);
}

}  // namespace cli
