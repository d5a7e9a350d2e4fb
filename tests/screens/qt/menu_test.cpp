// The whole program: what the dashboard's menu opens, and the timetable in its window.

#include <gtest/gtest.h>

#include <QApplication>
#include <QDateTimeEdit>
#include <QKeyEvent>
#include <QPushButton>
#include <QScrollBar>
#include <QSettings>
#include <QTemporaryDir>
#include <QTimer>
#include <QWheelEvent>

#include "atlas/modEncDec.h"
#include "screens/qt/application.h"
#include "screens/timetable.h"
#include "support/app_folder.h"

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
  WholeProgram() { QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder_.path()); }

  QTemporaryDir folder_;  // of the settings
};

TEST_F(WholeProgram, OpensEveryMenuItemAndClosesItByEscape) {
  Program program;
  program.Start();
  const char* titles[] = {"What is Durvela",        "Durvela",    "About Durvela",
                          "Calculation of Durvela", "Products",   "Sitara Desk",
                          "Yama Ghantak",           "Gulika Kaal"};
  for (int i = 0; i < frmMain::kMenuItems; ++i) {
    QString seen;
    const auto close = [&] {
      FormWindow* window = OtherWindow();
      if (window == nullptr) return;
      seen = window->windowTitle();
      QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
      QWidget* focus = window->focusWidget();
      QApplication::sendEvent(focus != nullptr ? focus : window, &escape);
    };
    QTimer::singleShot(0, close);  // while a modal one holds up the click
    program.dashboard.PIC_Click(i);
    if (seen.isEmpty()) close();
    EXPECT_EQ(seen, QString::fromUtf8(titles[i]));
    EXPECT_EQ(OtherWindow(), nullptr);
  }
}

TEST_F(WholeProgram, ShowsASavedPlaceOnTheDashboard) {
  Program program;
  program.Start();
  program.host.Show(program.Timetable());
  program.Timetable().lblCity.caption = "Ujjain(Madhya Pradesh)";
  QTimer::singleShot(0, [] { QApplication::activeModalWidget()->close(); });
  program.host.WindowOf(program.Timetable())
      .findChild<QPushButton*>(QStringLiteral("cmdSave"))
      ->click();
  program.dashboard.Timer1_Timer();
  EXPECT_EQ(program.dashboard.lblCity.caption, "Ujjain(Madhya Pradesh)");
}

// A report of a year is made; within it the picker loads; and at each turn of both a second passes.
TEST_F(WholeProgram, TicksOnWhileAReportIsMadeAndThePickerLoads) {
  const support::AppFolderScope folder;
  const foundation::ByteText ujjain("Ujjain,Ujjain,,India,23.11,N,75.46,E");
  const std::string line = atlas::EncodeText(ujjain, atlas::kAtlasKey).Bytes() + "\r\n";
  std::string places;
  for (int i = 0; i < 300; ++i) places += line;
  folder.Write("atlas/India.city", places);

  support::FakeClock clock;
  clock.now = foundation::DateFromParts(2011, 3, 5);
  Program program(clock);
  program.Start();
  frmDurvela& timetable = program.Timetable();
  program.host.Show(timetable);
  timetable.DT1.moment = foundation::DateFromParts(2011, 1, 1);
  timetable.DT2.moment = foundation::DateFromParts(2011, 12, 31);

  int ticks = 0;
  QTimer second;
  QObject::connect(&second, &QTimer::timeout, [&] {
    clock.now += foundation::TimeFromParts(0, 0, 1);
    program.dashboard.Timer1_Timer();
    ++ticks;
  });
  second.start(0);
  QTimer::singleShot(0, [&] { program.Picker().Load("India", "Ujjain", timetable); });
  timetable.cmdPreview_Click();
  second.stop();

  EXPECT_GE(ticks, 365 + 300);
  EXPECT_EQ(program.dashboard.lblTime.caption, std::to_string(ticks / 3600) + ":" +
                                                   std::to_string(ticks / 60 % 60) + ":" +
                                                   std::to_string(ticks % 60));
  EXPECT_EQ(program.Picker().lstCity.items->ListCount(), 300);
  EXPECT_EQ(program.Preview().cmbPage.items->ListCount(), 12);
  EXPECT_NE(program.Preview().PIC.picture, nullptr);
}

struct RecordingHost : QtHost {
  support::RecordingTarget target;
  forms::DrawingTarget& TargetOf(forms::Control&) override { return target; }
};

