#include "day/kept_place.h"

#include <iterator>
#include <utility>

#include "atlas/place_texts.h"
#include "foundation/error.h"

namespace day {
namespace {

constexpr std::size_t kMostDays = 8;

}  // namespace

void KeptPlace::Set(foundation::Settings& settings, const atlas::PlaceTexts& texts) {
  auto chosenZone = atlas::ChosenZone(settings, texts);
  if (texts == texts_ && chosenZone == chosenZone_) return;
  clock_ = atlas::ClockOfPlace(texts, chosenZone);
  place_ = atlas::PlaceOfTexts(texts);
  days_.clear();
  texts_ = texts;
  chosenZone_ = std::move(chosenZone);
}

const Day* KeptPlace::On(std::chrono::local_days date) {
  if (!place_) return nullptr;
  const auto kept = days_.find(date);
  if (kept != days_.end()) return &kept->second;
  try {
    Day day = DayOf(*place_, clock_.clock, date);
    if (days_.size() == kMostDays) {  // drops the end that is farther from the new date
      const bool first = date - days_.begin()->first > days_.rbegin()->first - date;
      days_.erase(first ? days_.begin() : std::prev(days_.end()));
    }
    return &days_.emplace(date, std::move(day)).first->second;
  } catch (const foundation::Error&) {
    return nullptr;
  }
}

std::chrono::local_days KeptPlace::SunDate(Instant instant) {
  const auto date = std::chrono::floor<std::chrono::days>(clock_.clock.CivilAt(instant));
  const Day* today = On(date);
  if (today == nullptr || !today->sun.rise || instant >= *today->sun.rise) return date;
  const Day* before = On(date - std::chrono::days(1));
  return before != nullptr && before->sun.state == Sun::State::Rises ? before->date : date;
}

}  // namespace day
