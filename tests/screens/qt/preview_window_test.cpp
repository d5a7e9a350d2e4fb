// The print preview in its window.

#include <gtest/gtest.h>

#include <QPushButton>
#include <QTest>

#include "screens/qt/whole_program.h"

namespace screens::qt {
namespace {

using namespace Qt::StringLiterals;

TEST(PreviewWindow, MovesTheFocusOutOfItsPanelWhenThatCloses) {
  WholeProgram whole;
  frmSPkun& preview = whole.program.Preview();
  whole.program.host.Show(preview);
  FormWindow& window = whole.program.host.WindowOf(preview);
  window.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  auto* list = window.findChild<QWidget*>(u"lstPage"_s);
  for (const auto* focus : {u"lstPage", u"cmdHide"}) {
    auto* widget = window.findChild<QWidget*>(QString::fromUtf16(focus));
    widget->setFocus();
    ASSERT_TRUE(widget->hasFocus());
    window.findChild<QPushButton*>(u"cmdHide"_s)->click();
    EXPECT_EQ(window.focusWidget()->objectName(), u"cmdShow");
    EXPECT_EQ(list->focusPolicy(), Qt::NoFocus);
    window.findChild<QPushButton*>(u"cmdShow"_s)->click();
  }
}

}  // namespace
}  // namespace screens::qt
