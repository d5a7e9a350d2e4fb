#include "screens/dashboard.h"

#include <gtest/gtest.h>

#include "support/errors.h"

namespace screens {
namespace {

TEST(DashboardForm, AsksBeforeItEnds) {
  Dashboard d;
  bool cancel = false;
  d.form.Form_QueryUnload(cancel);
  EXPECT_TRUE(cancel && d.host.calls.empty());
  ASSERT_EQ(d.boxes.shown.size(), 1U);
  EXPECT_EQ(d.boxes.shown[0].text, "Are you sure you want to exit?");
  EXPECT_EQ(d.boxes.shown[0].icon, foundation::MessageIcon::Exclamation);
  EXPECT_EQ(d.boxes.shown[0].buttons, foundation::MessageButtons::YesNo);

  d.boxes.answer = foundation::MessageAnswer::Yes;
  EXPECT_THROW(d.form.Form_QueryUnload(cancel), support::ProgramEnded);
}

// Its number for the tile, and again for the caption.
std::string Lit(const frmMain& form) {
  std::string lit;
  for (int i = 0; i < frmMain::kMenuItems; ++i) {
    for (const bool part : {form.PIC[i].hot, form.LBL[i].font.underline}) {
      if (part) lit += std::to_string(i);
    }
  }
  return lit;
}

TEST(DashboardMenu, LightsTheItemUnderTheMouse) {
  Dashboard d;
  d.form.LBL[3].onMouseMove({});
  EXPECT_EQ(Lit(d.form), "33");
  d.form.PIC[7].onMouseMove({});
  EXPECT_EQ(Lit(d.form), "77");
  d.form.Image1.onMouseMove({});
  EXPECT_EQ(Lit(d.form), "");
}

TEST(DashboardMenu, OpensOnlyWhatThereIs) {
  Dashboard d;
  EXPECT_FALSE(d.form.PIC[1].enabled || d.form.LBL[1].enabled);
  d.form.PIC[1].onClick();  // nothing to open, and nothing happens

  int opened = 0;
  d.form.SetMenuItem(1, [&] { ++opened; });
  EXPECT_TRUE(d.form.PIC[1].enabled && !d.form.PIC[2].enabled);
  d.form.PIC[1].onClick();
  d.form.LBL[1].onClick();
  EXPECT_EQ(opened, 2);
  EXPECT_ERROR(Subscript, d.form.SetMenuItem(8, [] {}));
  d.form.Label1.onClick();  // an empty contact line
  EXPECT_TRUE(d.browser.opened.empty());
}

}  // namespace
}  // namespace screens
