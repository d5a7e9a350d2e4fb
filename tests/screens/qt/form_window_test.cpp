// The dashboard in a window of the toolkit, driven as a user drives it.

#include "screens/qt/form_window.h"

#include <gtest/gtest.h>

#include <QMouseEvent>

#include "screens/dashboard.h"
#include "screens/qt/control_widget.h"
#include "screens/qt/driving.h"
#include "screens/qt/qt_host.h"

namespace screens::qt {
namespace {

class DashboardWindow : public testing::Test, protected Dashboard {
 protected:
  DashboardWindow() {
    host_.Show(form);
    Turn();
  }

  ControlWidget* Widget(const forms::Control& control) {
    for (ControlWidget* widget : window_.findChildren<ControlWidget*>()) {
      if (&widget->Model() == &control) return widget;
    }
    return nullptr;
  }

  static void Mouse(QWidget* widget, QEvent::Type type, Qt::MouseButton button = Qt::NoButton) {
    const QPointF at(5, 5);
    QMouseEvent event(type, at, widget->mapToGlobal(at), button, button, Qt::NoModifier);
    QApplication::sendEvent(widget, &event);
  }

  QtHost host_;
  FormWindow& window_ = host_.WindowOf(form);
};

TEST_F(DashboardWindow, ShowsTheFormAndAsksBeforeItCloses) {
  EXPECT_EQ(window_.windowTitle(), u"Durvela 2");
  EXPECT_EQ(window_.size(), QSize(840, 560));
  EXPECT_EQ(form.VersionCaption.caption, "version 2.0");
  EXPECT_EQ(form.Timer1.interval, 1000);
  EXPECT_EQ(Widget(form.lblSR)->accessibleName(), u"06:43:00");
  // Paper behind the figures, as far as the picture can tell.
  EXPECT_EQ(window_.grab().toImage().pixelColor(600, 180), QColor(0xFF, 0xF8, 0xEC));
  window_.close();
  EXPECT_EQ(boxes.shown.size(), 1U);
  EXPECT_TRUE(window_.isVisible());
}

TEST_F(DashboardWindow, ScalesItsControlsWithItsSize) {
  window_.resize(1260, 1120);
  Turn();
  EXPECT_EQ(form.scaleWidth, 18900);
  EXPECT_EQ(form.lblTime.font.size, 81);
  EXPECT_EQ(Widget(form.Card)->geometry().center(), QPoint(qRound(703 * 1.5) - 1, 187 * 2 - 1));
}

TEST_F(DashboardWindow, FollowsTheClockEachSecond) {
  clock.now += 1.0 / 86400;
  RunUntil([&] { return form.lblTime.caption == "12:0:1"; });
  EXPECT_EQ(Widget(form.lblTime)->accessibleName(), u"12:0:1");
}

TEST_F(DashboardWindow, OpensMenuItemsByMouseAndKeyboard) {
  int opened = 0;
  form.SetMenuItem(1, [&] { ++opened; });
  window_.Mirror();
  ControlWidget* tile = Widget(form.PIC[1]);

  Mouse(Widget(form.LBL[1]), QEvent::MouseMove);
  EXPECT_TRUE(form.LBL[1].font.underline);
  EXPECT_EQ(tile->cursor().shape(), Qt::PointingHandCursor);
  Mouse(Widget(form.Image1), QEvent::MouseMove);
  EXPECT_FALSE(form.LBL[1].font.underline);

  Mouse(tile, QEvent::MouseButtonPress, Qt::LeftButton);
  EXPECT_TRUE(form.PIC[1].pressed && opened == 0);
  Mouse(tile, QEvent::MouseButtonRelease, Qt::LeftButton);
  EXPECT_EQ(opened, 1);

  window_.activateWindow();
  Turn();
  Press(&window_, Qt::Key_Tab);
  EXPECT_EQ(QApplication::focusWidget(), tile);  // the only item that opens anything
  Press(tile, Qt::Key_Return);
  EXPECT_EQ(opened, 2);
}

}  // namespace
}  // namespace screens::qt
