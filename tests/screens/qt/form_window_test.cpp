// The dashboard in a window of the toolkit, driven as a user drives it.

#include "screens/qt/form_window.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QMouseEvent>

#include "screens/dashboard.h"
#include "screens/qt/control_widget.h"
#include "screens/qt/qt_host.h"

namespace screens::qt {
namespace {

class DashboardWindow : public testing::Test {
 protected:
  DashboardWindow() {
    dashboard_.clock.now = foundation::DateFromParts(2011, 3, 5) + 0.5;
    host_.Show(dashboard_.form);
    window_ = &host_.WindowOf(dashboard_.form);
    Turn();
  }

  static void Turn() { QApplication::processEvents(); }

  ControlWidget* Widget(const forms::Control& control) {
    for (ControlWidget* widget : window_->findChildren<ControlWidget*>()) {
      if (&widget->Model() == &control) return widget;
    }
    return nullptr;
  }

  void Mouse(QWidget* widget, QEvent::Type type, Qt::MouseButton button = Qt::NoButton) {
    const QPointF at(5, 5);
    QMouseEvent event(type, at, widget->mapToGlobal(at), button, button, Qt::NoModifier);
    QApplication::sendEvent(widget, &event);
  }

  void Press(QWidget* widget, Qt::Key key) {
    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
    QApplication::sendEvent(widget, &event);
  }

  Dashboard dashboard_;
  QtHost host_;
  FormWindow* window_;
};

TEST_F(DashboardWindow, ShowsTheForm) {
  EXPECT_TRUE(window_->isVisible());
  EXPECT_EQ(window_->windowTitle(), QStringLiteral("Durvela 2"));
  EXPECT_EQ(window_->size(), QSize(840, 560));
  EXPECT_EQ(Widget(dashboard_.form.lblSR)->accessibleName(), QStringLiteral("06:43:00"));
  // Paper behind the figures, as far as the picture can tell.
  EXPECT_EQ(window_->grab().toImage().pixelColor(600, 180), QColor(0xFF, 0xF8, 0xEC));
}

TEST_F(DashboardWindow, ScalesItsControlsWithItsSize) {
  window_->resize(1260, 1120);
  Turn();
  EXPECT_EQ(dashboard_.form.scaleWidth, 18900);
  EXPECT_EQ(dashboard_.form.lblTime.font.size, 81);
  EXPECT_EQ(Widget(dashboard_.form.Card)->geometry().center(),
            QPoint(qRound(703 * 1.5) - 1, 187 * 2 - 1));
}

TEST_F(DashboardWindow, FollowsTheClockEachSecond) {
  QElapsedTimer time;
  time.start();
  dashboard_.clock.now += 1.0 / 86400;
  while (dashboard_.form.lblTime.caption != "12:0:1" && time.elapsed() < 20000) Turn();
  EXPECT_EQ(Widget(dashboard_.form.lblTime)->accessibleName(), QStringLiteral("12:0:1"));
}

TEST_F(DashboardWindow, AsksBeforeItCloses) {
  window_->close();
  EXPECT_EQ(dashboard_.boxes.shown.size(), 1U);
  EXPECT_TRUE(window_->isVisible());
}

TEST_F(DashboardWindow, OpensMenuItemsByMouseAndKeyboard) {
  int opened = 0;
  dashboard_.form.SetMenuItem(1, [&] { ++opened; });
  window_->Mirror();
  ControlWidget* tile = Widget(dashboard_.form.PIC[1]);
  ControlWidget* caption = Widget(dashboard_.form.LBL[1]);

  Mouse(caption, QEvent::MouseMove);
  EXPECT_TRUE(dashboard_.form.LBL[1].font.underline);
  EXPECT_EQ(tile->cursor().shape(), Qt::PointingHandCursor);
  Mouse(Widget(dashboard_.form.Image1), QEvent::MouseMove);
  EXPECT_FALSE(dashboard_.form.LBL[1].font.underline);

  Mouse(tile, QEvent::MouseButtonPress, Qt::LeftButton);
  EXPECT_TRUE(dashboard_.form.PIC[1].pressed);
  EXPECT_EQ(opened, 0);
  Mouse(tile, QEvent::MouseButtonRelease, Qt::LeftButton);
  EXPECT_EQ(opened, 1);

  window_->activateWindow();
  Turn();
  Press(window_, Qt::Key_Tab);
  EXPECT_EQ(QApplication::focusWidget(), tile);  // the only item that opens anything
  Press(tile, Qt::Key_Return);
  EXPECT_EQ(opened, 2);
}

}  // namespace
}  // namespace screens::qt
