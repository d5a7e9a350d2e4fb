#include "support/dashboard.h"

#include <gtest/gtest.h>

namespace screens {
namespace {

TEST(DashboardForm, AsksBeforeItEnds) {
  Dashboard d;
  bool cancel = false;
  d.form.Form_QueryUnload(cancel);
  EXPECT_TRUE(cancel && d.host.calls.empty());
  EXPECT_EQ(d.boxes.shown.at(0).text, "Are you sure you want to exit?");
  EXPECT_EQ(d.boxes.shown.at(0).buttons, foundation::MessageButtons::YesNo);
  d.boxes.answer = foundation::MessageAnswer::Yes;
  EXPECT_THROW(d.form.Form_QueryUnload(cancel), support::ProgramEnded);
}

TEST(DashboardForm, HighlightsTheMenuItemUnderTheMouse) {
  Dashboard d;
  const auto lit = [&](int i) { return d.form.PIC[i].hot && d.form.LBL[i].font.underline; };
  d.form.LBL[3].onMouseMove({});
  EXPECT_TRUE(lit(3));
  d.form.PIC[7].onMouseMove({});
  EXPECT_TRUE(lit(7) && !lit(3));
  d.form.Image1.onMouseMove({});
  EXPECT_FALSE(lit(7));
}

}  // namespace
}  // namespace screens
