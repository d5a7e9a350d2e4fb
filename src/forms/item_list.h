// The entries of a list box or combo box.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "forms/list_control.h"

namespace forms {

class ItemList : public ListControl {
 public:
  // A sorted list inserts a new entry after those that are not greater, ignoring case and with
  // commas first; an unsorted one appends it.
  explicit ItemList(bool sorted) : sorted_(sorted) {}

  void Clear() override;
  int AddItem(std::string_view text) override;
  int ListCount() const override { return static_cast<int>(order_.size()); }
  std::string_view List(int index) const override { return At(index).text; }
  std::int32_t ItemData(int index) const override { return At(index).number; }
  void SetItemData(int index, std::int32_t number) override;
  int ListIndex() const override { return selected_; }
  void SetListIndex(int index) override;

  // Called when entries change, but not when the selection does.
  std::function<void()> onEntriesChanged;

 private:
  struct Entry {
    std::string text;
    std::string sortedBy;  // empty in an unsorted list
    std::int32_t number = 0;
  };

  std::size_t EntryOf(int index) const;
  const Entry& At(int index) const { return entries_[EntryOf(index)]; }
  int PlaceFor(const Entry& entry) const;
  void NotifyChange() const;

  bool sorted_;
  std::vector<Entry> entries_;        // in order of insertion
  std::vector<std::uint32_t> order_;  // displayed order; indices keep insertions cheap
  int selected_ = -1;
};

}  // namespace forms
