#include "bitmap/cDIBSection.h"

#include <algorithm>

#include "support/machine_fakes.h"
#include "support/screen_fakes.h"
#include "support/test.h"

namespace bitmap {
namespace {

// The bytes of a picture's rows from the bottom, without padding.
using Rows = std::vector<std::vector<std::uint8_t>>;

cDIBSection DibOf(int width, const Rows& rows) {
  cDIBSection dib;
  EXPECT_TRUE(dib.Create(width, static_cast<int>(rows.size())));
  for (int y = 0; const auto& row : rows) std::ranges::copy(row, dib.hdc()->Row(y++).begin());
  return dib;
}

Rows RowsOf(const cDIBSection& dib) {
  Rows rows;
  for (int y = 0; y < dib.Height(); ++y) {
    const auto row = dib.hDib()->Row(y).first(static_cast<std::size_t>(dib.Width()) * 3);
    rows.emplace_back(row.begin(), row.end());
  }
  return rows;
}

TEST(DibSection, HoldsOneBitmapOrNone) {
  cDIBSection dib;
  EXPECT_TRUE(dib.Create(5, 2));
  EXPECT_EQ(dib.BytesPerScanLine(), 16);
  const auto [size, width, height, planes, bits, compression, imageSize] = dib.Header();
  EXPECT_EQ((std::array{size, width, height, int{planes}, int{bits}, compression, imageSize}),
            (std::array{40, 5, 2, 1, 24, 0, 32}));
  EXPECT_FALSE(dib.Create(65536, 65536));
  EXPECT_EQ(dib.hdc(), nullptr);
  EXPECT_FALSE(dib.Create(0, 1));
}

TEST(DibSection, ClipsCopiesToBothPictures) {
  const cDIBSection source = DibOf(3, {{1, 1, 1, 2, 2, 2, 3, 3, 3}, {4, 4, 4, 5, 5, 5, 6, 6, 6}});
  cDIBSection dib = DibOf(2, Rows(3));
  dib.LoadPictureBlt(*source.hDib(), 1, 0);
  dib.LoadPictureBlt(*source.hDib(), -1, 1, 9, 1);
  EXPECT_EQ(RowsOf(dib), (Rows{{0, 0, 0, 0, 0, 0}, {2, 2, 2, 3, 3, 3}, {5, 5, 5, 1, 1, 1}}));
  source.PaintPicture(*dib.hdc(), -1, 2, 2, -1);
  dib.LoadPictureBlt(*source.hDib(), 2147483647, -2147483647 - 1);
  EXPECT_EQ(RowsOf(dib), (Rows{{5, 5, 5, 0, 0, 0}, {2, 2, 2, 3, 3, 3}, {5, 5, 5, 1, 1, 1}}));
  dib.PaintPicture(*dib.hdc(), 0, 1);  // onto itself
  EXPECT_EQ(RowsOf(dib), (Rows{{2, 2, 2, 3, 3, 3}, {5, 5, 5, 1, 1, 1}, {5, 5, 5, 1, 1, 1}}));
  EXPECT_ERROR(InvalidCall, dib.LoadPictureBlt(*source.hDib(), 0, 0, -1, -1, 0));
  EXPECT_ERROR(InvalidCall, source.PaintPicture(*dib.hdc(), 0, 0, -1, -1, 0, 0, 0));
}

TEST(DibSection, MatchesResamplingByHand) {
  const auto resampled = [](int width, const Rows& rows, int newHeight, int newWidth) {
    return RowsOf(*DibOf(width, rows).Resample(newHeight, newWidth));
  };
  // In quarters.
  EXPECT_EQ(resampled(2, {{0, 10, 255, 100, 20, 0}, {50, 30, 128, 255, 41, 7}}, 4, 4),
            (Rows{{0, 10, 255, 25, 12, 191, 50, 15, 128, 75, 18, 64},
                  {12, 15, 223, 44, 18, 168, 76, 20, 112, 107, 22, 57},
                  {25, 20, 192, 63, 22, 145, 102, 25, 98, 140, 28, 51},
                  {38, 25, 160, 82, 28, 121, 127, 30, 82, 172, 33, 44}}));
  // In sixths: of the halves 2.5, 5.5 and 8.5, the last is slightly more in 32 bits.
  const std::vector<std::uint8_t> row = {1, 1, 1, 10, 10, 10};
  EXPECT_EQ(resampled(2, {row, row}, 1, 6),
            (Rows{{1, 1, 1, 2, 2, 2, 4, 4, 4, 6, 6, 6, 7, 7, 7, 9, 9, 9}}));
  // The same size, even without neighbours.
  EXPECT_EQ(resampled(1, {{1, 2, 3}, {4, 5, 6}}, 2, 1), (Rows{{1, 2, 3}, {4, 5, 6}}));
  EXPECT_ERROR(Subscript, DibOf(1, Rows(2)).Resample(4, 4));
  EXPECT_ERROR(Subscript, DibOf(2, Rows(1)).Resample(4, 4));
  EXPECT_EQ(DibOf(2, Rows(2)).Resample(0, 4), nullptr);
}

TEST(DibSection, FillsWithRandomPixels) {
  support::FakeRandomNumbers random;
  random.numbers = {0, 0.5, 0.999, 0.1, 0.2, 0.3, 0.4, 0.6};
  cDIBSection dib = DibOf(2, Rows(2));
  dib.RandomiseBits(false, random);
  EXPECT_EQ(RowsOf(dib), (Rows{{0, 0, 128, 0, 51, 76}, {0, 255, 26, 0, 102, 153}}));
  dib.RandomiseBits(true, random);
  EXPECT_EQ(RowsOf(dib), (Rows{{0, 0, 0, 128, 128, 128}, {255, 255, 255, 26, 26, 26}}));
}

TEST(DibSection, LoadsAPictureAndCopiesItToTheClipboard) {
  support::FakeRasteriser screen;
  support::FakeClipboard clipboard;
  support::FakeMessageBoxes boxes;
  cDIBSection dib, pasted;
  EXPECT_FALSE(dib.CopyToClipboard(false, clipboard, boxes));
  screen.dots = {1, 2, {1, 2, 3, 4, 5, 6}};
  EXPECT_TRUE(dib.CreateFromPicture({}, screen));
  EXPECT_EQ(RowsOf(dib), (Rows{{6, 5, 4}, {3, 2, 1}}));
  EXPECT_FALSE(dib.CopyToClipboard(true, clipboard, boxes));
  EXPECT_EQ(boxes.shown.at(0).text,
            "I don't know how to put a DIB on the clipboard! Copy as bitmap instead!!!");
  EXPECT_TRUE(dib.CopyToClipboard(false, clipboard, boxes));
  screen.dots = {};
  EXPECT_FALSE(pasted.CreateFromPicture({}, screen));
  EXPECT_TRUE(pasted.CreateFromPicture(*clipboard.held, screen));  // made of pixels
  EXPECT_EQ(RowsOf(pasted), RowsOf(dib));
}

}  // namespace
}  // namespace bitmap
