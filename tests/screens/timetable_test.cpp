// The timetable by the country's clock, without a screen.

#include "screens/timetable.h"

#include "forms/moment_picker.h"
#include "screens/find_in_list.h"
#include "support/locales.h"
#include "support/test.h"

namespace screens {
namespace {

using foundation::DateFromParts;

struct Timetable : TimetableByClock {
  Timetable() : TimetableByClock(atlas::ClockChoice::Country) {}
};

TEST_F(Timetable, StartsWithAMonthFromTodayAtNoonAtTheDefaultPlace) {
  EXPECT_EQ(session.Current().Day, 5);
  const auto endFrom = [&](int year, int month, int day) {
    clock.now = DateFromParts(year, month, day) + 0.9;
    form.Form_Load();
    EXPECT_EQ(form.DT1.moment, DateFromParts(year, month, day));
    EXPECT_EQ(form.dtTime.moment, 0.5);
    EXPECT_EQ(PlaceOf(form), "India Delhi 28.40N 77.13E 82.30E -5.30 ");
    return form.DT2.moment;
  };
  ExpectRows(endFrom, Row(2011, 3, 5, DateFromParts(2011, 4, 5)),
             Row(2011, 1, 31, DateFromParts(2011, 3, 3)));
}

// Figures follow from Delhi's sunrise and sunset; positions are in twips, with lines 240 high.
TEST_F(Timetable, DrawsARowADay) {
  form.DT2.moment = DateFromParts(2011, 3, 7);
  const Calls expected = {"FontSize 13",           "Cls",
                          "Print 200 0 5-3-2011",  "Print 1700 0 Saturday",
                          "Print 3200 0 09:38:00", "Print 4400 0 to",
                          "Print 4900 0 11:05:30", "Print 200 340 6-3-2011",
                          "Print 1700 340 Sunday", "Print 3200 340 16:56:15",
                          "Print 4400 340 to",     "Print 4900 340 18:24:00"};
  EXPECT_EQ(QuickView(), expected);
  const support::UserNamesScope names(support::Hindi());
  EXPECT_EQ(QuickView()[3], "Print 1700 0 शनिवार");
}

TEST_F(Timetable, ComparesTimesOfDayTooAndEndsSilentlyIfARowFails) {
  const double day = DateFromParts(2011, 3, 5);
  const auto rowsDrawn = [&](double start, double end, double time) {
    form.DT1.moment = start;
    form.DT2.moment = end;
    form.dtTime.moment = time;
    return (static_cast<double>(QuickView().size()) - 2) / 5;
  };
  ExpectRows(rowsDrawn, Row(day, day, 0.5, 0), Row(day, day, 0, 1), Row(day, day + 1, 0.5, 1),
             Row(day, day + 1, 0, 2), Row(day, day - 1, 0.5, 0),
             // The corrected node needs the year after, so the year 9999 fails.
             Row(DateFromParts(9998, 12, 30), DateFromParts(9999, 12, 31), 0.5, 2));
  EXPECT_TRUE(boxes.shown.empty());
}

TEST_F(Timetable, EditsItsPlaceWithThePickerThenSavesAndReportsIt) {
  // If the timetable is closed while the places are read, no picker opens.
  host.shown = false;
  form.cmdEditPlace.onClick();
  EXPECT_TRUE(host.calls.empty());
  host.shown = true;
  const Calls before = host.target.calls;
  host.whileModal = [&] {
    FindInCombo("Fiji", picker.form.cmbCountry);
    SetText(picker.form.txtCity, "n");
    picker.form.lstCity.onDoubleClick();
  };
  form.cmdEditPlace.onClick();
  EXPECT_EQ(host.calls, Calls{"ShowModal frmCity of frmDurvela"});
  EXPECT_EQ(PlaceOf(form), "Fiji Nadi(Western) 17.48S 177.25E 180.0E -12 ");
  EXPECT_EQ(form.lblOldList.caption, "Shown: Delhi, from 5 March 2011. Press Quick View.");
  EXPECT_EQ(host.target.calls, before);

  form.cmdSave.onClick();
  EXPECT_EQ(boxes.shown.at(0).text, "Place saved as default. It will load automatically next time");
  EXPECT_EQ(settings.values.size(), 7U);  // with the choice of the clock
  form.Form_Load();
  EXPECT_EQ(PlaceOf(form), "Fiji Nadi(Western) 17.48S 177.25E 180.0E -12 ");
  form.cmdPreview.onClick();
  EXPECT_EQ(reported, "Nadi(Western) 17.48S 177.25E 180.0E -12 Fiji country's ");
}

TEST_F(Timetable, MarksAListForOtherDatesUntilQuickView) {
  const auto mark = [&] {
    EXPECT_EQ(form.picRes.faded, !form.lblOldList.caption.empty());
    EXPECT_TRUE(form.picRes.spokenName.ends_with(form.lblOldList.caption));
    return form.lblOldList.caption;
  };
  for (forms::Control* field : {&form.DT1, &form.DT2, &form.dtTime}) {
    const double moment = field->moment;
    forms::SetMoment(*field, moment + 0.25);
    EXPECT_EQ(mark(), "Shown: Delhi, from 5 March 2011. Press Quick View.");
    forms::SetMoment(*field, moment);
    EXPECT_EQ(mark(), "");
  }
  forms::SetMoment(form.DT1, form.DT1.moment + 1);
  EXPECT_EQ(mark(), "Shown: Delhi, from 5 March 2011. Press Quick View.");
  forms::SetMoment(form.DT2, form.DT1.moment);
  form.cmdShow.onClick();
  EXPECT_EQ(mark(), "");
}

TEST_F(Timetable, RemarksOnAnInvalidDateUntilItIsCorrected) {
  const auto remarks = [&] {
    return std::tuple(form.StartRemark.visible, form.EndRemark.visible, form.TimeRemark.visible,
                      form.lblOldList.caption);
  };
  const std::string shown = "Shown: Delhi, from 5 March 2011.";
  forms::TypeMoment(form.DT2, "soon");
  EXPECT_EQ(remarks(), std::tuple(false, true, false, shown));
  forms::TypeMoment(form.dtTime, "noon");
  forms::TypeMoment(form.DT2, "5/4/2011");  // the former date
  form.cmdShow.onClick();                   // with the former time
  EXPECT_EQ(remarks(), std::tuple(false, false, true, shown));
}

TEST_F(Timetable, ReturnsToTheDashboardAndReopensInItsInitialState) {
  const float width = form.frRes.place.width;
  form.scaleWidth *= 1.5F;
  form.Form_Resize();
  form.cmdMinimize.onClick();
  EXPECT_EQ(form.windowState, forms::WindowState::Minimised);
  forms::KeyPress escape = {forms::Key::Escape};
  form.Form_KeyDown(escape);
  EXPECT_EQ(host.calls, (Calls{"Show frmMain", "Unload frmDurvela"}));
  form.Form_Load();
  EXPECT_EQ(form.frRes.place.width, width);
  EXPECT_EQ(form.windowState, forms::WindowState::Normal);
}

TEST_F(Timetable, MovesWithTheMouseOnItsTitle) {
  form.left = 1500;
  form.top = 3000;
  form.Picture1.onMouseDown({150, 300});
  form.Picture1.onMouseMove({180, 270});
  form.Picture1.onMouseUp({180, 270});
  form.Picture1.onMouseMove({0, 0});
  form.windowState = forms::WindowState::Maximised;
  form.lblTitle.onMouseDown({0, 0});
  form.lblTitle.onMouseMove({50, 50});
  EXPECT_EQ(std::pair(form.left, form.top), std::pair(1530.0F, 2970.0F));
}

// A larger window shows more days, and the scroll bar covers none of them.
TEST_F(Timetable, KeepsTheSizeOfItsRows) {
  const float pitch = 240 + 100, bottom = 31 * pitch - 100;
  const auto shownAt = [&](float width, float height) {
    form.scaleWidth = width * layout::kTwipsPerPixel;
    form.scaleHeight = height * layout::kTwipsPerPixel;
    form.Form_Resize();
    const forms::Place &page = form.picRes.place, &frame = form.frRes.place;
    EXPECT_LE(page.left + page.width, form.VScroll1.place.left);
    const float scale = page.width / (timetable_layout::kPageWidth * layout::kTwipsPerPixel);
    const auto rows = static_cast<int>((frame.height - page.top) / (scale * pitch));
    SetScroll(form.VScroll1, form.VScroll1.scroll.maximum);
    EXPECT_LE(page.top + scale * bottom, frame.height);
    SetScroll(form.VScroll1, 0);
    return std::pair(scale, rows);
  };
  ExpectRows(shownAt, Row(720, 680, std::pair(1.0F, 24)), Row(1360, 510, std::pair(1.0F, 18)),
             Row(1920, 1080, std::pair(1.0F, 39)), Row(360, 510, std::pair(0.5025F, 36)));
}

TEST_F(Timetable, ScrollsItsPageUntilANewListBeginsAtItsTop) {
  const float& top = form.picRes.place.top;
  const float first = top;
  const int below = form.VScroll1.scroll.maximum;
  EXPECT_GT(below, 0);
  form.picRes.onMouseWheel(-1000);
  EXPECT_EQ(top, first - static_cast<float>(below));
  form.picRes.onMouseWheel(1000);
  EXPECT_EQ(top, first);
  form.picRes.onMouseWheel(-1);
  form.cmdShow_Click();
  EXPECT_EQ(top, first);
}

TEST_F(Timetable, MovesItsSunUntilItStops) {
  const float start = form.picSlide.place.left;
  form.Form_Resize();
  EXPECT_EQ(form.picSlide.place.left, start);
  for (int tick = 0; tick < 100; ++tick) form.Timer1_Timer();
  EXPECT_GT(form.picSlide.place.left, start);
  EXPECT_EQ(form.Timer1.interval, 0);
}

}  // namespace
}  // namespace screens
