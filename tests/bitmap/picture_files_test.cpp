// Files of pictures. The screen tests check the pixels of a JPEG file, since their toolkit decodes
// it.

#include "bitmap/bmp_file.h"
#include "bitmap/libjpeg_library.h"
#include "bitmap/mIntelJPEGLibrary.h"
#include "foundation/files.h"
#include "support/app_folder.h"
#include "support/machine_fakes.h"
#include "support/test.h"

namespace bitmap {
namespace {

namespace fs = std::filesystem;
using namespace std::string_literals;

struct FakeJpegLibrary : JpegLibrary {
  int begun = 0, freed = 0;
  int ijlInit(JpegProperties&) override { return begun; }
  int ijlWrite(const JpegProperties&, JpegMode) override { return -9; }
  int ijlFree(JpegProperties&) override { return freed++, 0; }
};

struct SavedJpeg : testing::Test {
  SavedJpeg() { dib.Create(9, 9); }
  bool Save(int quality = 90) { return SaveJPG(dib, path, quality, libjpeg, boxes); }

  support::AppFolderScope folder;
  fs::path path = folder.path / "day.jpg";
  cDIBSection dib;
  LibjpegLibrary libjpeg;
  support::FakeMessageBoxes boxes;
};

TEST_F(SavedJpeg, HasTheRequestedQualityWithoutThePadding) {
  // The first step of the first table; quality 50 is the standard's table, which starts with 16.
  const auto firstStep = [&](int quality) {
    EXPECT_TRUE(Save(quality));
    const std::string file = foundation::ReadFile(path);
    return file.at(file.find("\xFF\xDB") + 5);
  };
  ExpectRows(firstStep, Row(1, '\xFF'), Row(50, '\x10'), Row(90, '\3'), Row(100, '\1'));
  for (const int wrong : {0, 101}) EXPECT_ERROR(InvalidCall, Save(wrong));
  const std::string black = foundation::ReadFile(path);
  for (int y = 0; y < 9; ++y) dib.hdc()->Row(y).back() = 255;
  firstStep(100);
  EXPECT_EQ(foundation::ReadFile(path), black);
}

TEST_F(SavedJpeg, KeepsTimesAndModeOfAnExistingFile) {
  folder.Write("day.jpg", "former");
  const auto time = fs::last_write_time(path) - std::chrono::hours(1);
  fs::last_write_time(path, time);
  fs::permissions(path, fs::perms{0604});
  ASSERT_TRUE(Save());
  EXPECT_TRUE(fs::last_write_time(path) == time);
  EXPECT_EQ(fs::status(path).permissions(), fs::perms{0604});
}

TEST_F(SavedJpeg, ReportsFailures) {
  FakeJpegLibrary fake;
  folder.Write("day.jpg", "former");
  EXPECT_FALSE(SaveJPG(dib, path, 90, fake, boxes));
  EXPECT_EQ(boxes.shown.at(0).text, "DurvelaFailed to save to JPG -9");
  EXPECT_EQ(fake.freed, 1);
  EXPECT_FALSE(fs::exists(path));
  fake.begun = -7;
  const JpegLibraryError error(-7);
  EXPECT_EQ(error.Number(), 26001);
  EXPECT_EQ(
      error.Source() + ": " + support::FailureOf([&] { SaveJPG(dib, path, 90, fake, boxes); }),
      "Durvela.mIntelJPEGLibrary: Failed to initialise the IJL library: -7");
  path = folder.path / "none" / "day.jpg";
  EXPECT_FALSE(Save());
  path = folder.path;
  EXPECT_ERROR(FileAccess, Save());
  path = folder.path / "day.jpg";
  dib.Create(65501, 1);  // too wide
  EXPECT_FALSE(Save());
  EXPECT_FALSE(fs::exists(path));
}

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
  const fs::path page = folder.path / "page.tmp";
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
