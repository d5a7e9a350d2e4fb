// The city picker in its window: text box, drop-down and list by mouse and keyboard.

#include "screens/picker.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>
#include <QTimer>

#include "screens/find_in_list.h"
#include "screens/qt/qt_host.h"
#include "screens/qt/qt_machine.h"

namespace screens::qt {
namespace {

class PickerWindow : public testing::Test {
 protected:
  PickerWindow() {
    picker_.form.Load("India", "Delhi", picker_.caller);
    window_ = &host_.WindowOf(picker_.form);
    window_->show();
    window_->activateWindow();
    Turn();
    text_ = window_->findChild<QLineEdit*>(QStringLiteral("txtCity"));
    list_ = window_->findChild<QListView*>(QStringLiteral("lstCity"));
    countries_ = window_->findChild<QComboBox*>(QStringLiteral("cmbCountry"));
  }

  static void Turn() { QApplication::processEvents(); }
  static void Press(QWidget* widget, Qt::Key key, const QString& text = {}) {
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
    QApplication::sendEvent(widget, &press);
    Turn();
  }
  QString Chosen() const { return list_->currentIndex().data().toString(); }

  Picker picker_;
  QtHost host_;
  FormWindow* window_;
  QLineEdit* text_;
  QListView* list_;
  QComboBox* countries_;
};

TEST_F(PickerWindow, OpensInTheTextWithAllOfItSelected) {
  EXPECT_EQ(QApplication::focusWidget(), text_);
  EXPECT_EQ(text_->selectedText(), QStringLiteral("Delhi"));
  EXPECT_EQ(Chosen(), QStringLiteral("Delhi, Delhi, India"));
  EXPECT_EQ(countries_->currentText(), QStringLiteral("India"));
}

TEST_F(PickerWindow, FollowsTypingAndArrows) {
  Press(text_, Qt::Key_U, QStringLiteral("u"));
  EXPECT_EQ(Chosen(), QStringLiteral("Ujjain, Madhya Pradesh, India"));
  Press(text_, Qt::Key_Up);
  EXPECT_EQ(QApplication::focusWidget(), list_);
  EXPECT_EQ(Chosen(), QStringLiteral("Delhi Cantonment, Delhi, India"));
  Press(list_, Qt::Key_Up);
  EXPECT_EQ(picker_.Chosen(), "Delhi, Delhi, India");  // the list's own move reaches the form
  Press(list_, Qt::Key_Return);
  EXPECT_EQ(picker_.caller.lblCity.caption, "Delhi(Delhi)");
}

TEST_F(PickerWindow, ShowsTheCountryThatIsChosenWithoutAChoiceOfAPlace) {
  emit countries_->activated(1);  // Fiji
  EXPECT_EQ(list_->model()->rowCount(), 1);
  EXPECT_FALSE(list_->currentIndex().isValid());
  list_->setFocus();
  EXPECT_EQ(picker_.Chosen(), "none");
  Press(list_, Qt::Key_Down);
  EXPECT_EQ(picker_.Chosen(), "Nadi, Western, Fiji");
}

TEST_F(PickerWindow, KeepsItsChoiceVisible) {
  QKeyEvent toggle(QEvent::KeyPress, Qt::Key_Space, Qt::ControlModifier);
  QApplication::sendEvent(list_, &toggle);
  EXPECT_TRUE(list_->selectionModel()->isSelected(list_->currentIndex()));
}

TEST_F(PickerWindow, IsNotAnsweredByAKeyHeldDown) {
  QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QString(), true);
  QApplication::sendEvent(text_, &held);
  EXPECT_TRUE(picker_.host.calls.empty());
}

TEST_F(PickerWindow, HidesBehindAnotherWindow) {
  host_.Show(picker_.caller);
  for (int turns = 0; turns < 1000 && picker_.host.calls.empty(); ++turns) Turn();
  EXPECT_EQ(picker_.host.calls, std::vector<std::string>{"Hide frmCity"});
}

// The list takes in new entries while the program still loads, and never more than there are.
TEST(LoadingList, GoesOnBetweenTheEntries) {
  Picker picker;
  QtHost host;
  QtYielder events;
  picker.yielder.between = [&](int) { events.Yield(); };
  FormWindow& window = host.WindowOf(picker.form);
  window.show();
  QTimer again;  // another country comes in while one is loading
  again.setSingleShot(true);
  QObject::connect(&again, &QTimer::timeout, [&] { FindInCombo("Fiji", picker.form.cmbCountry); });
  again.start(0);
  picker.form.Load("India", "Delhi", picker.caller);
  window.Mirror();
  EXPECT_EQ(window.findChild<QListView*>(QStringLiteral("lstCity"))->model()->rowCount(), 1);
  host.Unload(picker.form);
  picker.form.lstCity.items->Clear();  // tells a window that has gone
}

}  // namespace
}  // namespace screens::qt
