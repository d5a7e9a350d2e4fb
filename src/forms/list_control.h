// What fills and searches lists asks of one.
#pragma once

#include <cstdint>
#include <string_view>

namespace forms {

// Entries have places from 0. A place that holds no entry is InvalidCall.
class ListControl {
 public:
  virtual ~ListControl() = default;

  virtual void Clear() = 0;
  // The place that the entry took, with the number 0 beside it.
  virtual int AddItem(std::string_view text) = 0;
  virtual int ListCount() const = 0;
  virtual std::string_view List(int index) const = 0;  // UTF-8; good until the list changes
  virtual std::int32_t ItemData(int index) const = 0;
  virtual void SetItemData(int index, std::int32_t number) = 0;

  // The selected entry's place, -1 for none.
  virtual int ListIndex() const = 0;
  virtual void SetListIndex(int index) = 0;
};

}  // namespace forms
