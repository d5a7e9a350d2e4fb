#include "bitmap/copy_area.h"

#include <algorithm>

namespace bitmap {
namespace {

// The part of a length that lies inside both pictures, from `first` up to but excluding `end`.
struct Part {
  std::int64_t first, end;
};

Part Inside(std::int64_t from, std::int64_t fromSize, std::int64_t to, std::int64_t toSize,
            std::int64_t length) {
  return {std::max({std::int64_t{0}, -from, -to}),
          std::min({length, fromSize - from, toSize - to})};
}

template <typename PixelsType>
auto RowFromTop(PixelsType& pixels, std::int64_t row) {
  return pixels.Row(static_cast<std::int32_t>(pixels.Height() - 1 - row));
}

}  // namespace

void CopyArea(const Pixels& from, Corner source, Pixels& to, Corner target, std::int32_t width,
              std::int32_t height) {
  if (&from == &to) return CopyArea(Pixels(from), source, to, target, width, height);
  const Part columns = Inside(source.left, from.Width(), target.left, to.Width(), width);
  const Part rows = Inside(source.top, from.Height(), target.top, to.Height(), height);
  if (columns.first >= columns.end) return;
  const auto size = static_cast<std::size_t>(columns.end - columns.first) * 3;
  for (std::int64_t y = rows.first; y < rows.end; ++y) {
    const auto sourceAt = static_cast<std::size_t>(source.left + columns.first) * 3;
    const auto targetAt = static_cast<std::size_t>(target.left + columns.first) * 3;
    std::ranges::copy(RowFromTop(from, source.top + y).subspan(sourceAt, size),
                      RowFromTop(to, target.top + y).subspan(targetAt, size).begin());
  }
}

}  // namespace bitmap
