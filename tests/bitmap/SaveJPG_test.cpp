// The screen tests check the pixels of a saved picture, since their toolkit decodes it.

#include <gtest/gtest.h>

#include "bitmap/libjpeg_library.h"
#include "bitmap/mIntelJPEGLibrary.h"
#include "foundation/files.h"
#include "support/app_folder.h"
#include "support/errors.h"
#include "support/machine_fakes.h"

namespace bitmap {
namespace {

namespace fs = std::filesystem;

cDIBSection PictureOf(int width, int height) {
  cDIBSection dib;
  dib.Create(width, height);
  return dib;
}

struct FakeJpegLibrary : JpegLibrary {
  int begun = 0, freed = 0;
  int ijlInit(JpegProperties&) override { return begun; }
  int ijlWrite(const JpegProperties&, JpegMode) override { return -9; }
  int ijlFree(JpegProperties&) override { return freed++, 0; }
};

struct SavedJpeg : testing::Test {
  bool Save(const cDIBSection& dib, int quality) {
    return SaveJPG(dib, path, quality, libjpeg, boxes);
  }

  support::AppFolderScope folder;
  const fs::path path = folder.path / "day.jpg";
  support::FakeMessageBoxes boxes;
  LibjpegLibrary libjpeg;
};

TEST_F(SavedJpeg, ExcludesThePadding) {
  cDIBSection dib = PictureOf(9, 3);
  ASSERT_TRUE(Save(dib, 100));
  const std::string black = foundation::ReadFile(path);
  for (int y = 0; y < 3; ++y) dib.hdc()->Row(y).back() = 255;
  ASSERT_TRUE(Save(dib, 100));
  EXPECT_EQ(foundation::ReadFile(path), black);
}

TEST_F(SavedJpeg, HasTheRequestedQuality) {
  // The first step of the first table; quality 50 is the standard's table, which starts with 16.
  for (const auto& [quality, step] :
       {std::pair{1, '\xFF'}, {50, '\x10'}, {90, '\3'}, {100, '\1'}}) {
    ASSERT_TRUE(Save(PictureOf(9, 9), quality));
    const std::string file = foundation::ReadFile(path);
    EXPECT_EQ(file.at(file.find("\xFF\xDB") + 5), step);
  }
  EXPECT_ERROR(InvalidCall, Save(PictureOf(9, 9), 0));
  EXPECT_ERROR(InvalidCall, Save(PictureOf(9, 9), 101));
}

TEST_F(SavedJpeg, KeepsTimesAndModeOfAnExistingFile) {
  folder.Write("day.jpg", "former");
  const auto time = fs::last_write_time(path) - std::chrono::hours(1);
  fs::last_write_time(path, time);
  fs::permissions(path, fs::perms{0604});
  ASSERT_TRUE(Save(PictureOf(2, 2), 90));
  EXPECT_TRUE(fs::last_write_time(path) == time);
  EXPECT_EQ(fs::status(path).permissions(), fs::perms{0604});
}

TEST_F(SavedJpeg, ReportsFailures) {
  FakeJpegLibrary fake;
  folder.Write("day.jpg", "former");
  EXPECT_FALSE(SaveJPG(PictureOf(3, 3), path, 90, fake, boxes));
  EXPECT_EQ(boxes.shown.at(0).text, "DurvelaFailed to save to JPG -9");
  EXPECT_EQ(fake.freed, 1);
  EXPECT_FALSE(fs::exists(path));
  EXPECT_FALSE(Save(PictureOf(65501, 1), 90));
  EXPECT_FALSE(fs::exists(path));
  EXPECT_FALSE(SaveJPG(PictureOf(3, 3), folder.path / "none" / "day.jpg", 90, libjpeg, boxes));
  EXPECT_ERROR(FileAccess, SaveJPG(PictureOf(3, 3), folder.path, 90, libjpeg, boxes));
  fake.begun = -7;
  try {
    SaveJPG(PictureOf(3, 3), path, 90, fake, boxes);
    ADD_FAILURE() << "saved without a library";
  } catch (const JpegLibraryError& error) {
    EXPECT_EQ(error.Number(), 26001);
    EXPECT_EQ(error.Source() + ": " + error.what(),
              "Durvela.mIntelJPEGLibrary: Failed to initialise the IJL library: -7");
  }
}

}  // namespace
}  // namespace bitmap
