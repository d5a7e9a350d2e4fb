// The timetable, without a screen.

#include <gtest/gtest.h>

#include "forms/moment_picker.h"
#include "screens/frmDurvela.h"
#include "screens/picker.h"
#include "support/locales.h"
#include "support/table.h"

namespace screens {
namespace {

using foundation::DateFromParts;
using support::Row;
using Calls = std::vector<std::string>;

struct Timetable : Fakes {
  explicit Timetable(foundation::DateTime now = DateFromParts(2011, 3, 5) + 0.5) {
    clock.now = now;
    form.Form_Load();
  }

  Picker picker;
  Calls reports;  // the place of each
  frmMain dashboard{services};
  frmDurvela form{services,
                  dashboard,
                  {[this]() -> frmCity& { return picker.form; },
                   [this](const report::ReportInput& of, forms::Control&) {
                     reports.push_back(Words(of.city, of.latitude, of.longitude, of.zoneMeridian,
                                             of.zoneTime, of.country));
                   }}};

  // What the last Quick View drew, without pen moves.
  Calls Drawn() const {
    Calls drawn;
    for (const std::string& call : host.target.calls) {
      if (call.starts_with("FontSize")) drawn.clear();
      if (!call.starts_with("Current")) drawn.push_back(call);
    }
    return drawn;
  }
};

TEST(Timetable, StartsWithAMonthFromTodayAtNoonAtTheDefaultPlace) {
  const auto endFrom = [](int year, int month, int day) {
    const auto today = DateFromParts(year, month, day);
    Timetable t(today + 0.9);
    EXPECT_EQ(t.form.DT1.moment, today);
    EXPECT_EQ(t.form.dtTime.moment, 0.5);
    EXPECT_EQ(PlaceOf(t.form), "India Delhi 28.40N 77.13E 82.30E -5.30 ");
    EXPECT_EQ(t.session.Current().Day, day);
    return t.form.DT2.moment;
  };
  ExpectRows(endFrom, Row(2011, 3, 5, DateFromParts(2011, 4, 5)),
             Row(2011, 1, 31, DateFromParts(2011, 3, 3)));
}

// Figures follow from Delhi's sunrise and sunset; positions are in twips, with lines 240 high.
TEST(Timetable, DrawsARowADay) {
  Timetable t;
  t.form.DT2.moment = DateFromParts(2011, 3, 7);
  t.form.cmdShow.onClick();
  const Calls expected = {"FontSize 13",           "Cls",
                          "Print 200 0 5-3-2011",  "Print 1700 0 Saturday",
                          "Print 3200 0 09:38:00", "Print 4400 0 to",
                          "Print 4900 0 11:05:30", "Print 200 340 6-3-2011",
                          "Print 1700 340 Sunday", "Print 3200 340 16:56:15",
                          "Print 4400 340 to",     "Print 4900 340 18:24:00"};
  EXPECT_EQ(t.Drawn(), expected);
  const support::UserNamesScope names(support::Hindi());
  t.form.cmdShow.onClick();
  EXPECT_EQ(t.Drawn()[3], "Print 1700 0 शनिवार");
}

double RowsDrawn(double start, double end, double time) {
  Timetable t;
  t.form.DT1.moment = start;
  t.form.DT2.moment = end;
  t.form.dtTime.moment = time;
  t.form.cmdShow_Click();
  EXPECT_TRUE(t.boxes.shown.empty());
  return (static_cast<double>(t.Drawn().size()) - 2) / 5;
}

TEST(Timetable, ComparesTimesOfDayToo) {
  const double day = DateFromParts(2011, 3, 5);
  ExpectRows(RowsDrawn, Row(day, day, 0.5, 0), Row(day, day, 0, 1), Row(day, day + 1, 0.5, 1),
             Row(day, day + 1, 0, 2), Row(day, day - 1, 0.5, 0));
}

TEST(Timetable, EndsItsListSilentlyIfARowFails) {
  // The corrected node needs the year after, so the year 9999 fails.
  EXPECT_EQ(RowsDrawn(DateFromParts(9998, 12, 30), DateFromParts(9999, 12, 31), 0.5), 2);
}

TEST(Timetable, SavesThePlaceThatItShows) {
  Timetable t;
  t.form.lblCity.caption = "Nadi(Western)";
  t.form.lblZoneTime.caption = "-12";
  t.form.cmdSave.onClick();
  const auto saved = [&](const char* key) {
    return t.settings.GetSetting(foundation::kProgramName, "settings", key, "none");
  };
  EXPECT_EQ(Words(saved("city"), saved("zonetime"), saved("lat")), "Nadi(Western) -12 28.40N ");
  EXPECT_EQ(t.boxes.shown.at(0).text,
            "Place saved as default. It will load automatically next time");
}

TEST(Timetable, PassesItsPlaceToTheReport) {
  Timetable t;
  t.form.cmdPreview.onClick();
  EXPECT_EQ(t.reports, Calls{"Delhi 28.40N 77.13E 82.30E -5.30 India "});
}

TEST(Timetable, EditsItsPlaceWithThePicker) {
  Timetable t;
  // If the timetable is closed while the places are read, no picker opens.
  t.host.shown = false;
  t.form.cmdEditPlace.onClick();
  EXPECT_TRUE(t.host.calls.empty());
  t.host.shown = true;
  t.form.cmdEditPlace.onClick();
  EXPECT_EQ(t.host.calls, Calls{"ShowModal frmCity of frmDurvela"});
  const Calls before = t.host.target.calls;
  forms::SetText(t.picker.form.txtCity, "Uj");
  t.picker.form.lstCity.onDoubleClick();
  forms::SetMoment(t.form.DT2, DateFromParts(2012, 3, 5));
  EXPECT_EQ(t.host.target.calls, before);
  EXPECT_EQ(Words(t.form.lblCity.caption, t.form.lblLat.caption), "Ujjain(Madhya Pradesh) 23.11N ");
}

TEST(Timetable, ReturnsToTheDashboardAndReopensInItsInitialState) {
  Timetable t;
  const float width = t.form.frRes.place.width;
  t.form.scaleWidth *= 1.5F;
  t.form.Form_Resize();
  t.form.cmdMinimize.onClick();
  EXPECT_EQ(t.form.windowState, forms::WindowState::Minimised);
  forms::KeyPress escape = {forms::Key::Escape};
  t.form.Form_KeyDown(escape);
  EXPECT_EQ(t.host.calls, (Calls{"Show frmMain", "Unload frmDurvela"}));
  t.form.Form_Load();
  EXPECT_EQ(t.form.frRes.place.width, width);
  EXPECT_EQ(t.form.windowState, forms::WindowState::Normal);
}

TEST(Timetable, RemarksOnAnInvalidDateUntilItIsCorrected) {
  Timetable t;
  const auto remarks = [&] {
    return std::tuple(t.form.StartRemark.visible, t.form.EndRemark.visible,
                      t.form.TimeRemark.visible, t.form.lblOldList.caption);
  };
  const std::string shown = "Shown: Delhi, from 5 March 2011.";
  forms::TypeMoment(t.form.DT2, "soon");
  EXPECT_EQ(remarks(), std::tuple(false, true, false, shown));
  forms::TypeMoment(t.form.dtTime, "noon");
  forms::TypeMoment(t.form.DT2, "5/4/2011");  // the former date
  EXPECT_EQ(remarks(), std::tuple(false, false, true, shown));
  t.form.cmdShow.onClick();  // with the last time
  EXPECT_EQ(remarks(), std::tuple(false, false, true, shown));
  t.form.Form_Load();
  EXPECT_EQ(remarks(), std::tuple(false, false, false, ""));
}

TEST(Timetable, MovesWithTheMouseOnItsTitle) {
  Timetable t;
  t.form.left = 1500;
  t.form.top = 3000;
  t.form.Picture1.onMouseDown({150, 300});
  t.form.Picture1.onMouseMove({180, 270});
  t.form.Picture1.onMouseUp({180, 270});
  t.form.Picture1.onMouseMove({0, 0});
  t.form.windowState = forms::WindowState::Maximised;
  t.form.lblTitle.onMouseDown({0, 0});
  t.form.lblTitle.onMouseMove({50, 50});
  EXPECT_EQ(std::pair(t.form.left, t.form.top), std::pair(1530.0F, 2970.0F));
}

// A larger window shows more days, and the scroll bar covers none of them.
TEST(Timetable, KeepsTheSizeOfItsRows) {
  Timetable t;
  const float pitch = 240 + 100, bottom = 31 * pitch - 100;
  const auto shownAt = [&](int width, int height) {
    t.form.scaleWidth = static_cast<float>(width) * layout::kTwipsPerPixel;
    t.form.scaleHeight = static_cast<float>(height) * layout::kTwipsPerPixel;
    t.form.Form_Resize();
    const forms::Place &page = t.form.picRes.place, &frame = t.form.frRes.place;
    EXPECT_LE(page.left + page.width, t.form.VScroll1.place.left);
    SetScroll(t.form.VScroll1, t.form.VScroll1.scroll.maximum);
    const float scale = page.width / (timetable_layout::kPageWidth * layout::kTwipsPerPixel);
    EXPECT_LE(page.top + scale * bottom, frame.height);
    SetScroll(t.form.VScroll1, 0);
    return std::pair(scale, static_cast<int>((frame.height - page.top) / (scale * pitch)));
  };
  ExpectRows(shownAt, Row(720, 680, std::pair(1.0F, 24)), Row(960, 680, std::pair(1.0F, 24)),
             Row(1366, 680, std::pair(1.0F, 24)), Row(1360, 510, std::pair(1.0F, 18)),
             Row(1920, 1080, std::pair(1.0F, 39)), Row(360, 510, std::pair(0.5025F, 36)));
}

TEST(Timetable, MarksAnOutdatedList) {
  Timetable t;
  const auto mark = [&] {
    EXPECT_EQ(t.form.picRes.faded, !t.form.lblOldList.caption.empty());
    EXPECT_EQ(t.form.picRes.spokenName.ends_with(t.form.lblOldList.caption), true);
    return t.form.lblOldList.caption;
  };
  const std::string old = "Shown: Delhi, from 5 March 2011. Press Quick View.";
  EXPECT_EQ(mark(), "");
  for (forms::Control* picker : {&t.form.DT1, &t.form.DT2, &t.form.dtTime}) {
    const double before = picker->moment;
    forms::SetMoment(*picker, before + 0.25);
    EXPECT_EQ(mark(), old);
    forms::SetMoment(*picker, before);
    EXPECT_EQ(mark(), "");
  }
  t.host.whileModal = [&] { t.picker.form.lstCity.onDoubleClick(); };
  t.form.cmdEditPlace.onClick();
  EXPECT_EQ(mark(), old);
  t.form.cmdShow.onClick();
  EXPECT_EQ(mark(), "");
}

TEST(Timetable, ScrollsItsPageAndStopsItsSun) {
  Timetable t;
  const float& top = t.form.picRes.place.top;
  const float first = top;
  const int below = t.form.VScroll1.scroll.maximum;
  EXPECT_GT(below, 0);
  t.form.picRes.onMouseWheel(-1000);
  EXPECT_EQ(top, first - static_cast<float>(below));
  t.form.picRes.onMouseWheel(1000);
  EXPECT_EQ(top, first);
  t.form.picRes.onMouseWheel(-1);
  t.form.cmdShow_Click();
  EXPECT_EQ(top, first);  // a new list begins at its top

  const float above = t.form.picSlide.place.left;
  t.form.Form_Resize();
  EXPECT_EQ(t.form.picSlide.place.left, above);
  for (int tick = 0; tick < 100; ++tick) t.form.Timer1_Timer();
  EXPECT_GT(t.form.picSlide.place.left, above);
  EXPECT_EQ(t.form.Timer1.interval, 0);
}

}  // namespace
}  // namespace screens
