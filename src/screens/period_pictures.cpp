#include "screens/period_pictures.h"

#include <algorithm>

#include "dayperiods/weekday_segments.h"
#include "foundation/calendar.h"
#include "foundation/locale_names.h"
#include "foundation/numbers.h"
#include "foundation/session.h"
#include "foundation/settings.h"
#include "screens/day_arc.h"
#include "screens/day_scene.h"
#include "screens/palette.h"

namespace screens {
namespace {

using forms::Alignment;
using forms::Colour;
using forms::Lettering;
using forms::Path;
using forms::Point;

constexpr double kWidth = 328;

// The arc.
constexpr Point kCentre = {164, 168};
constexpr double kInner = 98, kOuter = 140, kPart = 180.0 / dayperiods::kSegmentsOfDaylight;
constexpr double kGap = 1;    // degrees between the parts
constexpr double kLine = 19;  // distance between the lines of the periods

// The table.
constexpr double kRowHeight = 30, kNameWidth = 76, kDays = 7;
constexpr double kColumn = (kWidth - kNameWidth) / kDays;

struct PeriodLook {
  std::string_view name;
  Colour colour;
  int (*segment)(int weekday);
};

const PeriodLook& LookOf(PeriodKind period) {
  static constexpr PeriodLook kLooks[] = {
      {"Durvela", palette::kDurvelaOnPaper, dayperiods::DurvelaSegment},
      {"Gulik", palette::kGulikOnPaper, dayperiods::GulikSegment},
      {"Yum", palette::kYumOnPaper, dayperiods::YumSegment}};
  return kLooks[static_cast<std::size_t>(period)];
}

foundation::DateTime SampleDate() {
  return foundation::DateFromParts(2011, 3, 5);
}

// At the built-in default place.
DayScene SampleScene() {
  foundation::SessionTable session;
  foundation::SessionRecord& record = session.Current();
  const auto fallback = [](std::size_t i) {
    return std::string(foundation::kPlaceSettings[i].fallback);
  };
  record.LatitudeText = fallback(2);
  record.LongitudeText = fallback(3);
  record.ZoneMeridianText = fallback(4);
  return SceneOf(SampleDate() + 0.5, session);
}

const DayScene::PeriodTimes& TimesOf(const DayScene& scene, PeriodKind period) {
  return period == PeriodKind::Durvela ? scene.durvela
         : period == PeriodKind::Gulik ? scene.gulik
                                       : scene.yum;
}

void DrawPart(forms::Picture& picture, int segment, Colour fill, Colour ink) {
  picture.items.emplace_back(
      forms::Outline{Path::RingPiece(kCentre, kInner, kOuter, SegmentAngle(segment) - kGap / 2,
                                     SegmentAngle(segment + 1) + kGap / 2),
                     fill,
                     {}});
  const Point middle =
      forms::OnCircle(kCentre, (kInner + kOuter) / 2, SegmentAngle(segment) - kPart / 2);
  picture.items.emplace_back(Lettering{.text = foundation::NumberText(segment),
                                       .at = {middle.x, middle.y + 5},
                                       .alignment = Alignment::Centre,
                                       .size = 14,
                                       .bold = true,
                                       .colour = ink});
}

void Write(forms::Picture& picture, std::string_view text, Point at, Alignment alignment,
           double size, Colour colour, bool bold = false) {
  picture.items.emplace_back(Lettering{std::string(text), at, alignment, size, bold, colour});
}

}  // namespace

forms::PicturePtr SampleDay(const std::vector<PeriodKind>& periods) {
  const DayScene scene = SampleScene();
  auto picture = forms::NewPicture(kWidth, 208);
  for (int segment = 1; segment <= dayperiods::kSegmentsOfDaylight; ++segment) {
    const auto period = std::find_if(periods.begin(), periods.end(), [&](PeriodKind of) {
      return TimesOf(scene, of).segment == segment;
    });
    const bool free = period == periods.end();
    DrawPart(*picture, segment, free ? palette::kRule : LookOf(*period).colour,
             free ? palette::kInk : palette::kWhite);
  }
  double line = kCentre.y - 10 - kLine * static_cast<double>(periods.size() - 1);
  for (const PeriodKind period : periods) {
    const PeriodLook& look = LookOf(period);
    Write(*picture, std::string(look.name) + " " + TimesOf(scene, period).times, {kCentre.x, line},
          Alignment::Centre, 13, look.colour, true);
    line += kLine;
  }
  picture->items.emplace_back(
      forms::Outline{Path().MoveTo({20, kCentre.y}).LineTo({kWidth - 20, kCentre.y}),
                     forms::kTransparent,
                     {palette::kQuiet, 1}});
  constexpr double kMiddle = (kInner + kOuter) / 2;
  Write(*picture, scene.sunrise, {kCentre.x - kMiddle, 184}, Alignment::Centre, 12.5,
        palette::kInk);
  Write(*picture, scene.sunset, {kCentre.x + kMiddle, 184}, Alignment::Centre, 12.5, palette::kInk);
  Write(*picture,
        foundation::WeekdayName(foundation::WeekdayOf(SampleDate())) + ", 5-3-2011, Delhi",
        {kCentre.x, 204}, Alignment::Centre, 12.5, palette::kQuiet);
  return picture;
}

forms::PicturePtr WeekdayTable(const std::vector<PeriodKind>& periods) {
  auto picture = forms::NewPicture(kWidth, kRowHeight * static_cast<double>(periods.size() + 1));
  const auto middle = [](int weekday) { return kNameWidth + kColumn * (weekday - 0.5); };
  for (int weekday = 1; weekday <= kDays; ++weekday) {
    Write(*picture, foundation::ShortWeekdayName(weekday), {middle(weekday), 20}, Alignment::Centre,
          12.5, palette::kQuiet);
  }
  double top = kRowHeight;
  for (const PeriodKind period : periods) {
    const PeriodLook& look = LookOf(period);
    picture->items.emplace_back(forms::Outline{
        Path().MoveTo({0, top}).LineTo({kWidth, top}), forms::kTransparent, {palette::kRule, 1}});
    Write(*picture, look.name, {0, top + 20}, Alignment::Left, 14, look.colour, true);
    for (int weekday = 1; weekday <= kDays; ++weekday) {
      Write(*picture, foundation::NumberText(look.segment(weekday)), {middle(weekday), top + 20},
            Alignment::Centre, 14, palette::kInk, true);
    }
    top += kRowHeight;
  }
  return picture;
}

}  // namespace screens
