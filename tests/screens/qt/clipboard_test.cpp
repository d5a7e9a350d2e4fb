// Pictures on the clipboard, and saved pictures as Qt reads them.

#include <gtest/gtest.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QImage>
#include <QTemporaryDir>

#include "bitmap/cDIBSection.h"
#include "bitmap/libjpeg_library.h"
#include "bitmap/mIntelJPEGLibrary.h"
#include "screens/qt/qt_clipboard.h"
#include "support/machine_fakes.h"

namespace screens::qt {
namespace {

bool Copy(double width, double height, decltype(forms::Picture::items) items) {
  const forms::Picture picture = {width, height, std::move(items)};
  return QtClipboard().SetPicture(std::make_shared<const forms::Picture>(picture));
}

QImage Held() {
  return QGuiApplication::clipboard()->image();
}

TEST(Clipboard, HoldsThePictureAsPixelsUntilTheNext) {
  const forms::Raster raster = {2, 1, {255, 0, 0, 9, 8, 7}};
  // A pixel is 150 twips wide, so it is not rendered again.
  ASSERT_TRUE(Copy(300, 150, {forms::Dots{std::make_shared<const forms::Raster>(raster)}}));
  ASSERT_EQ(Held().size(), QSize(2, 1));
  EXPECT_EQ(Held().pixelColor(1, 0), QColor(9, 8, 7));

  const forms::Outline box = {forms::Path::Box({0, 0}, 45, 15), forms::Rgb(0x102030), {}};
  ASSERT_TRUE(Copy(45, 30, {box}));
  EXPECT_EQ(Held().pixelColor(2, 0), QColor(0x10, 0x20, 0x30));
  EXPECT_EQ(Held().pixelColor(2, 1), QColor(Qt::white));

  EXPECT_FALSE(QtClipboard().SetPicture(nullptr) || Copy(0, 0, {}));
  EXPECT_EQ(Held().size(), QSize(3, 2));
}

// Read back by another decoder than the writer's: the red pixel is where it was.
TEST(SavedPicture, IsReadByQt) {
  bitmap::cDIBSection dib;
  ASSERT_TRUE(dib.Create(9, 9));
  dib.hdc()->Row(8)[2] = 255;
  const QTemporaryDir folder;
  const QString file = folder.filePath(QStringLiteral("red.jpg"));
  bitmap::LibjpegLibrary library;
  support::FakeMessageBoxes boxes;
  ASSERT_TRUE(bitmap::SaveJPG(dib, file.toStdString(), 100, library, boxes));
  const QImage read(file);
  ASSERT_EQ(read.size(), QSize(9, 9));
  EXPECT_GT(read.pixelColor(0, 0).red(), read.pixelColor(0, 0).green() + 50);
  EXPECT_LT(read.pixelColor(8, 8).red(), 5);
}

}  // namespace
}  // namespace screens::qt
