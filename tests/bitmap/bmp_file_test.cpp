#include "bitmap/bmp_file.h"

#include <gtest/gtest.h>

#include "foundation/files.h"
#include "support/app_folder.h"
#include "support/errors.h"

namespace bitmap {
namespace {

using namespace std::string_literals;

// A 3x2 image at 96 dpi. Top row: red, green, blue; bottom row: black, grey, white.
const std::string kFile =
    "BM\x4E\0\0\0\0\0\0\0\x36\0\0\0"
    "\x28\0\0\0\3\0\0\0\2\0\0\0\1\0\x18\0\0\0\0\0\x18\0\0\0\xC4\x0E\0\0\xC4\x0E\0\0\0\0\0\0\0\0\0\0"
    "\0\0\0\x80\x80\x80\xFF\xFF\xFF\0\0\0"
    "\0\0\xFF\0\xFF\0\xFF\0\0\0\0\0"s;

// The same, with 32 bits per pixel and rows from the top.
const std::string kTopDown =
    "BM\x4E\0\0\0\0\0\0\0\x36\0\0\0"
    "\x28\0\0\0\3\0\0\0\xFE\xFF\xFF\xFF\1\0\x20\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0"
    "\0\0\xFF\7\0\xFF\0\7\xFF\0\0\7"
    "\0\0\0\7\x80\x80\x80\7\xFF\xFF\xFF\7"s;

struct BmpFile : testing::Test {
  BmpPicture Read(std::string_view bytes) {
    folder.Write("page.tmp", bytes);
    return ReadBmp(page);
  }

  support::AppFolderScope folder;
  const std::filesystem::path page = folder.path / "page.tmp";
};

TEST_F(BmpFile, IsReadAndWrittenByteForByte) {
  const BmpPicture picture = Read(kFile);
  EXPECT_EQ(picture.pixels.Row(1)[2], 0xFF);  // the red at the top left
  EXPECT_EQ(picture.dotsPerInch, 96);
  EXPECT_EQ(Read(kTopDown).pixels, picture.pixels);
  WriteBmp(page, picture.pixels, 96);
  EXPECT_EQ(foundation::ReadFile(page), kFile);
  EXPECT_ERROR(InvalidCall, WriteBmp(page, Pixels(), 96));
  EXPECT_EQ(support::FailureOf([] { WriteBmp("/dev/full", Pixels(1, 1), 96); }),
            "The file /dev/full cannot be written");
}

TEST_F(BmpFile, IsRejectedIfUnsupportedOrTruncated) {
  // Another signature, header, depth, number of planes and compression; file and image sizes beyond
  // the end; data starting there or in the header; no width; too many rows in either order.
  constexpr std::pair<std::size_t, char> kChanges[] = {{0, 'P'}, {14, 12}, {28, 8},  {26, 2},
                                                       {30, 1},  {2, 'O'}, {34, 25}, {10, 55},
                                                       {10, 14}, {18, 0},  {22, 3},  {25, -128}};
  for (const auto& [at, byte] : kChanges) {
    SCOPED_TRACE(at);
    EXPECT_ERROR(InvalidCall, Read(std::string(kFile).replace(at, 1, 1, byte)));
  }
  for (std::size_t size = 0; size < kFile.size(); ++size) {
    EXPECT_ERROR(InvalidCall, Read(kFile.substr(0, size)));
  }
}

}  // namespace
}  // namespace bitmap
