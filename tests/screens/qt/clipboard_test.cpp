// Pictures that leave the program to the toolkit's clipboard.

#include <gtest/gtest.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QImage>

#include "screens/qt/qt_clipboard.h"

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

}  // namespace
}  // namespace screens::qt
