// Where windows open on a screen of 800 by 800 pixels, each with a frame of 2 pixels.

#include "screens/qt/window_place.h"

#include <gtest/gtest.h>

#include <QTest>
#include <QtWidgets>

#include "forms/layout.h"
#include "screens/qt/qt_host.h"

namespace screens::qt {
namespace {

using forms::layout::kTwipsPerPixel;

struct SizedForm : forms::Form {
  SizedForm(float width, float height)
      : Form("SizedForm", "Sized", width * kTwipsPerPixel, height * kTwipsPerPixel) {
    minimumWidth = scaleWidth;
    minimumHeight = scaleHeight;
  }
};

struct WindowPlace : testing::Test {
  QRect Shown(forms::Form& form) {
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&host.WindowOf(form)));
    QTest::qWait(0);  // for events that its first paint posts
    return host.WindowOf(form).frameGeometry();
  }

  // The owner is shown first, at this place.
  QRect ShownModal(forms::Form& form, QPoint behind) {
    host.Show(owner);
    Shown(owner);
    host.WindowOf(owner).move(behind);
    Shown(owner);
    QRect place;
    QTimer::singleShot(0, [&] {
      place = Shown(form);
      host.Hide(form);
    });
    host.ShowModal(form, owner);
    return place;
  }

  SizedForm owner{300, 200}, dialog{200, 100}, large{2000, 1500};
  QtHost host;
  const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
};

TEST_F(WindowPlace, FillsTheScreenForALargerWindow) {
  host.Show(large);
  EXPECT_EQ(host.WindowOf(large).size().boundedTo(screen.size()), host.WindowOf(large).size());
  EXPECT_EQ(Shown(large), screen);
  EXPECT_EQ(large.scaleWidth, static_cast<float>(screen.width() - 4) * kTwipsPerPixel);
  host.WindowOf(large).Mirror();
  EXPECT_EQ(Shown(large), screen);  // although its form's minimum size is larger
  host.Unload(large);
  EXPECT_EQ(ShownModal(large, {100, 100}), screen);
}

TEST_F(WindowPlace, OfAModalWindowIsTheMiddleOfItsOwner) {
  const QRect place = ShownModal(dialog, {250, 350});
  EXPECT_EQ(place, host.WindowOf(owner).frameGeometry().adjusted(50, 50, -50, -50));
}

TEST_F(WindowPlace, OfAModalWindowIsOnTheScreen) {
  QWidget behind, before;
  before.resize(200, 100);
  behind.setGeometry(-280, 790, 300, 200);
  CentreOn(behind, before);
  EXPECT_EQ(before.geometry().bottomLeft(), screen.bottomLeft());
  behind.move(790, -180);
  CentreOn(behind, before);
  EXPECT_EQ(before.geometry().topRight(), screen.topRight());
}

}  // namespace
}  // namespace screens::qt