// A timetable on fakes, in a window of one host or the other.
template <typename Host>
struct ShownTimetable {
  ShownTimetable() { host.Show(form); }
  ~ShownTimetable() { host.Unload(form); }

  Timetable fakes;
  Host host;
  frmDurvela form{
      Services{fakes.clock, fakes.settings, fakes.session, fakes.boxes, fakes.browser, host},
      fakes.dashboard,
      {[this]() -> frmCity& { return fakes.picker.form; }, {}}};
  FormWindow& window = host.WindowOf(form);
};

TEST(TimetableWindow, DrawsTheRangeThatItsPickersShow) {
  ShownTimetable<RecordingHost> shown;
  auto& [fakes, host, form, window] = shown;
  const auto picker = [&](const char* name) {
    return window.findChild<QDateTimeEdit*>(QString::fromLatin1(name));
  };
  EXPECT_EQ(picker("DT2")->date(), QDate(2011, 4, 5));
  EXPECT_EQ(picker("dtTime")->time(), QTime(12, 0));
  picker("DT2")->setDate(QDate(2011, 3, 8));
  host.target.calls.clear();
  window.findChild<QPushButton*>(QStringLiteral("cmdShow"))->click();

  std::vector<std::string> rows;
  for (const std::string& call : host.target.calls) {
    if (call.starts_with("Print")) rows.push_back(call);
  }
  ASSERT_EQ(rows.size(), 15U);  // three days
  EXPECT_EQ(rows[0], "Print 200 0 5-3-2011");
  EXPECT_EQ(rows[11], "Print 1700 680 Monday");
  EXPECT_EQ(rows[14], "Print 4900 680 09:36:45");
}

// Which the toolkit does for the mouse alone.
TEST(TimetableWindow, DropsTheCalendarDownByKey) {
  ShownTimetable<QtHost> shown;
  auto* picker = shown.window.findChild<QDateTimeEdit*>(QStringLiteral("DT1"));
  const auto press = [](QWidget* widget, Qt::Key key, Qt::KeyboardModifiers with = {}) {
    QKeyEvent event(QEvent::KeyPress, key, with);
    QApplication::sendEvent(widget, &event);
  };
  for (const auto& [key, with] :
       {std::pair(Qt::Key_F4, Qt::NoModifier), std::pair(Qt::Key_Down, Qt::AltModifier)}) {
    press(picker, key, with);
    QWidget* calendar = QApplication::activePopupWidget();
    ASSERT_NE(calendar, nullptr);
    const QDate before = picker->date();
    press(calendar->focusWidget(), Qt::Key_Down);
    EXPECT_EQ(picker->date(), before.addDays(7));
    press(calendar->focusWidget(), Qt::Key_Escape);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
  }
}

// What is drawn is seen, and a move of the form moves its window.
TEST(TimetableWindow, ShowsItsPageAndMoves) {
  ShownTimetable<QtHost> shown;
  auto& [fakes, host, form, window] = shown;
  const auto inkOnPage = [&] {
    const QImage page = window.findChild<QWidget*>(QStringLiteral("frRes"))->grab().toImage();
    int dark = 0;
    for (int y = 0; y < page.height(); ++y) {
      for (int x = 0; x < page.width(); ++x) dark += page.pixelColor(x, y).lightness() < 128;
    }
    return dark;
  };
  const int month = inkOnPage();
  EXPECT_GT(month, 1000);
  window.findChild<QDateTimeEdit*>(QStringLiteral("DT2"))->setDate(QDate(2011, 3, 6));
  window.findChild<QPushButton*>(QStringLiteral("cmdShow"))->click();
  EXPECT_LT(inkOnPage(), month / 10);
  // The mouse reaches the page inside its frame.
  EXPECT_EQ(window.childAt(600, 400)->objectName(), u"picRes");
  const QPointF over(600, 400);
  QWheelEvent wheel(over, over, QPoint(), QPoint(0, -240), Qt::NoButton, Qt::NoModifier,
                    Qt::NoScrollPhase, false);
  QApplication::sendEvent(window.childAt(600, 400), &wheel);
  EXPECT_LT(form.picRes.place.top, 0);
  EXPECT_GT(window.findChild<QScrollBar*>(QStringLiteral("VScroll1"))->value(), 0);
  form.left += 300;
  window.Mirror();
  EXPECT_EQ(window.x(), ToPixels(form.left));
}

}  // namespace
}  // namespace screens::qt
