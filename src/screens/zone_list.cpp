#include "screens/zone_list.h"

#include <algorithm>
#include <utility>

#include "clocks/zone_clock.h"
#include "clocks/zone_names.h"
#include "foundation/numbers.h"
#include "foundation/resume.h"
#include "foundation/text.h"
#include "words/clock_text.h"

namespace screens {
namespace {

// Whether the name has all the words, at any place: "new york" finds "America/New_York".
bool HasWords(std::string_view name, std::string_view words) {
  const std::string folded = foundation::FoldCase(name);
  return std::ranges::all_of(foundation::Split(words, ' '), [&](std::string_view word) {
    return folded.find(foundation::FoldCase(word)) != std::string::npos;
  });
}

}  // namespace

ZoneList::ZoneList(const foundation::Clock& clock, forms::FormHost& host)
    : ScaledForm("ZoneList", "Zone", zone_list_layout::kWidth, zone_list_layout::kHeight),
      clock_(clock),
      host_(host) {
  backColour = palette::kPaper;
  Search.onChange = [this] { Search_Change(); };
  Search.onKeyDown = [this](forms::KeyPress& press) { Search_KeyDown(press); };
  Zones.onClick = [this] { Zones_Click(); };
  Zones.onDoubleClick = [this] { Accept_Click(); };
  PlacesZone.onClick = [this] { PlacesZone_Click(); };
  Cancel.onClick = [this] { Cancel_Click(); };
  Accept.onClick = [this] { Accept_Click(); };
}

void ZoneList::Load(std::string_view zone) {
  if (names_.empty()) names_ = clocks::ZoneNames();
  inUse_ = zone;
  answer_.reset();
  Search.caption.clear();
  activeControl = &Search;
  Fill();
}

void ZoneList::Form_KeyDown(forms::KeyPress& press) {
  const bool choosing = activeControl == &Search || activeControl == &Zones;
  press.handled = press.key == forms::Key::Escape || (press.key == forms::Key::Enter && choosing);
  if (!press.handled) return;
  if (press.key == forms::Key::Escape) Cancel_Click();
  if (press.key == forms::Key::Enter) Accept_Click();
}

void ZoneList::Search_Change() {
  Fill();
}

// The arrows go on in the list.
void ZoneList::Search_KeyDown(forms::KeyPress& press) {
  press.handled = press.key == forms::Key::Down || press.key == forms::Key::Up;
  if (!press.handled) return;
  activeControl = &Zones;
  const int step = press.key == forms::Key::Down ? 1 : -1;
  foundation::Resume([&] { Select(Zones, Zones.items->ListIndex() + step); });
}

void ZoneList::Zones_Click() {
  ShowOffset();
}

void ZoneList::Accept_Click() {
  if (!Accept.enabled) return;
  CloseWith(std::string(Zones.items->List(Zones.items->ListIndex())));
}

void ZoneList::PlacesZone_Click() {
  CloseWith("");
}

void ZoneList::Cancel_Click() {
  CloseWith(std::nullopt);
}

void ZoneList::CloseWith(std::optional<std::string> answer) {
  answer_ = std::move(answer);
  host_.Unload(*this);
}

// Lists the zones that the search text finds. Selects the one in use, or else the first one found.
void ZoneList::Fill() {
  forms::ItemList& list = *Zones.items;
  list.Clear();
  int selected = Search.caption.empty() ? -1 : 0;
  for (const std::string& zone : names_) {
    if (!HasWords(zone, Search.caption)) continue;
    const int at = list.AddItem(zone);
    if (zone == inUse_) selected = at;
  }
  const int count = list.ListCount();
  if (count > 0 && selected >= 0) list.SetListIndex(selected);
  Search.trailing = count == 0   ? "no match"
                    : count == 1 ? "1 zone"
                                 : foundation::GroupedText(count) + " zones";
  Zones.emphasis = Search.caption;
  ShowOffset();
}

void ZoneList::ShowOffset() {
  const forms::ItemList& list = *Zones.items;
  Accept.enabled = list.ListIndex() >= 0;
  Offset.caption.clear();
  if (!Accept.enabled) return;
  const auto clock = clocks::ZoneClock::Named(std::string(list.List(list.ListIndex())));
  if (clock) Offset.caption = "Now " + words::ClockName(clock->OffsetAt(clock_.InstantNow()));
}

}  // namespace screens
