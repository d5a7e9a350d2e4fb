#include "bitmap/bmp_file.h"

#include <gtest/gtest.h>

#include "foundation/files.h"
#include "support/app_folder.h"
#include "support/errors.h"

namespace bitmap {
namespace {

using namespace std::string_literals;

// Three pixels by two at 96 dots per inch: red, green, blue over black, grey, white.
const std::string kFile =
    "BM\x4E\0\0\0\0\0\0\0\x36\0\0\0"
    "\x28\0\0\0\3\0\0\0\2\0\0\0\1\0\x18\0\0\0\0\0\x18\0\0\0\xC4\x0E\0\0\xC4\x0E\0\0\0\0\0\0\0\0\0\0"
    "\0\0\0\x80\x80\x80\xFF\xFF\xFF\0\0\0"
    "\0\0\xFF\0\xFF\0\xFF\0\0\0\0\0"s;

// The same, 32 bits a pixel with rows from the top down.
const std::string kTopDown =
    "BM\x4E\0\0\0\0\0\0\0\x36\0\0\0"
    "\x28\0\0\0\3\0\0\0\xFE\xFF\xFF\xFF\1\0\x20\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0"
    "\0\0\xFF\7\0\xFF\0\7\xFF\0\0\7"
    "\0\0\0\7\x80\x80\x80\7\xFF\xFF\xFF\7"s;

class BmpFile : public testing::Test {
 protected:
  BmpPicture Read(std::string_view bytes) {
    folder_.Write("page.tmp", bytes);
    return ReadBmp(page_);
  }

  support::AppFolderScope folder_;
  const std::filesystem::path page_ = folder_.path / "page.tmp";
};

TEST_F(BmpFile, IsReadAndWrittenByteForByte) {
  const BmpPicture picture = Read(kFile);
  EXPECT_EQ(picture.pixels.Row(1)[2], 0xFF);  // the red at the top left
  EXPECT_EQ(picture.dotsPerInch, 96);
  EXPECT_EQ(Read(kTopDown).pixels, picture.pixels);
  WriteBmp(page_, picture.pixels, 96);
  EXPECT_EQ(foundation::ReadFile(page_), kFile);
}

TEST_F(BmpFile, IsRefusedWhereItIsAnotherKindOrCut) {
  const std::pair<std::size_t, std::vector<std::string>> changes[] = {
      {0, {"PM"}},             // another mark,
      {14, {"\x0C"}},          // header,
      {28, {"\x08"}},          // depth,
      {26, {"\2"}},            // planes,
      {30, {"\1"}},            // compression
      {2, {"\x4F"}},           // sizes of the file
      {34, {"\x19"}},          // and the image beyond the end,
      {10, {"\x37", "\x0E"}},  // a start there and in the header
      {18, {"\5", "\0"s, "\xFF\xFF\xFF\x7F", "\xFF\xFF\xFF\xFF"}},  // widths,
      {18, {"\0\0\0\x40\2\0\0\0\1\0\x20"s}},                        // rows of 4 GiB,
      {22, {"\3", "\0\0\0\x80"s}}};                                 // heights
  for (const auto& [at, all] : changes) {
    for (const std::string& bytes : all) {
      SCOPED_TRACE(at);
      EXPECT_ERROR(InvalidCall, Read(std::string(kFile).replace(at, bytes.size(), bytes)));
    }
  }
  for (std::size_t size = 0; size < kFile.size(); ++size) {
    EXPECT_ERROR(InvalidCall, Read(kFile.substr(0, size)));
  }
}

TEST_F(BmpFile, TellsWhatTheDiskRefuses) {
  EXPECT_ERROR(FileNotFound, ReadBmp(folder_.path / "none.tmp"));
  EXPECT_ERROR(FileAccess, ReadBmp(folder_.path));
  EXPECT_ERROR(FileAccess, WriteBmp(folder_.path / "none" / "page.tmp", Pixels(1, 1), 96));
  EXPECT_ERROR(FileAccess, WriteBmp("/dev/full", Pixels(1, 1), 96));
  EXPECT_ERROR(InvalidCall, WriteBmp(page_, Pixels(), 96));
}

}  // namespace
}  // namespace bitmap
