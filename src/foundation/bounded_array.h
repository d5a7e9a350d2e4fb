// An array with fixed bounds and checked indices.
#pragma once

#include <array>
#include <cstddef>

#include "foundation/error.h"

namespace foundation {

// Elements Lower to Upper, both included. Indexing outside them raises Subscript.
template <typename T, int Lower, int Upper>
class BoundedArray {
 public:
  static_assert(Lower <= Upper);

  BoundedArray() = default;
  constexpr explicit BoundedArray(
      const std::array<T, static_cast<std::size_t>(Upper - Lower + 1)>& elements)
      : elements_(elements) {}

  T& operator[](int index) { return elements_[Offset(index)]; }
  constexpr const T& operator[](int index) const { return elements_[Offset(index)]; }

 private:
  static constexpr std::size_t Offset(int index) {
    if (index < Lower || index > Upper) throw Error(ErrorKind::Subscript);
    return static_cast<std::size_t>(index - Lower);
  }

  std::array<T, static_cast<std::size_t>(Upper - Lower + 1)> elements_{};
};

}  // namespace foundation
