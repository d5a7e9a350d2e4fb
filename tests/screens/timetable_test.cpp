// The timetable, without a screen.

#include "screens/timetable.h"

#include <gtest/gtest.h>

#include "dayperiods/clsUtilities.h"
#include "foundation/error.h"
#include "support/locales.h"

namespace screens {
namespace {

using foundation::DateFromParts;
using foundation::Error;
using Calls = std::vector<std::string>;

TEST(Timetable, BeginsWithAMonthFromTodayAtNoonInTheDefaultPlace) {
  struct Default {
    int year, month, day;
    foundation::DateTime end;
  };
  const Default defaults[] = {{2011, 3, 5, DateFromParts(2011, 4, 5)},
                              {2011, 1, 31, DateFromParts(2011, 3, 3)},
                              {2012, 1, 31, DateFromParts(2012, 3, 2)},
                              {2011, 12, 31, DateFromParts(2012, 1, 31)}};
  for (const Default& row : defaults) {
    Timetable timetable;
    timetable.clock.now = DateFromParts(row.year, row.month, row.day) + 0.9;
    timetable.settings.SaveSetting(foundation::kProgramName, "settings", "city", "Ujjain");
    timetable.form.Form_Load();
    EXPECT_EQ(timetable.form.DT1.moment, DateFromParts(row.year, row.month, row.day));
    EXPECT_EQ(timetable.form.DT2.moment, row.end);
    EXPECT_EQ(timetable.form.dtTime.moment, 0.5);
    EXPECT_EQ(timetable.form.lblCity.caption, "Ujjain");
    EXPECT_EQ(timetable.form.lblZoneTime.caption, "-5.30");
    EXPECT_EQ(timetable.session.Current().Day, row.day);
  }
}

// Delhi's sun on these days gives the figures; positions are twips, a line of the target 240 high.
TEST(Timetable, DrawsARowADay) {
  Timetable timetable;
  timetable.form.Form_Load();
  timetable.form.DT2.moment = DateFromParts(2011, 3, 7);
  timetable.host.target.calls.clear();
  timetable.form.cmdShow.onClick();
  const Calls expected = {"FontSize 13",           "Cls",
                          "Print 200 0 5-3-2011",  "Print 1700 0 Saturday",
                          "Print 3200 0 09:38:00", "Print 4400 0 to",
                          "Print 4900 0 11:05:30", "Print 200 340 6-3-2011",
                          "Print 1700 340 Sunday", "Print 3200 340 16:56:15",
                          "Print 4400 340 to",     "Print 4900 340 18:24:00"};
  EXPECT_EQ(timetable.Drawn(), expected);
}

TEST(Timetable, ComparesTimesOfDayToo) {
  struct Range {
    double start, end, time;
    std::size_t rows;
  };
  const double day = DateFromParts(2011, 3, 5);
  const Range ranges[] = {{day, day, 0.5, 0},      {day, day, 0, 1},
                          {day, day + 1, 0.5, 1},  {day, day + 1, 0, 2},
                          {day, day - 1, 0.5, 0},  {day, day + 365, 0.5, 365},
                          {day, day + 0.5, 0.5, 1}};
  for (const Range& range : ranges) {
    Timetable timetable;
    timetable.form.Form_Load();
    timetable.form.DT1.moment = range.start;
    timetable.form.DT2.moment = range.end;
    timetable.form.dtTime.moment = range.time;
    timetable.form.cmdShow_Click();
    EXPECT_EQ(timetable.Drawn().size(), 2 + 5 * range.rows);
  }
}

TEST(Timetable, NamesWeekdaysInTheUsersLanguage) {
  const support::UserNamesScope names(support::Hindi());
  Timetable timetable;
  timetable.form.Form_Load();
  EXPECT_EQ(timetable.Drawn()[3], "Print 1700 0 शनिवार");
}

TEST(Timetable, EndsItsListWithoutAWordWhereARowFails) {
  Timetable timetable;
  timetable.form.Form_Load();
  timetable.form.DT1.moment = DateFromParts(9998, 12, 30);
  timetable.form.DT2.moment = DateFromParts(9999, 12, 31);
  timetable.form.cmdShow_Click();
  EXPECT_EQ(timetable.Drawn().size(), 12U);  // the node has no year after 9999
  EXPECT_TRUE(timetable.boxes.shown.empty());
}

TEST(Timetable, SavesThePlaceThatItShows) {
  Timetable timetable;
  timetable.form.Form_Load();
  timetable.form.lblCity.caption = "Nadi(Western)";
  timetable.form.lblZoneTime.caption = "-12";
  timetable.form.cmdSave.onClick();
  const auto saved = [&](const char* key) {
    return timetable.settings.GetSetting(foundation::kProgramName, "settings", key, "none");
  };
  EXPECT_EQ(saved("city"), "Nadi(Western)");
  EXPECT_EQ(saved("zonetime"), "-12");
  EXPECT_EQ(saved("lat"), "28.40N");
  ASSERT_EQ(timetable.boxes.shown.size(), 1U);
  EXPECT_EQ(timetable.boxes.shown[0].text,
            "Place saved as default. It will load automatically next time");
  EXPECT_EQ(timetable.boxes.shown[0].icon, foundation::MessageIcon::Information);
}

TEST(Timetable, HandsItsRangeAndPlaceToTheReport) {
  Timetable timetable;
  timetable.form.Form_Load();
  timetable.form.cmdPreview.onClick();
  EXPECT_EQ(timetable.reports, (Calls{"Delhi 28.40N 77.13E 82.30E -5.30 India"}));
}

TEST(Timetable, EditsItsPlaceWithThePicker) {
  Timetable timetable;
  timetable.form.Form_Load();
  timetable.form.cmdEditPlace.onClick();
  EXPECT_EQ(timetable.host.calls.back(), "ShowModal frmCity of frmDurvela");
  forms::SetText(timetable.picker.form.txtCity, "Uj");
  timetable.picker.form.lstCity.onDoubleClick();
  EXPECT_EQ(timetable.form.lblCity.caption, "Ujjain(Madhya Pradesh)");
  EXPECT_EQ(timetable.form.lblLat.caption, "23.11N");
  // Closed while the places are read: no picker comes up without its screen.
  timetable.host.shown = false;
  timetable.host.calls.clear();
  timetable.form.cmdEditPlace.onClick();
  EXPECT_TRUE(timetable.host.calls.empty());
}

TEST(Timetable, GoesBackToTheDashboardAndStartsAnew) {
  Timetable timetable;
  timetable.form.Form_Load();
  const float width = timetable.form.frRes.place.width;
  timetable.form.scaleWidth *= 1.5F;
  timetable.form.Form_Resize();
  timetable.form.SaveTempVals();
  EXPECT_EQ(timetable.form.windowState, forms::WindowState::Maximised);
  timetable.form.SaveTempVals();
  EXPECT_EQ(timetable.form.windowState, forms::WindowState::Normal);
  timetable.form.cmdMinimize.onClick();
  EXPECT_EQ(timetable.form.windowState, forms::WindowState::Minimised);
  forms::KeyPress escape = {forms::Key::Escape};
  timetable.form.Form_KeyDown(escape);
  EXPECT_EQ(timetable.host.calls, (Calls{"Show Dashboard", "Unload frmDurvela"}));
  timetable.form.Form_Load();
  EXPECT_EQ(timetable.form.frRes.place.width, width);
  EXPECT_EQ(timetable.form.windowState, forms::WindowState::Normal);
}

TEST(Timetable, MovesWithTheMouseOnItsTitle) {
  Timetable timetable;
  timetable.form.left = 1500;
  timetable.form.top = 3000;
  timetable.form.lblTitle.onMouseMove({100, 100});
  timetable.form.Picture1.onMouseDown({150, 300});
  timetable.form.Picture1.onMouseMove({180, 270});
  timetable.form.Picture1.onMouseUp({180, 270});
  timetable.form.Picture1.onMouseMove({0, 0});
  timetable.form.windowState = forms::WindowState::Maximised;
  timetable.form.lblTitle.onMouseDown({0, 0});
  timetable.form.lblTitle.onMouseMove({50, 50});
  EXPECT_EQ(timetable.form.left, 1530);
  EXPECT_EQ(timetable.form.top, 2970);
}

TEST(Timetable, ScrollsItsPageAndStopsItsSun) {
  Timetable timetable;
  timetable.form.Form_Load();
  const float top = timetable.form.picRes.place.top;
  const int below = timetable.form.VScroll1.scroll.maximum;
  EXPECT_GT(below, 0);
  timetable.form.picRes.onMouseWheel(-1000);
  EXPECT_EQ(timetable.form.picRes.place.top, top - static_cast<float>(below));
  timetable.form.picRes.onMouseWheel(1000);
  EXPECT_EQ(timetable.form.picRes.place.top, top);
  timetable.form.picRes.onMouseWheel(-1);
  timetable.form.cmdShow_Click();
  EXPECT_EQ(timetable.form.picRes.place.top, top);  // a new list begins at its top

  const float from = timetable.form.picSlide.place.left;
  timetable.form.Form_Resize();
  EXPECT_EQ(timetable.form.picSlide.place.left, from);
  for (int tick = 0; tick < 100; ++tick) timetable.form.Timer1_Timer();
  EXPECT_GT(timetable.form.picSlide.place.left, from);
  EXPECT_EQ(timetable.form.Timer1.interval, 0);
}

}  // namespace
}  // namespace screens
