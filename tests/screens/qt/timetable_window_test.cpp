// The timetable in its window, with the complete program.

#include <gtest/gtest.h>

#include <QTest>
#include <QtWidgets>

#include "screens/palette.h"
#include "screens/qt/qt_painting.h"
#include "screens/qt/whole_program.h"
#include "support/app_folder.h"
#include "support/locales.h"

namespace screens::qt {
namespace {

using namespace Qt::StringLiterals;

// Turns the wheel over a widget, one step down. Returns whether the widget accepts the event, so
// that nothing else scrolls.
bool AcceptsWheel(QWidget& widget) {
  const QPointF over = QRectF(widget.rect()).center();
  QWheelEvent wheel(over, widget.mapToGlobal(over), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                    Qt::NoScrollPhase, false);
  QApplication::sendEvent(&widget, &wheel);
  return wheel.isAccepted();
}

struct TimetableWindow : testing::Test, WholeProgram {
  TimetableWindow() {
    program.host.Show(form);
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
  }

  // What a field shows after its text is replaced and Enter is pressed.
  static QString Typed(QAbstractSpinBox* field, const QString& text) {
    QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(field, text);
    QTest::keyClick(field, Qt::Key_Return);
    return field->text();
  }
  static QString Pasted(QAbstractSpinBox* field, const QString& text) {
    QGuiApplication::clipboard()->setText(text);
    QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(field, Qt::Key_V, Qt::ControlModifier);
    QTest::keyClick(field, Qt::Key_Return);
    return field->text();
  }

