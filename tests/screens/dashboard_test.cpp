#include "screens/dashboard.h"

#include <gtest/gtest.h>

#include "support/errors.h"

namespace screens {
namespace {

TEST(DashboardForm, ShowsItsFirstFiguresAtOnce) {
  Dashboard d;
  d.clock.now = foundation::DateFromParts(2011, 3, 5) + 0.5;
  d.form.Form_Load();
  EXPECT_EQ(d.form.lblSR.caption, "06:43:00");
  EXPECT_EQ(d.form.Timer1.interval, 1000);
  EXPECT_EQ(d.form.caption, "Durvela 2");
  EXPECT_EQ(d.form.VersionCaption.caption, "version 2.0");
}

TEST(DashboardForm, AsksBeforeItEnds) {
  Dashboard d;
  bool cancel = false;
  d.form.Form_QueryUnload(cancel);
  EXPECT_TRUE(cancel);
  ASSERT_EQ(d.boxes.shown.size(), 1U);
  EXPECT_EQ(d.boxes.shown[0].text, "Are you sure you want to exit?");
  EXPECT_EQ(d.boxes.shown[0].icon, foundation::MessageIcon::Exclamation);
  EXPECT_EQ(d.boxes.shown[0].buttons, foundation::MessageButtons::YesNo);
  EXPECT_TRUE(d.host.calls.empty());

  d.boxes.answer = foundation::MessageAnswer::Yes;
  EXPECT_THROW(d.form.Form_QueryUnload(cancel), support::ProgramEnded);
}

TEST(DashboardMenu, UnderlinesTheItemUnderTheMouse) {
  Dashboard d;
  d.form.LBL[3].onMouseMove({});
  EXPECT_TRUE(d.form.LBL[3].font.underline);
  d.form.PIC[7].onMouseMove({});
  EXPECT_FALSE(d.form.LBL[3].font.underline);
  EXPECT_TRUE(d.form.LBL[7].font.underline);
  EXPECT_TRUE(d.form.PIC[7].hot);
  d.form.Image1.onMouseMove({});
  for (int i = 0; i < frmMain::kMenuItems; ++i) {
    EXPECT_FALSE(d.form.LBL[i].font.underline);
    EXPECT_FALSE(d.form.PIC[i].hot);
  }
}

TEST(DashboardMenu, OpensOnlyWhatThereIs) {
  Dashboard d;
  EXPECT_FALSE(d.form.PIC[1].enabled);
  EXPECT_FALSE(d.form.LBL[1].enabled);
  d.form.PIC[1].onClick();  // nothing to open, and nothing happens

  int opened = 0;
  d.form.SetMenuItem(1, [&] { ++opened; });
  EXPECT_TRUE(d.form.PIC[1].enabled);
  d.form.PIC[1].onClick();
  d.form.LBL[1].onClick();
  EXPECT_EQ(opened, 2);
  EXPECT_FALSE(d.form.PIC[2].enabled);
  EXPECT_ERROR(Subscript, d.form.SetMenuItem(8, [] {}));
}

TEST(DashboardForm, IgnoresAClickOnAnEmptyContactLine) {
  Dashboard d;
  d.form.Label1.onClick();
  EXPECT_TRUE(d.browser.opened.empty());
}

}  // namespace
}  // namespace screens
