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

  // Presses the left button there, and releases it at another point.
  void Drag(const forms::Control& control, QPoint to) {
    QTest::mousePress(Under(control), Qt::LeftButton);
    EXPECT_TRUE(form.PIC[1].pressed);
    QTest::mouseRelease(Under(control), Qt::LeftButton, {}, to);
    EXPECT_FALSE(form.PIC[1].pressed);
  }

  QtHost toolkit;
  FormWindow& window = toolkit.WindowOf(form);
};

TEST_F(DashboardWindow, AsksBeforeItCloses) {
  window.close();
  EXPECT_TRUE(window.isVisible() && host.calls.empty());
  EXPECT_EQ(boxes.shown.at(0).text, "Are you sure you want to exit?");
  EXPECT_EQ(boxes.shown.at(0).buttons, foundation::MessageButtons::YesNo);
  boxes.answer = foundation::MessageAnswer::Yes;
  bool cancel = false;
  EXPECT_THROW(form.Form_QueryUnload(cancel), support::ProgramEnded);
}

TEST_F(DashboardWindow, ScalesItsControlsWithItsSize) {
  window.resize(1260, 1120);
  QApplication::processEvents();
  EXPECT_EQ(window.findChild<QWidget*>(u"Card"_s)->geometry().center(),
            QPoint(qRound(703 * 1.5) - 1, 187 * 2 - 1));
}

TEST_F(DashboardWindow, FollowsTheClockEachSecond) {
  EXPECT_EQ(window.findChild<QWidget*>(u"lblSR"_s)->accessibleName(), u"06:43:00");
  clock.now += 1.0 / 86400;
  EXPECT_TRUE(QTest::qWaitFor([&] { return form.lblTime.caption == "12:0:1"; }, 20000));
}

TEST_F(DashboardWindow, OpensAndHighlightsMenuItemsAlsoByTheirCaption) {
  int opened = 0;
  form.SetMenuItem(1, [&] { ++opened; });
  form.SetMenuItem(2, [] {});
  window.Mirror();
  for (const forms::Control* part : {&form.LBL[1], &form.PIC[1]}) {
    const auto lit = [&] { return form.PIC[1].hot && form.LBL[1].font.underline; };
    QTest::mouseMove(Under(*part), {5, 5});
    EXPECT_TRUE(lit());
    EXPECT_EQ(Under(*part)->cursor().shape(), Qt::PointingHandCursor);
    QTest::mouseMove(Under(form.PIC[2]), {5, 5});
    EXPECT_TRUE(!lit() && form.PIC[2].hot);
    QTest::mouseMove(Under(form.Image1), {5, 5});
    EXPECT_FALSE(form.PIC[2].hot);
    Drag(*part, {-20, -20});
    EXPECT_EQ(opened, 0);  // released outside
    Drag(*part, {5, 5});
    EXPECT_EQ(std::exchange(opened, 0), 1);
  }
}

TEST_F(DashboardWindow, MovesThroughItsMenuByKeys) {
  std::string opened;
  for (const int item : {1, 2, 4, 6}) {
    form.SetMenuItem(item, [&, item] { opened += std::to_string(item); });
  }
  form.activeControl = &form.PIC[2];
  window.Mirror();
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
