// The whole program: what the dashboard's menu opens, and the timetable in its window.

#include <gtest/gtest.h>

#include <QDateTimeEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QSettings>
#include <QTemporaryDir>
#include <QTimer>
#include <QWheelEvent>

#include "atlas/modEncDec.h"
#include "screens/qt/application.h"
#include "screens/qt/driving.h"
#include "support/app_folder.h"
#include "support/machine_fakes.h"

namespace screens::qt {
namespace {

// The visible windows of forms but for the dashboard's.
FormWindow* OtherWindow() {
  for (QWidget* widget : QApplication::topLevelWidgets()) {
    auto* window = qobject_cast<FormWindow*>(widget);
    if (window != nullptr && window->isVisible() && window->objectName() != u"frmMain") {
      return window;
    }
  }
  return nullptr;
}

class WholeProgram : public testing::Test {
 protected:
  WholeProgram() {
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, settings_.path());
    clock_.now = foundation::DateFromParts(2011, 3, 5);
    program_.Start();
  }

  QTemporaryDir settings_;
  support::FakeClock clock_;
  Program program_{clock_};
};

TEST_F(WholeProgram, OpensEveryMenuItemAndClosesItByEscape) {
  const char* titles[] = {"What is Durvela",        "Durvela",    "About Durvela",
                          "Calculation of Durvela", "Products",   "Sitara Desk",
                          "Yama Ghantak",           "Gulika Kaal"};
  for (int i = 0; i < frmMain::kMenuItems; ++i) {
    QString seen;
    const auto close = [&] {
      if (FormWindow* window = OtherWindow()) {
        seen = window->windowTitle();
        QWidget* focus = window->focusWidget();
        Press(focus != nullptr ? focus : window, Qt::Key_Escape);
      }
    };
    QTimer::singleShot(0, close);  // while a modal one holds up the click
    program_.dashboard.PIC_Click(i);
    if (seen.isEmpty()) close();
    EXPECT_EQ(seen, QString::fromUtf8(titles[i]));
    EXPECT_EQ(OtherWindow(), nullptr);
  }
}

TEST_F(WholeProgram, ShowsASavedPlaceOnTheDashboard) {
  program_.host.Show(program_.Timetable());
  program_.Timetable().lblCity.caption = "Ujjain(Madhya Pradesh)";
  QTimer::singleShot(0, [] { QApplication::activeModalWidget()->close(); });
  Find<QPushButton>(program_.host.WindowOf(program_.Timetable()), "cmdSave")->click();
  program_.dashboard.Timer1_Timer();
  EXPECT_EQ(program_.dashboard.lblCity.caption, "Ujjain(Madhya Pradesh)");
}

// A report of a year is made; within it the picker loads; and at each turn of both a second passes.
TEST_F(WholeProgram, TicksOnWhileAReportIsMadeAndThePickerLoads) {
  const support::AppFolderScope folder;
  const foundation::ByteText ujjain("Ujjain,Ujjain,,India,23.11,N,75.46,E");
  const std::string line = atlas::EncodeText(ujjain, atlas::kAtlasKey).Bytes() + "\r\n";
  std::string places;
  for (int i = 0; i < 300; ++i) places += line;
  folder.Write("atlas/India.city", places);

  frmDurvela& timetable = program_.Timetable();
  program_.host.Show(timetable);
  timetable.DT1.moment = foundation::DateFromParts(2011, 1, 1);
  timetable.DT2.moment = foundation::DateFromParts(2011, 12, 31);

  int ticks = 0;
  QTimer second;
  QObject::connect(&second, &QTimer::timeout, [&] {
    clock_.now += foundation::TimeFromParts(0, 0, 1);
    program_.dashboard.Timer1_Timer();
    ++ticks;
  });
  second.start(0);
  QTimer::singleShot(0, [&] { program_.Picker().Load("India", "Ujjain", timetable); });
  timetable.cmdPreview_Click();
  second.stop();

  EXPECT_GE(ticks, 365 + 300);
  EXPECT_EQ(program_.dashboard.lblTime.caption, std::to_string(ticks / 3600) + ":" +
                                                    std::to_string(ticks / 60 % 60) + ":" +
                                                    std::to_string(ticks % 60));
  EXPECT_EQ(program_.Picker().lstCity.items->ListCount(), 300);
  EXPECT_EQ(program_.Preview().cmbPage.items->ListCount(), 12);
  EXPECT_NE(program_.Preview().PIC.picture, nullptr);
}

class TimetableWindow : public WholeProgram {
 protected:
  TimetableWindow() { program_.host.Show(form_); }

  frmDurvela& form_ = program_.Timetable();
  FormWindow& window_ = program_.host.WindowOf(form_);
};

// Which the toolkit does for the mouse alone.
TEST_F(TimetableWindow, DropsTheCalendarDownByKey) {
  auto* picker = Find<QDateTimeEdit>(window_, "DT1");
  for (const auto& [key, with] :
       {std::pair(Qt::Key_F4, Qt::NoModifier), std::pair(Qt::Key_Down, Qt::AltModifier)}) {
    Press(picker, key, with);
    QWidget* calendar = QApplication::activePopupWidget();
    ASSERT_NE(calendar, nullptr);
    const QDate before = picker->date();
    Press(calendar->focusWidget(), Qt::Key_Down);
    EXPECT_EQ(picker->date(), before.addDays(7));
    Press(calendar->focusWidget(), Qt::Key_Escape);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
  }
}

// What is drawn is seen, and a move of the form moves its window.
TEST_F(TimetableWindow, ShowsItsPageAndMoves) {
  const auto inkOnPage = [&] {
    const QImage page = Find<QWidget>(window_, "frRes")->grab().toImage();
    int dark = 0;
    for (int y = 0; y < page.height(); ++y) {
      for (int x = 0; x < page.width(); ++x) dark += page.pixelColor(x, y).lightness() < 128;
    }
    return dark;
  };
  const int month = inkOnPage();
  EXPECT_GT(month, 1000);
  auto* end = Find<QDateTimeEdit>(window_, "DT2");
  EXPECT_EQ(end->date(), QDate(2011, 4, 5));
  EXPECT_EQ(Find<QDateTimeEdit>(window_, "dtTime")->time(), QTime(12, 0));
  end->setDate(QDate(2011, 3, 6));
  EXPECT_EQ(form_.DT2.moment, foundation::DateFromParts(2011, 3, 6));
  Find<QPushButton>(window_, "cmdShow")->click();
  EXPECT_LT(inkOnPage(), month / 10);
  // The mouse reaches the page inside its frame.
  EXPECT_EQ(window_.childAt(600, 400)->objectName(), u"picRes");
  const QPointF over(600, 400);
  QWheelEvent wheel(over, over, QPoint(), QPoint(0, -240), Qt::NoButton, Qt::NoModifier,
                    Qt::NoScrollPhase, false);
  QApplication::sendEvent(window_.childAt(600, 400), &wheel);
  EXPECT_LT(form_.picRes.place.top, 0);
  EXPECT_GT(Find<QScrollBar>(window_, "VScroll1")->value(), 0);
  form_.left += 300;
  window_.Mirror();
  EXPECT_EQ(window_.x(), ToPixels(form_.left));
}

}  // namespace
}  // namespace screens::qt
