// The preferences and the list of zones in their windows, by keyboard.

#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QListView>
#include <QTest>
#include <QTimer>

#include "screens/qt/whole_program.h"

namespace screens::qt {
namespace {

using namespace Qt::StringLiterals;

struct PreferencesWindow : testing::Test, WholeProgram {
  // Presses a key, during which a window may open, then runs `inside` in that window.
  static void Press(Qt::Key key, Qt::KeyboardModifiers modifiers, const QString& opens,
                    const std::function<void(const QWidget& window)>& inside) {
    bool opened = false;
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, [&] {
      const QWidget* focus = QApplication::focusWidget();
      if (opened || focus == nullptr || focus->window()->objectName() != opens) return;
      opened = true;
      inside(*focus->window());
    });
    poll.start(5);
    QTest::keyClick(QApplication::activeWindow(), key, modifiers);
    EXPECT_TRUE(QTest::qWaitFor([&] { return opened; })) << opens.toStdString();
  }
};

TEST_F(PreferencesWindow, NeedNoMouse) {
  program.Start();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&program.host.WindowOf(program.dashboard)));
  Press(Qt::Key_P, Qt::AltModifier, u"Preferences"_s, [&](const QWidget& window) {
    auto* choices = qobject_cast<QComboBox*>(window.focusWidget());
    ASSERT_TRUE(choices);
    QTest::keyClick(choices, Qt::Key_Down);
    EXPECT_EQ(choices->currentText(), u"The country's one zone");
    EXPECT_FALSE(program.Preferences().ChooseZone.enabled);
    QTest::keyClick(choices, Qt::Key_Up);
    Press(Qt::Key_Z, Qt::AltModifier, u"ZoneList"_s, [](const QWidget& list) {
      QTest::keyClicks(list.focusWidget(), u"kathm"_s);
      QTest::keyClick(list.focusWidget(), Qt::Key_Return);
    });
    EXPECT_EQ(program.Preferences().Zone.caption, "Asia/Kathmandu, UTC+5:45");
    QTest::keyClick(window.focusWidget(), Qt::Key_Escape);
  });
  EXPECT_FALSE(program.host.IsShown(program.Preferences()));
}

TEST_F(PreferencesWindow, KeepTheZoneInUseInViewAsTheSearchNarrowsAndWidens) {
  ZoneList& form = program.Zones();
  form.Load("Europe/London");
  program.host.Show(form);
  FormWindow& window = program.host.WindowOf(form);
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  const auto* list = window.findChild<QListView*>(u"Zones"_s);
  auto* text = window.findChild<QLineEdit*>(u"Search"_s);
  const auto inView = [&] {
    const QRect row = list->visualRect(list->currentIndex());
    return list->currentIndex().data().toString() == u"Europe/London" &&
           list->viewport()->rect().contains(row);
  };
  EXPECT_TRUE(inView());
  for (const int key : {Qt::Key_E, Qt::Key_U, Qt::Key_Backspace, Qt::Key_Backspace}) {
    QTest::keyClick(text, Qt::Key(key));
    EXPECT_TRUE(inView()) << text->text().toStdString();
  }
}

}  // namespace
}  // namespace screens::qt
