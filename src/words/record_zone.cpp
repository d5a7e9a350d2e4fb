#include "words/record_zone.h"

#include "words/clock_text.h"

namespace words {

void SetRecordZone(foundation::SessionRecord& record, const clocks::ZoneClock& clock,
                   std::chrono::local_days date) {
  const auto east = clock.OffsetAt(clock.NoonOf(date)).east;
  record.ZoneMeridianText = MeridianText(east);
  record.ZoneTimeText = ZoneText(east);
}

}  // namespace words
