#include "bitmap/resampler.h"

#include "foundation/checked.h"
#include "foundation/numbers.h"

namespace bitmap {
namespace {

// A target row or column between two source ones: the first of them and the weight of the second.
struct Place {
  std::int32_t first = 0;
  float share = 0;
};

Place PlaceOf(std::int32_t index, float scale) {
  const double position = double{scale} * index;
  const std::int32_t first = foundation::FloorToInt32(position);
  return {first, static_cast<float>(position - first)};
}

float ScaleOf(std::int32_t sourceSize, std::int32_t targetSize) {
  return static_cast<float>(foundation::Divide(sourceSize - 1.0, targetSize));
}

// The mean of two bytes fits a byte, so no clamping is needed.
float Mean(float share, float first, float second) {
  return (1 - share) * first + share * second;
}

// Rounds to a whole number, ties to even: above this constant a float has no fraction bits. Used
// instead of RoundToInt16, which would dominate the run time.
float Whole(float mean) {
  constexpr float kNoFraction = 0x1p23F;
  return mean + kNoFraction - kNoFraction;
}

std::vector<Place> ColumnsOf(const Pixels& source, const Pixels& target) {
  const float scale = ScaleOf(source.Width(), target.Width());
  std::vector<Place> columns;
  columns.reserve(static_cast<std::size_t>(target.Width()));
  for (std::int32_t x = 0; x < target.Width(); ++x) {
    columns.push_back(PlaceOf(x, scale));
    if (std::int64_t{columns.back().first} * 3 + 5 >= source.Stride()) {
      throw foundation::Error(foundation::ErrorKind::Subscript);
    }
  }
  return columns;
}

void BlendRows(float share, std::span<const std::uint8_t> upper,
               std::span<const std::uint8_t> lower, std::span<float> blended) {
  for (std::size_t i = 0; i < blended.size(); ++i) {
    blended[i] = Whole(Mean(share, upper[i], lower[i]));
  }
}

void BlendColumns(std::span<const Place> columns, std::span<const float> blended,
                  std::span<std::uint8_t> row) {
  std::uint8_t* byte = row.data();
  for (const Place& column : columns) {
    const float* left = &blended[static_cast<std::size_t>(column.first) * 3];
    for (int channel = 0; channel < 3; ++channel, ++left) {
      *byte++ = static_cast<std::uint8_t>(Whole(Mean(column.share, left[0], left[3])));
    }
  }
}

}  // namespace

void Resampler(const Pixels& source, Pixels& target) {
  const std::vector<Place> columns = ColumnsOf(source, target);
  const float scale = ScaleOf(source.Height(), target.Height());
  std::vector<float> blended(static_cast<std::size_t>(source.Stride()));
  for (std::int32_t y = 0; y < target.Height(); ++y) {
    const Place place = PlaceOf(y, scale);
    BlendRows(place.share, source.Row(place.first), source.Row(place.first + 1), blended);
    BlendColumns(columns, blended, target.Row(y));
  }
}

}  // namespace bitmap
