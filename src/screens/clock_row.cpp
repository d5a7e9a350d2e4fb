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

struct Note {
  const char* caption;
  const char* sentence;  // for the tool tip and assistive programs
};

Note NoteOf(Source source) {
  switch (source) {
    case Source::Neighbour:
      return {"Clock nearby", "The clock of the nearest place that is known"};
    case Source::Country:
      return {"Country's clock", "The country's clock, without daylight saving"};
    default:
      return {"Clock", ""};
  }
}

}  // namespace

void ShowCountrysZone(frmMain& labels) {
  ShowRow(false, labels);
  labels.ThereCaption.visible = false;
}

void ShowOwnClock(const atlas::PlaceClock& clock, clocks::Instant now,
                  std::chrono::seconds machineOffset, frmMain& labels) {
  const clocks::Offset offset = clock.clock.OffsetAt(now);
  const auto [caption, sentence] = NoteOf(clock.source);
  ShowRow(true, labels);
  labels.ClockCaption.caption = caption;
  labels.ClockCaption.spokenName = labels.ClockCaption.toolTip = sentence;
  labels.lblClock.caption = words::ClockName(offset);
  labels.lblClock.toolTip = clock.zone;
  labels.ThereCaption.visible = offset.east != machineOffset;
}

}  // namespace screens
