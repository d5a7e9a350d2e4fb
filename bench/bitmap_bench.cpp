// Doubling a picture of 2000 by 1500 pixels, compared with the toolkit's smooth scaling from 24
// bits per pixel and from 32, its fastest format.

#include <QImage>

#include "bench/figure.h"
#include "bench/window_bench.h"
#include "bitmap/cDIBSection.h"

namespace {

#define ENLARGED "a picture of 2000 by 1500 pixels, doubled in size"

constexpr int kWidth = 2000, kHeight = 1500;

// Fills in pseudo-random bytes, to defeat branch prediction.
void Fill(std::uint8_t* bytes, std::size_t count) {
  std::uint32_t state = 1;
  for (std::size_t i = 0; i < count; ++i) {
    state = state * 1664525 + 1013904223;
    bytes[i] = static_cast<std::uint8_t>(state >> 24);
  }
}

void Enlarge(benchmark::State& state) {
  bitmap::cDIBSection source;
  source.Create(kWidth, kHeight);
  Fill(source.DIBSectionBitsPtr(), source.hDib()->Bytes().size());
  for (auto _ : state) benchmark::DoNotOptimize(source.Resample(2 * kHeight, 2 * kWidth));
}
FIGURE(Enlarge, ENLARGED, "Durvela")->Unit(benchmark::kMillisecond);

void EnlargeByTheToolkit(benchmark::State& state, QImage::Format format) {
  bench::NeedToolkit();
  QImage source(kWidth, kHeight, format);
  Fill(source.bits(), static_cast<std::size_t>(source.sizeInBytes()));
  for (auto _ : state) {
    benchmark::DoNotOptimize(
        source.scaled(2 * kWidth, 2 * kHeight, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
  }
}
void EnlargeRgb888(benchmark::State& state) {
  EnlargeByTheToolkit(state, QImage::Format_RGB888);
}
void EnlargeRgb32(benchmark::State& state) {
  EnlargeByTheToolkit(state, QImage::Format_RGB32);
}
FIGURE(EnlargeRgb888, ENLARGED, "Qt on both cores")->Unit(benchmark::kMillisecond);
FIGURE(EnlargeRgb32, ENLARGED, "Qt, 32 bits per pixel")->Unit(benchmark::kMillisecond);

}  // namespace
