// The information screens, without a screen.

#include "screens/information.h"

#include <gtest/gtest.h>

#include "screens/frmAbout.h"
#include "support/machine_fakes.h"
#include "support/screen_fakes.h"

namespace screens {
namespace {

TEST(InformationScreens, BearTheirTitlesAndCloseByOkAndEscape) {
  struct Row {
    const InformationPage& page;
    std::string_view name, title;
  };
  const Row rows[] = {{WhatIsPage(), "frmWhatIs", "What is Durvela"},
                      {CalculatePage(), "frmCalculate", "Calculation of Durvela"},
                      {GulikPage(), "frmGulik", "Gulika Kaal"},
                      {YumPage(), "frmYum", "Yama Ghantak"},
                      {ProductsPage(), "frmProducts", "Products"},
                      {SitaraDeskPage(), "frmSitaraDesk", "Sitara Desk"}};
  for (const Row& row : rows) {
    support::FakeHost host;
    InformationScreen form(row.page, host);
    EXPECT_EQ(form.name, row.name);
    EXPECT_EQ(form.caption, row.title);
    EXPECT_EQ(form.ControlNamed("lblTitle").caption, row.title);
    form.ControlNamed("cmdOK").onClick();
    forms::KeyPress escape = {forms::Key::Escape};
    form.Form_KeyDown(escape);
    EXPECT_EQ(host.calls, std::vector<std::string>(2, "Unload " + form.name));
  }
}

TEST(PeriodPictures, TellTheTableAndTheSampleDay) {
  EXPECT_EQ(WordsOf(*WeekdayTable({Period::Durvela, Period::Yum})),
            "Sun Mon Tue Wed Thu Fri Sat\nDurvela 8 2 7 5 6 4 3\nYum 5 4 3 2 8 7 6");
  EXPECT_EQ(WordsOf(*SampleDay({Period::Gulik})),
            "1\n2\n3\n4 5\n6\n7\n8\nGulik 16:55 - 18:23\n06:43 18:23\nSaturday, 5-3-2011, Delhi");
}

class About : public testing::Test {
 protected:
  support::FakeClock clock_;
  support::FakeSettings settings_;
  support::FakeMessageBoxes boxes_;
  support::FakeBrowser browser_;
  support::FakeHost host_;
  foundation::SessionTable session_;
  frmAbout form_{Services{clock_, settings_, session_, boxes_, browser_, host_}};
};

TEST_F(About, ShowsVersionAndCredits) {
  EXPECT_EQ(form_.caption, "About Durvela");
  EXPECT_EQ(form_.lblVersion.caption, "Version 2.0.0");
  for (const char* credit : {"GeoNames", "CC BY 4.0", "Qt 6", "libjpeg-turbo"}) {
    EXPECT_NE(WordsOf(*form_.picS.picture).find(credit), std::string::npos) << credit;
  }
}

TEST_F(About, ScrollsItsCreditsUntilTheMouseIsOverThem) {
  EXPECT_EQ(form_.Timer1.interval, 50);
  const float top = form_.picS.place.top;
  form_.Timer1.onTimer();
  EXPECT_EQ(form_.picS.place.top, top - 5);
  form_.picS.place.top = 6 - form_.picS.place.height;
  form_.Timer1.onTimer();
  EXPECT_EQ(form_.picS.place.top, 1 - form_.picS.place.height);
  form_.Timer1.onTimer();
  EXPECT_EQ(form_.picS.place.top, 2592);
  form_.picS.onMouseMove({});
  EXPECT_FALSE(form_.Timer1.enabled);
  form_.Picture1.onMouseMove({});
  EXPECT_TRUE(form_.Timer1.enabled);
}

TEST_F(About, HasNoSystemInformation) {
  form_.cmdSysInfo.onClick();
  ASSERT_EQ(boxes_.shown.size(), 1U);
  EXPECT_EQ(boxes_.shown[0].text, "System Information Is Unavailable At This Time");
  form_.cmdOK.onClick();
  EXPECT_EQ(host_.calls, std::vector<std::string>{"Unload frmAbout"});
}

}  // namespace
}  // namespace screens
