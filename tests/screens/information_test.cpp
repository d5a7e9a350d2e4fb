// The information screens, without a screen.

#include "screens/information.h"

#include <gtest/gtest.h>

#include "screens/credits.h"
#include "screens/frmAbout.h"
#include "support/dashboard.h"

namespace screens {
namespace {

struct InformationScreens : testing::Test, Fakes {};

TEST_F(InformationScreens, ShowTheTableAndTheSampleDayOfTheirPeriods) {
  const auto words = [&](const InformationPage& of) {
    InformationScreen page(of, host);
    return WordsOf(*page.ControlNamed("Week").picture) + "\n" +
           WordsOf(*page.ControlNamed("Day").picture);
  };
  const auto expected = [](const std::string& parts, const std::string& periods) {
    return "Sun Mon Tue Wed Thu Fri Sat\n" + parts + "\n1\n2\n3\n4 5\n6\n7\n8\n" + periods +
           "\n06:43 18:23\nSaturday, 5-3-2011, Delhi";
  };
  EXPECT_EQ(words(WhatIsPage()), expected("Durvela 8 2 7 5 6 4 3", "Durvela 09:38 - 11:06"));
  EXPECT_EQ(words(GulikPage()), expected("Gulik 7 6 5 4 3 2 8", "Gulik 16:55 - 18:23"));
  EXPECT_EQ(words(YumPage()), expected("Yum 5 4 3 2 8 7 6", "Yum 14:00 - 15:28"));
  EXPECT_EQ(words(CalculatePage()),
            expected("Durvela 8 2 7 5 6 4 3\nGulik 7 6 5 4 3 2 8\nYum 5 4 3 2 8 7 6",
                     "Durvela 09:38 - 11:06\nGulik 16:55 - 18:23\nYum 14:00 - 15:28"));
}

TEST_F(InformationScreens, CloseByOk) {
  InformationScreen page(GulikPage(), host);
  page.ControlNamed("cmdOK").onClick();
  frmAbout about(services);
  about.cmdOK.onClick();
  EXPECT_EQ(host.calls, (std::vector<std::string>{"Unload frmGulik", "Unload frmAbout"}));
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
  const auto next = [&](float top) {
    credits.top = top;
    form.Timer1.onTimer();
    return credits.top;
  };
  form.Form_Load();
  for (const float size : {1.0F, 2.0F}) {
    form.scaleHeight *= size;
    form.Form_Resize();
    EXPECT_EQ(next(120), 115);
    EXPECT_EQ(next(6 - credits.height), 1 - credits.height);  // a strip of them is still visible
    EXPECT_EQ(next(1 - credits.height), 2592 * size);         // the bottom of their frame
  }
  form.picS.onMouseMove({});
  EXPECT_FALSE(form.Timer1.enabled);
  form.Picture1.onMouseMove({});
  EXPECT_TRUE(form.Timer1.enabled);
}

}  // namespace
}  // namespace screens
