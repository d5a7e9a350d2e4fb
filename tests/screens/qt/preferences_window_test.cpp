// The preferences and the list of zones in their windows, by keyboard.

#include <gtest/gtest.h>

#include <QApplication>
#include <QListView>
#include <QTest>
#include <QTimer>

#include "screens/qt/whole_program.h"

namespace screens::qt {
namespace {

using namespace Qt::StringLiterals;

struct PreferencesWindow : testing::Test, WholeProgram {};

// Presses a key with Alt, during which a window opens, and runs `inside` in its focus.
void Press(Qt::Key key, const QString& opens, const std::function<void(QWidget*)>& inside) {
  bool opened = false;
  QTimer poll;
  QObject::connect(&poll, &QTimer::timeout, [&] {
    QWidget* focus = QApplication::focusWidget();
    if (opened || focus == nullptr || focus->window()->objectName() != opens) return;
    opened = true;
    inside(focus);
  });
  poll.start(5);
  QTest::keyClick(QApplication::activeWindow(), key, Qt::AltModifier);
  EXPECT_TRUE(QTest::qWaitFor([&] { return opened; })) << opens.toStdString();
}

TEST_F(PreferencesWindow, NeedNoMouse) {
  program.Start();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&program.host.WindowOf(program.dashboard)));
  Press(Qt::Key_P, u"Preferences"_s, [&](QWidget* choices) {
    QTest::keyClick(choices, Qt::Key_Down);
    EXPECT_FALSE(program.Preferences().ChooseZone.enabled);
    QTest::keyClick(choices, Qt::Key_Up);
    Press(Qt::Key_Z, u"ZoneList"_s, [](QWidget* search) {
      QTest::keyClicks(search, u"kathm"_s);
      QTest::keyClick(search, Qt::Key_Return);
    });
    EXPECT_EQ(program.Preferences().Zone.caption, "Asia/Kathmandu, UTC+5:45");
    QTest::keyClick(choices->window()->focusWidget(), Qt::Key_Escape);
  });
  EXPECT_FALSE(program.host.IsShown(program.Preferences()));
}

TEST_F(PreferencesWindow, KeepTheZoneInUseInViewAsTheSearchNarrowsAndWidens) {
  program.Zones().Load("Europe/London");
  program.host.Show(program.Zones());
  FormWindow& window = program.host.WindowOf(program.Zones());
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  const auto* list = window.findChild<QListView*>(u"Zones"_s);
  for (const auto key :
       {Qt::Key_Shift, Qt::Key_E, Qt::Key_U, Qt::Key_Backspace, Qt::Key_Backspace}) {
    QTest::keyClick(window.findChild<QWidget*>(u"Search"_s), key);
    EXPECT_EQ(list->currentIndex().data().toString(), u"Europe/London");
    EXPECT_TRUE(list->viewport()->rect().contains(list->visualRect(list->currentIndex()))) << key;
  }
}

}  // namespace
}  // namespace screens::qt
