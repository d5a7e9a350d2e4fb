// The information screens, without a screen.

#include "screens/information.h"

#include <gtest/gtest.h>

#include "screens/dashboard.h"
#include "screens/frmAbout.h"
#include "support/table.h"

namespace screens {
namespace {

using support::Row;

TEST(InformationScreens, BearTheirTitlesAndCloseByOkAndEscape) {
  const auto titleOf = [](const InformationPage& (*page)(), const std::string& name) {
    support::FakeHost host;
    InformationScreen form(page(), host);
    form.ControlNamed("cmdOK").onClick();
    forms::KeyPress escape = {forms::Key::Escape};
    form.Form_KeyDown(escape);
    EXPECT_EQ(host.calls, std::vector<std::string>(2, "Unload " + name));
    EXPECT_EQ(form.caption, form.ControlNamed("lblTitle").caption);
    return form.caption;
  };
  ExpectRows(titleOf, Row(WhatIsPage, "frmWhatIs", "What is Durvela"),
             Row(CalculatePage, "frmCalculate", "Calculation of Durvela"),
             Row(GulikPage, "frmGulik", "Gulika Kaal"), Row(YumPage, "frmYum", "Yama Ghantak"),
             Row(ProductsPage, "frmProducts", "Products"),
             Row(SitaraDeskPage, "frmSitaraDesk", "Sitara Desk"));
}

TEST(PeriodPictures, TellTheTableAndTheSampleDay) {
  EXPECT_EQ(WordsOf(*WeekdayTable({Period::Durvela, Period::Yum})),
            "Sun Mon Tue Wed Thu Fri Sat\nDurvela 8 2 7 5 6 4 3\nYum 5 4 3 2 8 7 6");
  EXPECT_EQ(WordsOf(*SampleDay({Period::Gulik})),
            "1\n2\n3\n4 5\n6\n7\n8\nGulik 16:55 - 18:23\n06:43 18:23\nSaturday, 5-3-2011, Delhi");
}

struct About : testing::Test, Fakes {
  frmAbout form{services};
};

TEST_F(About, ShowsVersionAndCredits) {
  EXPECT_EQ(Words(form.caption, form.lblVersion.caption), "About Durvela Version 2.0.0 ");
  for (const char* credit : {"GeoNames", "CC BY 4.0", "Qt 6", "Noto Sans"}) {
    EXPECT_NE(WordsOf(*form.picS.picture).find(credit), std::string::npos) << credit;
  }
}

TEST_F(About, ScrollsItsCreditsUntilTheMouseIsOverThem) {
  EXPECT_EQ(form.Timer1.interval, 50);
  forms::Place& credits = form.picS.place;
  const float top = credits.top;
  form.Timer1.onTimer();
  EXPECT_EQ(credits.top, top - 5);
  credits.top = 6 - credits.height;
  form.Timer1.onTimer();
  EXPECT_EQ(credits.top, 1 - credits.height);
  form.Timer1.onTimer();
  EXPECT_EQ(credits.top, 2592);
  form.picS.onMouseMove({});
  EXPECT_FALSE(form.Timer1.enabled);
  form.Picture1.onMouseMove({});
  EXPECT_TRUE(form.Timer1.enabled);
}

TEST_F(About, HasNoSystemInformation) {
  form.cmdSysInfo.onClick();
  ASSERT_EQ(boxes.shown.size(), 1U);
  EXPECT_EQ(boxes.shown[0].text, "System Information Is Unavailable At This Time");
  form.cmdOK.onClick();
  EXPECT_EQ(host.calls, std::vector<std::string>{"Unload frmAbout"});
}

}  // namespace
}  // namespace screens
