// The information screens, without a screen.

#include "screens/information.h"

#include <gtest/gtest.h>

#include "screens/credits.h"
#include "screens/frmAbout.h"
#include "support/dashboard.h"

namespace screens {
namespace {

TEST(InformationScreens, CloseByOk) {
  Fakes fakes;
  InformationScreen page(GulikPage(), fakes.host);
  page.ControlNamed("cmdOK").onClick();
  frmAbout about(fakes.services);
  about.cmdOK.onClick();
  EXPECT_EQ(fakes.host.calls, (std::vector<std::string>{"Unload frmGulik", "Unload frmAbout"}));
}

TEST(InformationScreens, ShowThePartsOfTheirOwnPeriods) {
  Fakes fakes;
  const auto table = [&](const InformationPage& of) {
    InformationScreen page(of, fakes.host);
    const std::string words = WordsOf(*page.ControlNamed("Week").picture);
    return words.substr(words.find('\n') + 1);
  };
  EXPECT_EQ(table(WhatIsPage()), "Durvela 8 2 7 5 6 4 3");
  EXPECT_EQ(table(GulikPage()), "Gulik 7 6 5 4 3 2 8");
  EXPECT_EQ(table(YumPage()), "Yum 5 4 3 2 8 7 6");
  EXPECT_EQ(table(CalculatePage()),
            table(WhatIsPage()) + "\n" + table(GulikPage()) + "\n" + table(YumPage()));
}

TEST(PeriodPictures, ShowTheTableAndTheSampleDay) {
  EXPECT_EQ(WordsOf(*WeekdayTable({Period::Durvela, Period::Yum})),
            "Sun Mon Tue Wed Thu Fri Sat\nDurvela 8 2 7 5 6 4 3\nYum 5 4 3 2 8 7 6");
  EXPECT_EQ(WordsOf(*SampleDay({Period::Gulik})),
            "1\n2\n3\n4 5\n6\n7\n8\nGulik 16:55 - 18:23\n06:43 18:23\nSaturday, 5-3-2011, Delhi");
  EXPECT_EQ(WordsOf(*SampleDay({Period::Durvela, Period::Gulik, Period::Yum})),
            "1\n2\n3\n4 5\n6\n7\n8\nDurvela 09:38 - 11:06\nGulik 16:55 - 18:23\n"
            "Yum 14:00 - 15:28\n06:43 18:23\nSaturday, 5-3-2011, Delhi");
}

TEST(About, CreditsTheWorkItUses) {
  const std::string credits = WordsOf(*CreditsPicture());
  for (const char* credit : {"GeoNames", "CC BY 4.0", "Qt 6", "Noto Sans"}) {
    EXPECT_NE(credits.find(credit), std::string::npos) << credit;
  }
}

TEST(About, ScrollsItsCreditsUntilTheMouseIsOverThem) {
  Fakes fakes;
  frmAbout form(fakes.services);
  forms::Place& credits = form.picS.place;
  const float top = credits.top;
  form.Timer1.onTimer();
  EXPECT_EQ(credits.top, top - 5);
  credits.top = 6 - credits.height;
  form.Timer1.onTimer();
  EXPECT_EQ(credits.top, 1 - credits.height);  // a strip of them is still visible
  form.Timer1.onTimer();
  EXPECT_EQ(credits.top, 2592);  // the bottom of their frame
  form.picS.onMouseMove({});
  EXPECT_FALSE(form.Timer1.enabled);
  form.Picture1.onMouseMove({});
  EXPECT_TRUE(form.Timer1.enabled);
}

TEST(About, RestartsItsCreditsAtTheBottomOfTheirFrameAtAnySize) {
  Fakes fakes;
  frmAbout form(fakes.services);
  form.Form_Load();
  forms::Place& credits = form.picS.place;
  form.scaleHeight *= 2;
  form.Form_Resize();
  const float top = credits.top;
  form.Timer1.onTimer();
  EXPECT_EQ(credits.top, top - 5);
  credits.top = -credits.height;
  form.Timer1.onTimer();
  EXPECT_EQ(credits.top, 2 * 2592);
}

}  // namespace
}  // namespace screens
