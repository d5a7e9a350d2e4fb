// Where the dashboard says whose clock it shows: a row of its card, and a word beside the time.
#pragma once

#include <chrono>
#include <string_view>

#include "atlas/place_clock.h"

namespace screens {

class frmMain;

// Why a clock may not be the place's: that it is the nearest place's or the country's. Empty if it
// is the place's or was chosen.
std::string_view ClockNote(atlas::PlaceClock::Source source);

// The country's two zone texts; nothing beside the time.
void ShowCountrysZone(frmMain& labels);

// The name of the place's own clock at an instant, with a note if it is not known to be the
// place's. "there" stands beside the time if the machine's clock shows another.
void ShowOwnClock(const atlas::PlaceClock& clock, clocks::Instant now,
                  std::chrono::seconds machineOffset, frmMain& labels);

}  // namespace screens
