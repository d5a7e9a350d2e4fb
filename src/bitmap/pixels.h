// A 24-bit picture in memory: rows from the bottom up, each pixel blue, green, red.
#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <span>
#include <vector>

#include "foundation/error.h"

namespace bitmap {

// Rows follow each other, each padded to a multiple of 4 bytes. The default is an empty picture.
class Pixels {
 public:
  Pixels() = default;

  // A black picture. InvalidCall unless both are 1 or more, Overflow from 2 GiB.
  Pixels(std::int32_t width, std::int32_t height) : width_(width), height_(height) {
    if (width < 1 || height < 1) throw foundation::Error(foundation::ErrorKind::InvalidCall);
    const std::int64_t stride = StrideOf(width);
    if (stride > std::numeric_limits<std::int32_t>::max() / height) {
      throw foundation::Error(foundation::ErrorKind::Overflow);
    }
    stride_ = static_cast<std::int32_t>(stride);
    bytes_.resize(static_cast<std::size_t>(stride * height));
  }

  std::int32_t Width() const { return width_; }
  std::int32_t Height() const { return height_; }
  // Bytes from one row to the next.
  std::int32_t Stride() const { return stride_; }
  bool Empty() const { return bytes_.empty(); }

  // All rows, including padding.
  std::span<std::uint8_t> Bytes() { return bytes_; }
  std::span<const std::uint8_t> Bytes() const { return bytes_; }

  // Row 0 is at the bottom; includes padding. Subscript outside.
  std::span<std::uint8_t> Row(std::int32_t row) { return RowOf(Bytes(), row); }
  std::span<const std::uint8_t> Row(std::int32_t row) const { return RowOf(Bytes(), row); }

  static std::int64_t StrideOf(std::int32_t width) {
    return (std::int64_t{width} * 3 + 3) & ~std::int64_t{3};
  }

  friend bool operator==(const Pixels&, const Pixels&) = default;

 private:
  template <typename Span>
  Span RowOf(Span bytes, std::int32_t row) const {
    if (row < 0 || row >= height_) throw foundation::Error(foundation::ErrorKind::Subscript);
    const auto stride = static_cast<std::size_t>(stride_);
    return bytes.subspan(static_cast<std::size_t>(row) * stride, stride);
  }

  std::int32_t width_ = 0, height_ = 0, stride_ = 0;
  std::vector<std::uint8_t> bytes_;
};

}  // namespace bitmap
