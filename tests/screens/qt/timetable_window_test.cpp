// The timetable of the whole program in its window.

#include <gtest/gtest.h>

#include <QComboBox>
#include <QDateTimeEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>
#include <QTimer>
#include <QWheelEvent>

#include "screens/qt/whole_program.h"
#include "support/app_folder.h"

namespace screens::qt {
namespace {

using namespace Qt::StringLiterals;

struct TimetableWindow : testing::Test, WholeProgram {
  TimetableWindow() { program.host.Show(form); }

  frmDurvela& form = program.Timetable();
  FormWindow& window = program.host.WindowOf(form);
};

// A report of a year is made; within it the picker loads; and at each turn of both a second passes.
TEST_F(TimetableWindow, LetsTheClockGoOnWhileAReportIsMadeAndThePickerLoads) {
  const support::AppFolderScope folder;
  folder.Write("atlas/India.city", "");
  support::FakeYielder yielder;
  atlas::clsAtlas atlas(yielder);
  for (int i = 0; i < 300; ++i) {
    atlas.AddPlace("India", {"Ujjain", "Ujjain", "", "23.11", "N", "75.46", "E"});
  }
  form.DT1.moment = foundation::DateFromParts(2011, 1, 1);
  form.DT2.moment = foundation::DateFromParts(2011, 12, 31);

  int ticks = 0;
  QTimer second;
  QObject::connect(&second, &QTimer::timeout, [&] {
    clock.now += foundation::TimeFromParts(0, 0, 1);
    program.dashboard.Timer1_Timer();
    ++ticks;
  });
  second.start(0);
  QTimer::singleShot(0, [&] { program.Picker().Load("India", "Ujjain", form); });
  form.cmdPreview_Click();

  EXPECT_GE(ticks, 365 + 300);
  EXPECT_EQ(program.Picker().lstCity.items->ListCount(), 300);
  const auto* pages = program.host.WindowOf(program.Preview()).findChild<QComboBox*>(u"cmbPage"_s);
  ASSERT_EQ(pages->count(), 12);
  EXPECT_EQ(pages->itemText(11), u"12: Durvela December 2012 ..P12");
}

// Which the toolkit does for the mouse alone.
TEST_F(TimetableWindow, DropsTheCalendarDownByKey) {
  auto* picker = window.findChild<QDateTimeEdit*>(u"DT1"_s);
  for (const auto& [key, with] :
       {std::pair(Qt::Key_F4, Qt::NoModifier), std::pair(Qt::Key_Down, Qt::AltModifier)}) {
    QTest::keyClick(picker, key, with);
    QWidget* calendar = QApplication::activePopupWidget();
    ASSERT_NE(calendar, nullptr);
    const QDate before = picker->date();
    QTest::keyClick(calendar->focusWidget(), Qt::Key_Down);
    EXPECT_EQ(picker->date(), before.addDays(7));
    QTest::keyClick(calendar->focusWidget(), Qt::Key_Escape);
  }
}

// What is drawn is seen, and a move of the form moves its window.
TEST_F(TimetableWindow, ShowsItsPageAndMoves) {
  const auto page = [&] { return window.findChild<QWidget*>(u"frRes"_s)->grab().toImage(); };
  const QImage month = page();
  auto* end = window.findChild<QDateTimeEdit*>(u"DT2"_s);
  EXPECT_EQ(end->date(), QDate(2011, 4, 5));
  EXPECT_EQ(window.findChild<QDateTimeEdit*>(u"dtTime"_s)->time(), QTime(12, 0));
  end->setDate(QDate(2011, 3, 6));
  window.findChild<QPushButton*>(u"cmdShow"_s)->click();
  EXPECT_NE(page(), month);
  // The mouse reaches the page inside its frame.
  const QPointF over(600, 400);
  QWheelEvent wheel(over, over, QPoint(), QPoint(0, -240), Qt::NoButton, Qt::NoModifier,
                    Qt::NoScrollPhase, false);
  QApplication::sendEvent(window.childAt(600, 400), &wheel);
  EXPECT_LT(form.picRes.place.top, 0);
  EXPECT_GT(window.findChild<QScrollBar*>(u"VScroll1"_s)->value(), 0);
  form.left += 300;
  window.Mirror();
  EXPECT_EQ(window.x(), ToPixels(form.left));
}

}  // namespace
}  // namespace screens::qt
