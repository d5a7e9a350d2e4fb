#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cstdio>
// Needs FILE.
#include <jpeglib.h>

#include "bitmap/libjpeg_library.h"
#include "bitmap/mIntelJPEGLibrary.h"
#include "foundation/files.h"
#include "support/app_folder.h"
#include "support/errors.h"
#include "support/machine_fakes.h"

namespace bitmap {
namespace {

// What the JPEG library reads back.
struct Decoded {
  int width = 0, height = 0;
  bool baseline = false;
  int quantum = 0;                   // the first step of the brightness
  std::vector<unsigned char> bytes;  // red, green, blue, from the top left
};

Decoded Decode(const std::filesystem::path& path) {
  const std::string file = foundation::ReadFile(path);
  jpeg_decompress_struct codec = {};
  jpeg_error_mgr errors = {};
  codec.err = jpeg_std_error(&errors);
  jpeg_create_decompress(&codec);
  jpeg_mem_src(&codec, reinterpret_cast<const unsigned char*>(file.data()), file.size());
  jpeg_read_header(&codec, TRUE);
  jpeg_start_decompress(&codec);
  Decoded decoded = {static_cast<int>(codec.output_width), static_cast<int>(codec.output_height),
                     file.find("\xFF\xC0") != file.npos, codec.quant_tbl_ptrs[0]->quantval[0]};
  decoded.bytes.resize(codec.output_width * codec.output_height * 3);
  while (codec.output_scanline < codec.output_height) {
    unsigned char* row = &decoded.bytes[codec.output_scanline * codec.output_width * 3];
    jpeg_read_scanlines(&codec, &row, 1);
  }
  jpeg_destroy_decompress(&codec);
  return decoded;
}

// Three rows of greys that tell their place, with a red pixel at the top left.
int Grey(int x, int y) {
  return 100 + 15 * y + 6 * x;
}

cDIBSection TestPicture(int width) {
  cDIBSection dib;
  dib.Create(width, 3);
  std::ranges::fill(dib.hdc()->Bytes(), std::uint8_t{255});  // what is left of it is padding
  for (int y = 0; y < 3; ++y) {
    for (int x = 0; x < width; ++x) std::fill_n(&dib.hdc()->Row(2 - y)[x * 3], 3, Grey(x, y));
  }
  std::ranges::copy(std::to_array<std::uint8_t>({0, 0, 255}), &dib.hdc()->Row(2)[0]);
  return dib;
}

struct FakeJpegLibrary : JpegLibrary {
  int begun = 0, freed = 0;
  int ijlInit(JpegProperties&) override { return begun; }
  int ijlWrite(const JpegProperties&, JpegMode) override { return -9; }
  int ijlFree(JpegProperties&) override { return freed++, 0; }
};

class SavedJpeg : public testing::Test {
 protected:
  bool Save(const cDIBSection& dib, int quality) {
    return SaveJPG(dib, path_, quality, libjpeg_, boxes_);
  }

  support::AppFolderScope folder_;
  const std::filesystem::path path_ = folder_.path / "day.jpg";
  support::FakeMessageBoxes boxes_;
  LibjpegLibrary libjpeg_;
  FakeJpegLibrary fake_;
};

TEST_F(SavedJpeg, HasEveryPixelInItsPlace) {
  for (const int width : {1, 2, 3, 4, 5, 7, 9}) {
    SCOPED_TRACE(width);
    ASSERT_TRUE(Save(TestPicture(width), 100));
    const Decoded decoded = Decode(path_);
    EXPECT_TRUE(decoded.baseline);
    ASSERT_EQ(std::pair(decoded.width, decoded.height), std::pair(width, 3));
    EXPECT_GT(decoded.bytes[0], std::max(decoded.bytes[1], decoded.bytes[2]) + 50);
    // Red runs into its neighbours; brightness does not.
    for (int i = 1; i < width * 3; ++i) {
      const unsigned char* pixel = &decoded.bytes[static_cast<std::size_t>(i) * 3];
      const double brightness = 0.299 * pixel[0] + 0.587 * pixel[1] + 0.114 * pixel[2];
      EXPECT_NEAR(brightness, Grey(i % width, i / width), 3);
    }
  }
}

TEST_F(SavedJpeg, HasTheQualityAskedFor) {
  // The standard's table, which begins with 16, is that of quality 50.
  for (const auto& [quality, quantum] : {std::pair{1, 255}, {50, 16}, {90, 3}, {100, 1}}) {
    ASSERT_TRUE(Save(TestPicture(9), quality));
    EXPECT_EQ(Decode(path_).quantum, quantum);
  }
  EXPECT_ERROR(InvalidCall, Save(TestPicture(9), 0));
  EXPECT_ERROR(InvalidCall, Save(TestPicture(9), 101));
}

TEST_F(SavedJpeg, KeepsTimesAndModeOfAFormerFile) {
  folder_.Write("day.jpg", "former");
  const timespec times[] = {{1000000001, 123456789}, {1000000002, 987654321}};
  utimensat(AT_FDCWD, path_.c_str(), times, 0);
  chmod(path_.c_str(), 0604);
  ASSERT_TRUE(Save(TestPicture(2), 90));
  struct stat now;
  stat(path_.c_str(), &now);
  EXPECT_EQ(now.st_mode & 07777, 0604U);
  for (const auto& [was, is] : {std::pair(times[0], now.st_atim), {times[1], now.st_mtim}}) {
    EXPECT_EQ(std::pair(is.tv_sec, is.tv_nsec), std::pair(was.tv_sec, was.tv_nsec));
  }
}

TEST_F(SavedJpeg, TellsTheUserOfAFailure) {
  folder_.Write("day.jpg", "former");
  EXPECT_FALSE(SaveJPG(TestPicture(3), path_, 90, fake_, boxes_));
  EXPECT_EQ(boxes_.shown.at(0).text, "DurvelaFailed to save to JPG -9");
  EXPECT_EQ(boxes_.shown.at(0).icon, foundation::MessageIcon::Exclamation);
  EXPECT_EQ(fake_.freed, 1);
  EXPECT_FALSE(std::filesystem::exists(path_));

  cDIBSection tooWide;
  tooWide.Create(65501, 1);
  EXPECT_FALSE(Save(tooWide, 90));
  EXPECT_FALSE(std::filesystem::exists(path_));
  EXPECT_FALSE(Save(cDIBSection(), 90));
  EXPECT_FALSE(SaveJPG(tooWide, folder_.path / "none" / "day.jpg", 90, libjpeg_, boxes_));
  EXPECT_ERROR(FileAccess, SaveJPG(tooWide, folder_.path, 90, libjpeg_, boxes_));
}

TEST_F(SavedJpeg, FailsWithoutALibrary) {
  fake_.begun = -7;
  try {
    SaveJPG(TestPicture(3), path_, 90, fake_, boxes_);
    ADD_FAILURE();
  } catch (const JpegLibraryError& error) {
    EXPECT_EQ(error.Number(), 26001);
    EXPECT_EQ(error.Source(), "Durvela.mIntelJPEGLibrary");
    EXPECT_STREQ(error.what(), "Failed to initialise the IJL library: -7");
  }
}

}  // namespace
}  // namespace bitmap
