#include "screens/clock_row.h"

#include "screens/frmMain.h"
#include "words/clock_text.h"

namespace screens {
namespace {

using Source = atlas::PlaceClock::Source;

void ShowRow(bool own, frmMain& labels) {
  labels.lblZone.visible = labels.lblZoneTime.visible = !own;
  labels.ClockCaption.visible = labels.lblClock.visible = own;
}

std::string_view CaptionOf(Source source) {
  switch (source) {
    case Source::Neighbour:
      return "Clock nearby";
    case Source::Country:
      return "Country's clock";
    default:
      return "Clock";
  }
}

}  // namespace

std::string_view ClockNote(Source source) {
  switch (source) {
    case Source::Neighbour:
      return "The clock of the nearest place that is known";
    case Source::Country:
      return "The country's clock, without daylight saving";
    default:
      return "";
  }
}

void ShowCountrysZone(frmMain& labels) {
  ShowRow(false, labels);
  labels.ThereCaption.visible = false;
}

void ShowOwnClock(const atlas::PlaceClock& clock, clocks::Instant now,
                  std::chrono::seconds machineOffset, frmMain& labels) {
  const clocks::Offset offset = clock.clock.OffsetAt(now);
  ShowRow(true, labels);
  labels.ClockCaption.caption = CaptionOf(clock.source);
  labels.ClockCaption.spokenName = labels.ClockCaption.toolTip = ClockNote(clock.source);
  labels.lblClock.caption = words::ClockName(offset);
  labels.lblClock.toolTip = clock.zone;
  labels.ThereCaption.visible = offset.east != machineOffset;
}

}  // namespace screens
