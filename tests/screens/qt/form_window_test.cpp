// The dashboard in its window, driven as by a user.

#include "screens/qt/form_window.h"

#include <gtest/gtest.h>

#include <QTest>

#include "screens/qt/qt_host.h"
#include "screens/qt/qt_painting.h"
#include "support/dashboard.h"

namespace screens::qt {
namespace {

using namespace Qt::StringLiterals;

struct DashboardWindow : testing::Test, Dashboard {
  DashboardWindow() {
    toolkit.Show(form);
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
    QApplication::processEvents();
  }

  // The widget that the mouse reaches at a control's centre.
  QWidget* Under(const forms::Control& control) {
    return window.childAt(PlaceInPixels(control).center());
  }

  QtHost toolkit;
  FormWindow& window = toolkit.WindowOf(form);
};

TEST_F(DashboardWindow, ShowsItsFiguresAndAsksBeforeItCloses) {
  EXPECT_EQ(window.findChild<QWidget*>(u"lblSR"_s)->accessibleName(), u"06:43:00");
  window.close();
  EXPECT_EQ(boxes.shown.size(), 1U);
  EXPECT_TRUE(window.isVisible());
}

TEST_F(DashboardWindow, ScalesItsControlsWithItsSize) {
  window.resize(1260, 1120);
  QApplication::processEvents();
  EXPECT_EQ(window.findChild<QWidget*>(u"Card"_s)->geometry().center(),
            QPoint(qRound(703 * 1.5) - 1, 187 * 2 - 1));
}

TEST_F(DashboardWindow, FollowsTheClockEachSecond) {
  clock.now += 1.0 / 86400;
  EXPECT_TRUE(QTest::qWaitFor([&] { return form.lblTime.caption == "12:0:1"; }, 20000));
}

TEST_F(DashboardWindow, OpensMenuItemsByTheirCaptionToo) {
  int opened = 0;
  form.SetMenuItem(1, [&] { ++opened; });
  window.Mirror();
  const forms::Control& caption = form.LBL[1];
  QTest::mouseMove(Under(caption), {5, 5});
  EXPECT_TRUE(caption.font.underline);
  EXPECT_EQ(Under(caption)->cursor().shape(), Qt::PointingHandCursor);
  QTest::mouseMove(Under(form.Image1), {5, 5});
  EXPECT_FALSE(caption.font.underline);
  QTest::mousePress(Under(caption), Qt::LeftButton);
  EXPECT_TRUE(form.PIC[1].pressed && opened == 0);
  QTest::mouseRelease(Under(caption), Qt::LeftButton);
  EXPECT_EQ(opened, 1);
  // A press that is released outside opens nothing.
  const forms::Control& tile = form.PIC[1];
  for (QWidget* part : {Under(caption), Under(tile)}) {
    QTest::mousePress(part, Qt::LeftButton);
    QTest::mouseRelease(part, Qt::LeftButton, {}, {-20, -20});
    EXPECT_TRUE(!tile.pressed && opened == 1);
  }
}

TEST_F(DashboardWindow, MovesThroughItsMenuByKeys) {
  std::string opened;
  for (const int item : {1, 2, 4, 6}) {
    form.SetMenuItem(item, [&, item] { opened += std::to_string(item); });
  }
  form.activeControl = &form.PIC[2];
  window.Mirror();
  window.activateWindow();
  QApplication::processEvents();
  const auto press = [&](std::initializer_list<Qt::Key> keys) {
    for (const Qt::Key key : keys) QTest::keyClick(QApplication::focusWidget(), key);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    return std::exchange(opened, "");
  };
  EXPECT_EQ(press({Qt::Key_Right}), "4");  // skips a disabled item
  EXPECT_EQ(press({Qt::Key_Right, Qt::Key_Right}), "6");
  EXPECT_EQ(press({Qt::Key_Left, Qt::Key_Left}), "2");
  EXPECT_EQ(press({Qt::Key_Left, Qt::Key_Left}), "1");
  EXPECT_EQ(press({Qt::Key_End}), "6");
  EXPECT_EQ(press({Qt::Key_Home}), "1");
  EXPECT_EQ(press({Qt::Key_Up, Qt::Key_Down}), "1");
  EXPECT_EQ(press({Qt::Key_Tab}), "2");
}

// Only a place that is cut short has a tool tip and receives the mouse.
TEST_F(DashboardWindow, ShowsALongPlaceInATip) {
  const auto* city = window.findChild<QWidget*>(u"lblCity"_s);
  EXPECT_TRUE(city->toolTip().isEmpty());
  EXPECT_NE(Under(form.lblCity), city);
  const std::string place = "Valle Huejucar (Fraccionamiento Popular)(Aguascalientes)";
  SaveDefault("city", place);
  form.Timer1_Timer();
  window.Mirror();
  EXPECT_EQ(city->toolTip(), ToQt(place));
  EXPECT_EQ(Under(form.lblCity), city);
}

}  // namespace
}  // namespace screens::qt
