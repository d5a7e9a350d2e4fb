// The list operations that filling and searching need.
#pragma once

#include <cstdint>
#include <string_view>

namespace forms {

// Entries are indexed from 0. InvalidCall for an index without an entry.
class ListControl {
 public:
  virtual ~ListControl() = default;

  virtual void Clear() = 0;
  // Returns the index of the new entry; its item data is 0.
  virtual int AddItem(std::string_view text) = 0;
  virtual int ListCount() const = 0;
  virtual std::string_view List(int index) const = 0;  // UTF-8; valid until the list changes
  virtual std::int32_t ItemData(int index) const = 0;
  virtual void SetItemData(int index, std::int32_t number) = 0;

  // The index of the selected entry, -1 for none.
  virtual int ListIndex() const = 0;
  virtual void SetListIndex(int index) = 0;
};

}  // namespace forms