  frmDurvela& form = program.Timetable();
  FormWindow& window = program.host.WindowOf(form);
  QAbstractSpinBox* start = window.findChild<QAbstractSpinBox*>(u"DT1"_s);
  QAbstractSpinBox* end = window.findChild<QAbstractSpinBox*>(u"DT2"_s);
  QAbstractSpinBox* time = window.findChild<QAbstractSpinBox*>(u"dtTime"_s);
  QPushButton* quickView = window.findChild<QPushButton*>(u"cmdShow"_s);
};

TEST_F(TimetableWindow, KeepsTheClockRunningWhileAReportIsMade) {
  const support::AppFolderScope folder;
  int ticks = 0;
  QTimer second;
  QObject::connect(&second, &QTimer::timeout, [&] {
    program.dashboard.Timer1_Timer();
    ++ticks;
  });
  second.start(0);
  form.cmdPreview_Click();
  EXPECT_GE(ticks, 32);  // days
  const auto* pages = program.host.WindowOf(program.Preview()).findChild<QComboBox*>(u"cmbPage"_s);
  ASSERT_EQ(pages->count(), 2);
  EXPECT_EQ(pages->itemText(1), u"2: Durvela April 2011 ..P2");
}

TEST_F(TimetableWindow, NoticesAnotherClockWhenItComesBack) {
  FormWindow& dashboard = program.host.WindowOf(program.dashboard);
  program.host.Show(program.dashboard);
  ASSERT_TRUE(QTest::qWaitForWindowActive(&dashboard));
  foundation::SettingsFile store;
  atlas::SaveClockChoice(store, atlas::ClockChoice::Country);
  EXPECT_FALSE(form.picRes.faded);
  program.host.Show(form);
  EXPECT_TRUE(QTest::qWaitFor([&] { return form.picRes.faded && form.lblZone.visible; }));
}

TEST_F(TimetableWindow, AcceptsTypedAndPastedText) {
  EXPECT_EQ(Typed(start, u"1/12/2026"_s), u"1/December/2026");
  EXPECT_EQ(Typed(start, u"05/March/2011"_s), u"5/March/2011");
  EXPECT_EQ(form.DT1.moment, foundation::DateFromParts(2011, 3, 5));
  EXPECT_EQ(Typed(time, u"6:05 pm"_s), u"06:05 PM");
  EXPECT_EQ(Pasted(time, u"7:30\u202FAM"_s), u"07:30 AM");  // with a narrow space
  // Shows the plain name and reads the inflected one, here with a decomposed letter.
  foundation::LocaleNames names = foundation::EnglishNames();
  names.months[8] = "wrzesień";
  names.datedMonths[8] = "września";
  const support::UserNamesScope scope(names);
  EXPECT_EQ(Pasted(end, u"1 wrzes\u0301nia 2011"_s), u"1/wrzesień/2011");
}

TEST_F(TimetableWindow, AcceptsTextOnlyWhenTheFocusLeaves) {
  const auto before = form.DT1.moment;
  QTest::keyClicks(start, u"7/3/20"_s);  // replaces the selected text
  QFocusEvent menu(QEvent::FocusOut, Qt::PopupFocusReason);
  QApplication::sendEvent(start, &menu);
  EXPECT_EQ(form.DT1.moment, before);
  QTest::keyClicks(start, u"11"_s);
  quickView->click();  // as by its access key, without the mouse
  EXPECT_EQ(start->text(), u"7/March/2011");
}

TEST_F(TimetableWindow, ShowsRefusedTextUntilADateReplacesIt) {
  const auto frame = [&] { return end->grab().toImage().pixelColor(1, end->height() / 2); };
  EXPECT_EQ(Typed(end, u"31/2/2011"_s), u"31/2/2011");
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

TEST_F(TimetableWindow, StepsThePartAtTheCursorAndSelectsItForTyping) {
  const auto step = [](QAbstractSpinBox* field, int cursor, Qt::Key key) {
    auto* line = field->findChild<QLineEdit*>();
    line->setCursorPosition(cursor);
    QTest::keyClick(field, key);
    return field->text() + u": "_s + line->selectedText();
  };
  EXPECT_EQ(step(start, 1, Qt::Key_Down), u"4/March/2011: 4");
  EXPECT_EQ(step(start, 2, Qt::Key_Up), u"4/April/2011: April");
  EXPECT_EQ(step(start, 12, Qt::Key_PageUp), u"4/April/2021: 2021");
  EXPECT_EQ(step(time, 0, Qt::Key_Up), u"01:00 PM: 01");
  EXPECT_EQ(step(time, 5, Qt::Key_Down), u"12:59 PM: 59");
  EXPECT_EQ(step(time, 8, Qt::Key_Up), u"12:59 AM: AM");
  step(time, 0, Qt::Key_Up);
  // Two digits or a separator lead on to the next part.
  QTest::keyClicks(time, u"0730pm"_s);
  EXPECT_EQ(time->text(), u"07:30 pm");
  step(start, 0, Qt::Key_Up);
  QTest::keyClicks(start, u"6/04/2012"_s);
  EXPECT_EQ(start->text(), u"6/04/2012");
}

TEST_F(TimetableWindow, SelectsItsTextAtTheFirstClickButStepsThePartThere) {
  auto* line = time->findChild<QLineEdit*>();
  const QPoint minutes(line->fontMetrics().horizontalAdvance(u"12:0"_s), line->height() / 2);
  time->setFocus(Qt::MouseFocusReason);  // as a click does on a desktop
  for (const QString& selected : {u"12:00 PM"_s, QString()}) {
    QTest::mouseClick(line, Qt::LeftButton, {}, minutes);
    QApplication::processEvents();
    EXPECT_EQ(line->selectedText(), selected);
  }
  QTest::keyClick(time, Qt::Key_Up);
  EXPECT_EQ(time->text(), u"12:01 PM");
}

TEST_F(TimetableWindow, DropsItsCalendarDownByKeyAndMouse) {
  const auto choose = [&](Qt::Key last) {
    QWidget* calendar = QApplication::activePopupWidget();
    ASSERT_NE(calendar, nullptr);
    EXPECT_GE(calendar->y(), start->mapToGlobal(start->rect().bottomLeft()).y());
    QTest::keyClick(calendar->focusWidget(), Qt::Key_Down);
    QTest::keyClick(calendar->focusWidget(), last);
    EXPECT_FALSE(calendar->isVisible());
  };
  QTest::keyClick(start, Qt::Key_F4);
  choose(Qt::Key_Return);
  EXPECT_EQ(start->text(), u"12/March/2011");
  QTest::keyClick(start, Qt::Key_Down, Qt::AltModifier);
  choose(Qt::Key_Escape);
  QTest::mouseClick(start, Qt::LeftButton, {}, {start->width() - 10, start->height() / 2});
  choose(Qt::Key_Return);
  EXPECT_EQ(form.DT1.moment, foundation::DateFromParts(2011, 3, 19));
}

// Turning the wheel over them while scrolling a page changes nothing; a drop-down never moves.
TEST_F(TimetableWindow, LeavesFieldsWithoutTheFocusAlone) {
  quickView->setFocus();
  for (QAbstractSpinBox* field : {start, end, time}) {
    const QString before = field->text();
    EXPECT_FALSE(AcceptsWheel(*field));
    EXPECT_EQ(field->text(), before);
  }
  auto* countries = program.host.WindowOf(program.Picker()).findChild<QComboBox*>(u"cmbCountry"_s);
  countries->addItems({u"Fiji"_s, u"India"_s});
  countries->setFocus();
  EXPECT_FALSE(AcceptsWheel(*countries));
  EXPECT_EQ(countries->currentText(), u"Fiji");
}

TEST_F(TimetableWindow, GivesALongPlaceTheRoomBesideItsCaption) {
  form.lblCity.caption = "Leisure Village West(New Jersey)";
  window.Mirror();
  EXPECT_EQ(window.findChild<QWidget*>(u"lblCity"_s)->toolTip(), QString());  // it is not cut short
}

TEST_F(TimetableWindow, DrawsAndScrollsItsPage) {
  const auto page = [&] { return window.findChild<QWidget*>(u"frRes"_s)->grab().toImage(); };
  const QImage month = page();
  EXPECT_EQ(Typed(end, u"6/3/2011"_s), u"6/March/2011");
  quickView->click();
  EXPECT_NE(page(), month);
  EXPECT_EQ(Typed(end, u"5/4/2011"_s), u"5/April/2011");
  quickView->click();
  EXPECT_EQ(page(), month);
  // The mouse reaches the page inside its frame.
  EXPECT_TRUE(AcceptsWheel(*window.childAt(600, 400)));
  EXPECT_LT(form.picRes.place.top, 0);
  EXPECT_GT(window.findChild<QScrollBar*>(u"VScroll1"_s)->value(), 0);
  QTest::mousePress(quickView, Qt::LeftButton);
  QTest::mouseRelease(quickView, Qt::LeftButton, {}, {-20, -20});
  EXPECT_LT(form.picRes.place.top, 0);  // released outside the button, it does nothing
}

TEST_F(TimetableWindow, MovesWithItsForm) {
  form.left += 300;
  window.Mirror();
  EXPECT_EQ(window.x(), ToPixels(form.left));
}

}  // namespace
}  // namespace screens::qt
