// The timetable in its window, with the complete program.

#include <gtest/gtest.h>

#include <QAbstractSpinBox>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>
#include <QTimer>

#include "screens/palette.h"
#include "screens/qt/qt_painting.h"
#include "screens/qt/wheel.h"
#include "screens/qt/whole_program.h"
#include "support/app_folder.h"
#include "support/locales.h"

namespace screens::qt {
namespace {

using namespace Qt::StringLiterals;

struct TimetableWindow : testing::Test, WholeProgram {
  TimetableWindow() { program.host.Show(form); }

  QAbstractSpinBox* Field(const QString& name) const {
    return window.findChild<QAbstractSpinBox*>(name);
  }

  frmDurvela& form = program.Timetable();
  FormWindow& window = program.host.WindowOf(form);
};

// The picker loads while a report for a year is made; a second passes at each step of either.
TEST_F(TimetableWindow, KeepsItsClockRunningWhileAReportIsMadeAndThePickerLoads) {
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

TEST_F(TimetableWindow, AcceptsTypedAndPastedText) {
  const auto type = [&](const QString& field, const QString& text, bool paste = false) {
    auto* picker = Field(field);
    QTest::keyClick(picker, Qt::Key_A, Qt::ControlModifier);
    if (paste) {
      QGuiApplication::clipboard()->setText(text);
      QTest::keyClick(picker, Qt::Key_V, Qt::ControlModifier);
    } else {
      QTest::keyClicks(picker, text);
    }
    EXPECT_EQ(picker->text().simplified(), text.simplified());  // no key is lost
    QTest::keyClick(picker, Qt::Key_Return);
    return picker->text();
  };
  EXPECT_EQ(Field(u"dtTime"_s)->text(), u"12:00 PM");
  EXPECT_EQ(type(u"DT1"_s, u"1/12/2026"_s), u"1/December/2026");
  EXPECT_EQ(type(u"DT1"_s, u"05/March/2011"_s), u"5/March/2011");
  EXPECT_EQ(type(u"DT1"_s, u"6 mar 2011\n"_s, true), u"6/March/2011");
  EXPECT_EQ(form.DT1.moment, foundation::DateFromParts(2011, 3, 6));
  EXPECT_EQ(type(u"dtTime"_s, u"6:05 pm"_s), u"06:05 PM");
  EXPECT_EQ(type(u"dtTime"_s, u"7:30\u202FAM"_s, true), u"07:30 AM");  // with a narrow space
  EXPECT_EQ(form.dtTime.moment, foundation::TimeFromParts(7, 30, 0));

  // Shows the plain name and reads the inflected one, here with a decomposed letter.
  foundation::LocaleNames names = foundation::EnglishNames();
  names.months[8] = "wrzesień";
  names.datedMonths[8] = "września";
  const support::UserNamesScope scope(names);
  EXPECT_EQ(type(u"DT2"_s, u"1 wrzes\u0301nia 2011"_s, true), u"1/wrzesień/2011");
}

TEST_F(TimetableWindow, AcceptsTextOnlyWhenTheFocusLeaves) {
  auto* start = Field(u"DT1"_s);
  const auto before = form.DT1.moment;
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  QTest::keyClicks(start, u"7/3/20"_s);  // replaces the selected text
  QFocusEvent menu(QEvent::FocusOut, Qt::PopupFocusReason);
  QApplication::sendEvent(start, &menu);
  EXPECT_EQ(form.DT1.moment, before);
  QTest::keyClicks(start, u"11"_s);
  window.findChild<QPushButton*>(u"cmdShow"_s)->click();  // as by its access key, without the mouse
  EXPECT_EQ(start->text(), u"7/March/2011");
  EXPECT_EQ(form.DT1.moment, foundation::DateFromParts(2011, 3, 7));
}

TEST_F(TimetableWindow, ShowsRefusedTextUntilADateReplacesIt) {
  auto* end = Field(u"DT2"_s);
  const auto frame = [&] { return end->grab().toImage().pixelColor(1, end->height() / 2); };
  QTest::keyClick(end, Qt::Key_A, Qt::ControlModifier);
  QTest::keyClicks(end, u"31/2/2011"_s);
  QTest::keyClick(end, Qt::Key_Return);
  EXPECT_EQ(end->text(), u"31/2/2011");
  EXPECT_EQ(frame(), ToQt(palette::kError));
  EXPECT_EQ(end->toolTip(), ToQt(form.DT2.refusal));
  EXPECT_EQ(end->accessibleDescription(), end->toolTip());
  EXPECT_TRUE(window.findChild<QWidget*>(u"EndRemark"_s)->isVisible());
  QTest::keyClick(end, Qt::Key_Up);  // has no date to step from
  EXPECT_EQ(form.DT2.moment, foundation::DateFromParts(2011, 4, 5));

  QTest::keyClick(end, Qt::Key_F4);
  QTest::keyClick(QApplication::activePopupWidget()->focusWidget(), Qt::Key_Return);
  EXPECT_EQ(end->text(), u"5/April/2011");
  EXPECT_NE(frame(), ToQt(palette::kError));
  EXPECT_TRUE(end->toolTip().isEmpty() && end->accessibleDescription().isEmpty());
}

TEST_F(TimetableWindow, StepsThePartAtTheCursorAndSelectsIt) {
  const auto step = [&](const QString& field, int cursor, Qt::Key key) {
    auto* picker = Field(field);
    auto* line = picker->findChild<QLineEdit*>();
    line->setCursorPosition(cursor);
    QTest::keyClick(picker, key);
    return picker->text() + u": "_s + line->selectedText();
  };
  EXPECT_EQ(step(u"DT1"_s, 1, Qt::Key_Down), u"4/March/2011: 4");
  EXPECT_EQ(step(u"DT1"_s, 2, Qt::Key_Up), u"4/April/2011: April");
  EXPECT_EQ(step(u"DT1"_s, 12, Qt::Key_PageUp), u"4/April/2021: 2021");
  EXPECT_EQ(step(u"dtTime"_s, 0, Qt::Key_Up), u"01:00 PM: 01");
  EXPECT_EQ(step(u"dtTime"_s, 5, Qt::Key_Down), u"12:59 PM: 59");
  EXPECT_EQ(step(u"dtTime"_s, 8, Qt::Key_Up), u"12:59 AM: AM");
}

TEST_F(TimetableWindow, DropsItsCalendarDownByKeyAndMouse) {
  auto* picker = Field(u"DT1"_s);
  const auto choose = [&](Qt::Key last) {
    QWidget* calendar = QApplication::activePopupWidget();
    ASSERT_NE(calendar, nullptr);
    EXPECT_GE(calendar->y(), picker->mapToGlobal(picker->rect().bottomLeft()).y());
    QTest::keyClick(calendar->focusWidget(), Qt::Key_Down);
    QTest::keyClick(calendar->focusWidget(), last);
    EXPECT_FALSE(calendar->isVisible());
  };
  QTest::keyClick(picker, Qt::Key_F4);
  choose(Qt::Key_Return);
  EXPECT_EQ(picker->text(), u"12/March/2011");
  QTest::keyClick(picker, Qt::Key_Down, Qt::AltModifier);
  choose(Qt::Key_Escape);
  QTest::mouseClick(picker, Qt::LeftButton, {}, {picker->width() - 10, picker->height() / 2});
  choose(Qt::Key_Return);
  EXPECT_EQ(form.DT1.moment, foundation::DateFromParts(2011, 3, 19));
}

// Turning the wheel over them while scrolling a page changes nothing.
TEST_F(TimetableWindow, LeavesFieldsWithoutTheFocusAlone) {
  window.findChild<QWidget*>(u"cmdShow"_s)->setFocus();
  for (const QString& name : {u"DT1"_s, u"DT2"_s, u"dtTime"_s}) {
    const QString before = Field(name)->text();
    EXPECT_FALSE(AcceptsWheel(*Field(name)));
    EXPECT_EQ(Field(name)->text(), before);
  }
}

TEST_F(TimetableWindow, GivesALongPlaceTheRoomBesideItsCaption) {
  form.lblCity.caption = "Leisure Village West(New Jersey)";
  window.Mirror();
  EXPECT_EQ(window.findChild<QWidget*>(u"lblCity"_s)->toolTip(), QString());  // it is not cut short
}

// Drawing changes the window, and moving the form moves it.
TEST_F(TimetableWindow, ShowsItsPageAndMoves) {
  const auto page = [&] { return window.findChild<QWidget*>(u"frRes"_s)->grab().toImage(); };
  const QImage month = page();
  EXPECT_EQ(Field(u"DT2"_s)->text(), u"5/April/2011");
  form.DT2.moment = foundation::DateFromParts(2011, 3, 6);
  auto* quickView = window.findChild<QPushButton*>(u"cmdShow"_s);
  quickView->click();
  EXPECT_NE(page(), month);
  form.DT2.moment = foundation::DateFromParts(2011, 4, 5);
  quickView->click();
  // The mouse reaches the page inside its frame.
  EXPECT_TRUE(AcceptsWheel(*window.childAt(600, 400)));
  EXPECT_LT(form.picRes.place.top, 0);
  EXPECT_GT(window.findChild<QScrollBar*>(u"VScroll1"_s)->value(), 0);
  QTest::mousePress(quickView, Qt::LeftButton);
  QTest::mouseRelease(quickView, Qt::LeftButton, {}, {-20, -20});
  EXPECT_LT(form.picRes.place.top, 0);  // released outside the button, it does nothing
  form.left += 300;
  window.Mirror();
  EXPECT_EQ(window.x(), ToPixels(form.left));
}

}  // namespace
}  // namespace screens::qt
