#include "forms/item_list.h"

#include <algorithm>
#include <utility>

#include "foundation/error.h"
#include "foundation/text.h"

namespace forms {
namespace {

// A comma sorts before everything else, so "Delhi, India" precedes "Delhi Gate, India".
std::string SortKey(std::string_view text) {
  std::string key = foundation::FoldCase(text);
  std::replace(key.begin(), key.end(), ',', '\x01');
  return key;
}

}  // namespace

void ItemList::Clear() {
  entries_.clear();
  order_.clear();
  selected_ = -1;
  NotifyChange();
}

int ItemList::AddItem(std::string_view text) {
  Entry entry = {std::string(text), sorted_ ? SortKey(text) : std::string()};
  const int place = PlaceFor(entry);
  order_.insert(order_.begin() + place, static_cast<std::uint32_t>(entries_.size()));
  entries_.push_back(std::move(entry));
  if (selected_ >= place) ++selected_;  // the same entry stays selected
  NotifyChange();
  return place;
}

int ItemList::PlaceFor(const Entry& entry) const {
  if (!sorted_) return ListCount();
  const auto behind = std::upper_bound(
      order_.begin(), order_.end(), entry,
      [&](const Entry& e, std::uint32_t at) { return e.sortedBy < entries_[at].sortedBy; });
  return static_cast<int>(behind - order_.begin());
}

void ItemList::SetItemData(int index, std::int32_t number) {
  entries_[EntryOf(index)].number = number;
}

void ItemList::SetListIndex(int index) {
  EntryOf(index);
  selected_ = index;
}

std::size_t ItemList::EntryOf(int index) const {
  if (index < 0 || index >= ListCount()) {
    throw foundation::Error(foundation::ErrorKind::InvalidCall);
  }
  return order_[static_cast<std::size_t>(index)];
}

void ItemList::NotifyChange() const {
  if (onEntriesChanged) onEntriesChanged();
}

}  // namespace forms
