#include "bitmap/cDIBSection.h"

#include <gtest/gtest.h>

#include <charconv>

#include "support/errors.h"
#include "support/machine_fakes.h"
#include "support/screen_fakes.h"

namespace bitmap {
namespace {

// Two hexadecimal digits a byte, the bottom row first, without padding.
using Rows = std::vector<std::string>;

cDIBSection DibOf(int width, const Rows& rows) {
  cDIBSection dib;
  EXPECT_TRUE(dib.Create(width, static_cast<int>(rows.size())));
  for (int y = 0; y < dib.Height(); ++y) {
    const std::string& row = rows[static_cast<std::size_t>(y)];
    for (std::size_t at = 0; at < row.size(); at += 2) {
      std::from_chars(&row[at], &row[at] + 2, dib.hdc()->Row(y)[at / 2], 16);
    }
  }
  return dib;
}

Rows RowsOf(const cDIBSection& dib) {
  constexpr std::string_view digits = "0123456789abcdef";
  Rows rows(static_cast<std::size_t>(dib.Height()));
  for (int y = 0; y < dib.Height(); ++y) {
    for (const int byte : dib.hDib()->Row(y).first(static_cast<std::size_t>(dib.Width()) * 3)) {
      rows[static_cast<std::size_t>(y)] += {digits[byte / 16u], digits[byte % 16u]};
    }
  }
  return rows;
}

TEST(DibSection, HoldsOneBitmapOrNone) {
  cDIBSection dib;
  for (const auto& [width, stride] :
       {std::pair{1, 4}, {2, 8}, {3, 12}, {4, 12}, {5, 16}, {7, 24}, {9, 28}}) {
    EXPECT_TRUE(dib.Create(width, 2));
    EXPECT_EQ(dib.BytesPerScanLine(), stride);
    EXPECT_EQ(dib.Header().imageSize, stride * 2);
  }
  EXPECT_FALSE(dib.Create(65536, 65536));
  EXPECT_EQ(dib.Width(), 65536);
  EXPECT_EQ(dib.hdc(), nullptr);
  EXPECT_FALSE(dib.Create(0, 1));
}

TEST(DibSection, CopiesWhatLiesInsideBoth) {
  const cDIBSection source = DibOf(3, {"111111222222333333", "444444555555666666"});
  cDIBSection dib = DibOf(2, {"", "", ""});
  dib.LoadPictureBlt(*source.hDib(), 1, 0);
  EXPECT_EQ(RowsOf(dib), (Rows{"000000000000", "222222333333", "555555666666"}));
  dib.LoadPictureBlt(*source.hDib(), -1, 1, 9, 1);
  EXPECT_EQ(RowsOf(dib), (Rows{"000000000000", "222222333333", "555555111111"}));
  source.PaintPicture(*dib.hdc(), -1, 2, 2, -1);
  dib.LoadPictureBlt(*source.hDib(), 2147483647, -2147483647 - 1);
  EXPECT_EQ(RowsOf(dib), (Rows{"555555000000", "222222333333", "555555111111"}));
  dib.PaintPicture(*dib.hdc(), 0, 1);  // onto itself
  EXPECT_EQ(RowsOf(dib), (Rows{"222222333333", "555555111111", "555555111111"}));
  EXPECT_ERROR(InvalidCall, dib.LoadPictureBlt(*source.hDib(), 0, 0, -1, -1, 0));
}

TEST(DibSection, ResamplesAsWorkedOutByHand) {
  const auto resampled = [](int width, const Rows& rows, int newHeight, int newWidth) {
    return RowsOf(*DibOf(width, rows).Resample(newHeight, newWidth));
  };
  // By quarters.
  EXPECT_EQ(resampled(2, {"000aff641400", "321e80ff2907"}, 4, 4),
            (Rows{"000aff190cbf320f804b1240", "0c0fdf2c12a84c14706b1639",
                  "1914c03f16916619628c1c33", "2619a0521c797f1e52ac212c"}));
  // By thirds.
  EXPECT_EQ(resampled(2, {"000000030303", "030303060606"}, 3, 3),
            (Rows{"000000010101020202", "010101020202030303", "020202030303040404"}));
  // By sixths: of the halves 2.5, 5.5 and 8.5 the last one is more in 32 bits.
  EXPECT_EQ(resampled(2, {"0101010a0a0a", "0101010a0a0a"}, 1, 6),
            (Rows{"010101020202040404060606070707090909"}));
  // The same size, also where there is no neighbour.
  EXPECT_EQ(resampled(1, {"010203", "040506"}, 2, 1), (Rows{"010203", "040506"}));
  EXPECT_ERROR(Subscript, DibOf(1, {"", ""}).Resample(4, 4));
  EXPECT_ERROR(Subscript, DibOf(2, {""}).Resample(4, 4));
  EXPECT_ERROR(Subscript, cDIBSection().Resample(4, 4));
  EXPECT_EQ(DibOf(2, {"", ""}).Resample(0, 4), nullptr);
}

TEST(DibSection, IsFilledByChance) {
  support::FakeRandomNumbers random;
  random.numbers = {0, 0.5, 0.999, 0.1, 0.2, 0.3, 0.4, 0.6};
  cDIBSection dib = DibOf(2, {"", ""});
  dib.RandomiseBits(false, random);
  EXPECT_EQ(RowsOf(dib), (Rows{"00008000334c", "00ff1a006699"}));
  dib.RandomiseBits(true, random);
  EXPECT_EQ(RowsOf(dib), (Rows{"000000808080", "ffffff1a1a1a"}));
}

TEST(DibSection, TakesAPictureAndGivesItToTheClipboard) {
  support::FakeRasteriser screen;
  screen.dots = {};
  support::FakeClipboard clipboard;
  support::FakeMessageBoxes boxes;
  cDIBSection dib;
  EXPECT_FALSE(dib.CreateFromPicture({}, screen));
  EXPECT_FALSE(dib.CopyToClipboard(false, clipboard, boxes));
  screen.dots = {1, 2, {1, 2, 3, 4, 5, 6}};
  EXPECT_TRUE(dib.CreateFromPicture({}, screen));
  EXPECT_EQ(RowsOf(dib), (Rows{"060504", "030201"}));
  EXPECT_FALSE(dib.CopyToClipboard(true, clipboard, boxes));
  EXPECT_EQ(clipboard.held, nullptr);
  EXPECT_EQ(boxes.shown.at(0).text,
            "I don't know how to put a DIB on the clipboard! Copy as bitmap instead!!!");
  EXPECT_TRUE(dib.CopyToClipboard(false, clipboard, boxes));
  screen.dots = {};
  cDIBSection pasted;  // dots come without the screen
  EXPECT_TRUE(pasted.CreateFromPicture(*clipboard.held, screen));
  EXPECT_EQ(RowsOf(pasted), RowsOf(dib));
}

}  // namespace
}  // namespace bitmap
