// The city picker in its window: text box, drop-down and list by mouse and keyboard.

#include "screens/picker.h"

#include <gtest/gtest.h>

#include <QTest>
#include <QtWidgets>

#include "screens/find_in_list.h"
#include "screens/qt/qt_host.h"
#include "screens/qt/qt_machine.h"
#include "screens/qt/qt_painting.h"

namespace screens::qt {
namespace {

using namespace Qt::StringLiterals;

struct PickerWindow : testing::Test, Picker {
  PickerWindow() {
    form.Load("India", "Delhi", caller);
    toolkit.Show(form);
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
  }

  // After the existing ones.
  void AddPlaces(int count) {
    for (int i = 0; i < count; ++i) form.lstCity.items->AddItem("Zira " + std::to_string(100 + i));
    window.Mirror();
  }

  void ScrollDown() { list->verticalScrollBar()->setValue(list->verticalScrollBar()->maximum()); }

  bool IsInView(int row) const {
    return list->viewport()->rect().contains(list->visualRect(list->model()->index(row, 0)));
  }

  // The list's current entry after a key press.
  QString Chosen(QWidget* widget, Qt::Key key) {
    QTest::keyClick(widget, key);
    return list->currentIndex().data().toString();
  }

  QtHost toolkit;
  FormWindow& window = toolkit.WindowOf(form);
  QLineEdit* text = window.findChild<QLineEdit*>(u"txtCity"_s);
  QListView* list = window.findChild<QListView*>(u"lstCity"_s);
  QComboBox* countries = window.findChild<QComboBox*>(u"cmbCountry"_s);
};

TEST_F(PickerWindow, FollowsTypingAndArrows) {
  EXPECT_EQ(QApplication::focusWidget(), text);
  EXPECT_EQ(text->selectedText(), u"Delhi");
  QKeyEvent heldDownSinceBefore(QEvent::KeyPress, Qt::Key_Return, {}, {}, true);
  QApplication::sendEvent(text, &heldDownSinceBefore);
  EXPECT_TRUE(host.calls.empty());
  EXPECT_EQ(Chosen(text, Qt::Key_U), u"Ujjain, Madhya Pradesh, India");
  EXPECT_EQ(Chosen(text, Qt::Key_Up), u"Delhi Cantonment, Delhi, India");
  EXPECT_EQ(Chosen(list, Qt::Key_Up), u"Delhi, Delhi, India");
  QTest::keyClick(list, Qt::Key_Space, Qt::ControlModifier);
  EXPECT_TRUE(list->selectionModel()->isSelected(list->currentIndex()));
  QTest::keyClick(list, Qt::Key_Return);
  EXPECT_EQ(caller.lblCity.caption, "Delhi(Delhi)");  // the list's own move has reached the form
}

TEST_F(PickerWindow, ShowsTheChosenCountryWithoutChoosingAPlace) {
  emit countries->activated(1);  // Fiji
  list->setFocus();
  EXPECT_FALSE(list->currentIndex().isValid());
  EXPECT_EQ(Picker::Chosen(), "none");
  EXPECT_EQ(Chosen(list, Qt::Key_Down), u"Nadi, Western, Fiji");
}

TEST_F(PickerWindow, KeepsItsTextsUncutAndItsRowInViewWhenResized) {
  AddPlaces(100);
  Select(form.lstCity, 60);
  window.Mirror();
  const auto resize = [&](QSize size) {
    window.resize(size);
    QApplication::processEvents();
  };
  for (const QSize size : {QSize(636, 524), {400, 780}, {700, 300}, {318, 262}}) {
    resize(size);
    EXPECT_GE(countries->height(), countries->fontMetrics().height() + 4);
    EXPECT_LE(countries->geometry().bottom(), text->y());
    EXPECT_TRUE(IsInView(60)) << size.width() << " by " << size.height();
  }
  // The list stays where the user has scrolled it.
  list->scrollTo(list->model()->index(20, 0), QListView::PositionAtTop);
  resize({636, 524});
  EXPECT_EQ(list->indexAt({0, 0}).row(), 20);
}

TEST_F(PickerWindow, ScrollsBackToThePlaceSearchedFor) {
  AddPlaces(100);
  ScrollDown();
  EXPECT_TRUE(IsInView(103));
  EXPECT_TRUE(list->verticalScrollBar()->isVisible());
  EXPECT_LE(list->viewport()->geometry().right(), list->verticalScrollBar()->parentWidget()->x());
  QTest::keyClicks(text, u"del"_s);
  ScrollDown();
  QTest::keyClicks(text, u"h"_s);
  EXPECT_EQ(Picker::Chosen(), "Delhi, Delhi, India");
  EXPECT_TRUE(IsInView(list->currentIndex().row()));
  ScrollDown();
  window.hide();
  window.show();
  EXPECT_TRUE(IsInView(list->currentIndex().row()));
}

TEST_F(PickerWindow, ShowsLongTextsInTips) {
  const auto tipOver = [](QAbstractItemView* view, int row) {
    const QPoint at = view->visualRect(view->model()->index(row, 0)).center();
    QHelpEvent help(QEvent::ToolTip, at, view->viewport()->mapToGlobal(at));
    QToolTip::hideText();
    EXPECT_TRUE(QTest::qWaitFor([] { return !QToolTip::isVisible(); }));
    QApplication::sendEvent(view->viewport(), &help);
    return QToolTip::isVisible() ? QToolTip::text() : QString();
  };
  const std::string place = "Valle Huejucar (Fraccionamiento Popular), Aguascalientes";
  form.lstCity.items->AddItem(place);
  form.cmbCountry.items->AddItem(place);
  window.Mirror();
  EXPECT_EQ(tipOver(list, 1), QString());
  EXPECT_EQ(tipOver(list, 4), ToQt(place));
  countries->showPopup();
  const int last = countries->count() - 1;
  EXPECT_EQ(tipOver(countries->view(), 0), QString());
  EXPECT_EQ(tipOver(countries->view(), last), ToQt(place));
  countries->hidePopup();
  EXPECT_EQ(countries->toolTip(), QString());
  form.cmbCountry.items->SetListIndex(last);
  window.Mirror();
  EXPECT_EQ(countries->toolTip(), ToQt(place));
}

TEST_F(PickerWindow, HidesWhenAnotherWindowIsActivated) {
  toolkit.Show(caller);
  EXPECT_TRUE(QTest::qWaitFor([&] { return host.calls.size() == 1; }, 20000));
}

// The list shows new entries while the program is still loading, and never more than exist.
TEST_F(PickerWindow, RespondsBetweenEntries) {
  QtYielder events;
  yielder.between = [&](int) { events.Yield(); };
  // Another country is chosen while one is loading.
  QTimer::singleShot(0, [&] { FindInCombo("Fiji", form.cmbCountry); });
  FindInCombo("Atlantis", form.cmbCountry);
  window.Mirror();
  EXPECT_EQ(list->model()->rowCount(), 1);
  toolkit.Unload(form);
  form.lstCity.items->Clear();  // notifies a window that no longer exists
}

}  // namespace
}  // namespace screens::qt
