// The entries of a list box or a drop-down.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "forms/list_control.h"

namespace forms {

class ItemList : public ListControl {
 public:
  // A sorted list puts a new entry after those not above it, case aside and commas before all
  // else; another list at its end.
  explicit ItemList(bool sorted) : sorted_(sorted) {}

  void Clear() override;
  int AddItem(std::string_view text) override;
  int ListCount() const override { return static_cast<int>(order_.size()); }
  std::string_view List(int index) const override { return At(index).text; }
  std::int32_t ItemData(int index) const override { return At(index).number; }
  void SetItemData(int index, std::int32_t number) override;
  int ListIndex() const override { return selected_; }
  void SetListIndex(int index) override;

  // Told of every change of the entries, but not of the selection.
  std::function<void()> onEntriesChanged;

 private:
  struct Entry {
    std::string text;
    std::string sortedBy;  // empty in a list without order
    std::int32_t number = 0;
  };

  std::size_t EntryOf(int index) const;
  const Entry& At(int index) const { return entries_[EntryOf(index)]; }
  int PlaceFor(const Entry& entry) const;
  void TellOfChange() const;

  bool sorted_;
  std::vector<Entry> entries_;        // as they came
  std::vector<std::uint32_t> order_;  // by place: small, so that insertions cost little
  int selected_ = -1;
};

}  // namespace forms
