// Pictures that leave the program: to the toolkit's clipboard, and in files that it reads.

#include <gtest/gtest.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QImage>
#include <QTemporaryDir>
#include <algorithm>
#include <array>

#include "bitmap/cDIBSection.h"
#include "bitmap/libjpeg_library.h"
#include "bitmap/mIntelJPEGLibrary.h"
#include "screens/qt/qt_clipboard.h"
#include "support/machine_fakes.h"

namespace screens::qt {
namespace {

forms::PicturePtr PictureOf(double width, double height, decltype(forms::Picture::items) items) {
  return std::make_shared<const forms::Picture>(forms::Picture{width, height, std::move(items)});
}

QImage Held() {
  return QGuiApplication::clipboard()->image();
}

TEST(Clipboard, HoldsThePictureInDotsUntilThereIsAnother) {
  QtClipboard clipboard;
  // A dot of four is 150 twips wide: it is not drawn anew.
  const std::vector<std::uint8_t> rgb = {255, 0, 0, 0, 255, 0, 0, 0, 255, 9, 8, 7};
  const auto raster = std::make_shared<const forms::Raster>(forms::Raster{2, 2, rgb});
  ASSERT_TRUE(clipboard.SetPicture(PictureOf(300, 300, {forms::Dots{raster}})));
  ASSERT_EQ(Held().size(), QSize(2, 2));
  EXPECT_EQ(Held().pixelColor(0, 0), QColor(255, 0, 0));
  EXPECT_EQ(Held().pixelColor(1, 1), QColor(9, 8, 7));

  const forms::Outline box = {forms::Path::Box({0, 0}, 45, 15), forms::Rgb(0x102030), {}};
  ASSERT_TRUE(clipboard.SetPicture(PictureOf(45, 30, {box})));
  ASSERT_EQ(Held().size(), QSize(3, 2));
  EXPECT_EQ(Held().pixelColor(2, 0), QColor(0x10, 0x20, 0x30));
  EXPECT_EQ(Held().pixelColor(2, 1), QColor(Qt::white));

  EXPECT_FALSE(clipboard.SetPicture(nullptr));
  EXPECT_FALSE(clipboard.SetPicture(PictureOf(0, 0, {})));
  EXPECT_EQ(Held().size(), QSize(3, 2));
}

// A decoder that is not the writer's: the red pixel is still where it was.
TEST(SavedPicture, IsReadByTheToolkit) {
  bitmap::cDIBSection dib;
  ASSERT_TRUE(dib.Create(9, 9));
  std::ranges::fill(dib.hdc()->Bytes(), std::uint8_t{255});
  std::ranges::copy(std::to_array<std::uint8_t>({0, 0, 255}), &dib.hdc()->Row(8)[0]);
  const QTemporaryDir folder;
  const QString file = folder.filePath(QStringLiteral("red.jpg"));
  bitmap::LibjpegLibrary library;
  support::FakeMessageBoxes boxes;
  ASSERT_TRUE(bitmap::SaveJPG(dib, file.toStdString(), 100, library, boxes));
  const QImage read(file);
  ASSERT_EQ(read.size(), QSize(9, 9));
  EXPECT_GT(read.pixelColor(0, 0).red(), read.pixelColor(0, 0).green() + 50);
  EXPECT_GT(read.pixelColor(8, 8).green(), 250);
}

}  // namespace
}  // namespace screens::qt
