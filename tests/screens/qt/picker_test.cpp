// The city picker in its window: text box, drop-down and list by mouse and keyboard.

#include "screens/picker.h"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QLineEdit>
#include <QListView>
#include <QTimer>

#include "screens/find_in_list.h"
#include "screens/qt/driving.h"
#include "screens/qt/qt_host.h"
#include "screens/qt/qt_machine.h"

namespace screens::qt {
namespace {

class PickerWindow : public testing::Test {
 protected:
  PickerWindow() {
    picker_.form.Load("India", "Delhi", picker_.caller);
    window_.show();
    window_.activateWindow();
    Turn();
  }

  // What is chosen in the list of the window, after a key.
  std::string Chosen(QWidget* widget, Qt::Key key, const QString& text = {}) {
    Press(widget, key, {}, text);
    Turn();
    return list_->currentIndex().data().toString().toStdString();
  }

  Picker picker_;
  QtHost host_;
  FormWindow& window_ = host_.WindowOf(picker_.form);
  QLineEdit* text_ = Find<QLineEdit>(window_, "txtCity");
  QListView* list_ = Find<QListView>(window_, "lstCity");
  QComboBox* countries_ = Find<QComboBox>(window_, "cmbCountry");
};

TEST_F(PickerWindow, FollowsTypingAndArrows) {
  EXPECT_EQ(QApplication::focusWidget(), text_);
  EXPECT_EQ(text_->selectedText(), u"Delhi");
  EXPECT_EQ(list_->currentIndex().data().toString(), u"Delhi, Delhi, India");
  EXPECT_EQ(countries_->currentText(), u"India");
  Press(text_, Qt::Key_Return, {}, {}, true);  // held down since before
  EXPECT_TRUE(picker_.host.calls.empty());
  EXPECT_EQ(Chosen(text_, Qt::Key_U, QStringLiteral("u")), "Ujjain, Madhya Pradesh, India");
  EXPECT_EQ(Chosen(text_, Qt::Key_Up), "Delhi Cantonment, Delhi, India");
  EXPECT_EQ(QApplication::focusWidget(), list_);
  Press(list_, Qt::Key_Up);
  EXPECT_EQ(picker_.Chosen(), "Delhi, Delhi, India");  // the list's own move reaches the form
  Press(list_, Qt::Key_Space, Qt::ControlModifier, QStringLiteral(" "));
  EXPECT_TRUE(list_->selectionModel()->isSelected(list_->currentIndex()));
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

TEST_F(PickerWindow, HidesBehindAnotherWindow) {
  host_.Show(picker_.caller);
  RunUntil([&] { return !picker_.host.calls.empty(); });
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
  // Another country comes in while one is loading.
  QTimer::singleShot(0, [&] { FindInCombo("Fiji", picker.form.cmbCountry); });
  picker.form.Load("India", "Delhi", picker.caller);
  window.Mirror();
  EXPECT_EQ(Find<QListView>(window, "lstCity")->model()->rowCount(), 1);
  host.Unload(picker.form);
  picker.form.lstCity.items->Clear();  // tells a window that has gone
}

}  // namespace
}  // namespace screens::qt
