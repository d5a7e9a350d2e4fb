#include "screens/day_sky.h"

#include <algorithm>
#include <utility>

#include "dayperiods/weekday_segments.h"
#include "screens/day_arc.h"
#include "screens/frmMain_layout.h"
#include "screens/palette.h"

namespace screens {
namespace {

using forms::Alignment;
using forms::Colour;
using forms::Outline;
using forms::Path;
using forms::Point;

constexpr double kHorizon = 356;  // from the top
constexpr double kArcCentre = 290;
constexpr double kOuterRadius = 246;
constexpr double kInnerRadius = 206;
constexpr double kSmallLettering = 11.5;
constexpr double kGap = 0.35;  // degrees left empty at each end of a part

// Stars: x, y and radius in the design's units.
constexpr double kStars[][3] = {
    {36, 40, 1.1},  {92, 88, 0.8},   {150, 30, 1.0}, {214, 62, 0.7},  {268, 24, 1.2},
    {330, 52, 0.8}, {402, 34, 1.0},  {452, 78, 0.7}, {520, 26, 1.1},  {560, 96, 0.8},
    {28, 150, 0.7}, {556, 168, 0.7}, {832, 20, 0.9}, {826, 120, 0.8}, {74, 196, 0.6},
};

// Draws a scene as a picture of a given size.
class SkyPainter {
 public:
  SkyPainter(const DayScene& scene, double width, double height)
      : scene_(scene),
        x_(width / dashboard_layout::kWidth),
        y_(height / dashboard_layout::kHeight),
        scale_(std::min(x_, y_)),
        rise_(y_ / scale_),
        centre_{kArcCentre * x_, kHorizon * y_} {
    picture_.width = width;
    picture_.height = height;
  }

  forms::Picture Paint() {
    Sky();
    Stars();
    Hills();
    Arc();
    if (scene_.divided) Sun();
    Earth();
    if (scene_.divided) {
      if (scene_.sun > 1) SunBelow(scene_.sun - 1);
      Times();
    } else {
      const std::string& why = scene_.undivided;
      Text(why.empty() ? "Daylight is not divided here today" : why,
           {centre_.x, centre_.y - 166 * y_}, Alignment::Centre, 12, false, palette::kFaintCream);
    }
    return std::move(picture_);
  }

 private:
  void Add(Path path, forms::Fill fill, forms::Stroke stroke = {}) {
    picture_.items.emplace_back(Outline{std::move(path), std::move(fill), stroke});
  }

  void Text(const std::string& text, Point at, Alignment alignment, double size, bool bold,
            Colour colour) {
    picture_.items.emplace_back(
        forms::Lettering{text, at, alignment, size * TextScale(), bold, colour});
  }

  // Keeps the smallest lettering at least at the smallest font size.
  double TextScale() const { return std::max(scale_, forms::kSmallestText / kSmallLettering); }

  // A point on the arc. In a tall window the arc is stretched upwards, so that it stays around the
  // clock.
  Point OnArc(double radius, double angle) const {
    const Point at = forms::OnCircle(centre_, radius * scale_, angle);
    return {at.x, centre_.y + rise_ * (at.y - centre_.y)};
  }

  void Sky() {
    Add(Path::Box({0, 0}, picture_.width, centre_.y),
        forms::LinearGradient{{0, 0},
                              {0, centre_.y},
                              {{0, palette::kNight},
                               {0.62, palette::kDusk},
                               {0.84, palette::kPlum},
                               {0.95, palette::kEmber},
                               {1, palette::kDawn}}});
  }

  void Stars() {
    for (const auto& [x, y, radius] : kStars) {
      Add(Path::Circle({x * x_, y * y_}, radius * scale_), palette::kCream.WithOpacity(0.55));
    }
  }

  void Hills() {
    const auto at = [&](double x, double y) { return Point{x * x_, y * y_}; };
    Add(Path()
            .MoveTo(at(0, kHorizon))
            .LineTo(at(0, 330))
            .CubicTo(at(90, 300), at(150, 340), at(240, 322))
            .CubicTo(at(330, 304), at(420, 296), at(520, 330))
            .CubicTo(at(620, 356), at(720, 310), at(840, 338))
            .LineTo(at(840, kHorizon))
            .Close(),
        palette::kHill.WithOpacity(0.88));
  }

  // The area inside the arc is darkened so that the clock is readable against the bright horizon.
  void Arc() {
    Add(Path().Arc(centre_, kInnerRadius * scale_, 180, 0).Close().Raised(centre_.y, rise_),
        forms::RadialGradient{centre_,
                              kInnerRadius * scale_,
                              {{0, palette::kNight.WithOpacity(0.45)},
                               {0.75, palette::kNight.WithOpacity(0.4)},
                               {1, palette::kNight.WithOpacity(0.05)}}});
    for (int segment = 1; segment <= dayperiods::kSegmentsOfDaylight; ++segment) {
      Add(Path::RingPiece(centre_, kInnerRadius * scale_, kOuterRadius * scale_,
                          SegmentAngle(segment) - kGap, SegmentAngle(segment + 1) + kGap)
              .Raised(centre_.y, rise_),
          Tint(segment));
    }
  }

  void Earth() {
    Add(Path::Box({0, centre_.y}, picture_.width, picture_.height - centre_.y), palette::kEarth);
  }

  // Drawn before the earth, so that it rises from behind the horizon. The glow is kept small enough
  // not to reach the names along the arc.
  void Sun() {
    if (scene_.sun > 1) return;
    constexpr double kGlow = 38;
    const Point at = OnArc((kInnerRadius + kOuterRadius) / 2, AngleAt(scene_.sun));
    Add(Path::Circle(at, kGlow * scale_),
        forms::RadialGradient{at,
                              kGlow * scale_,
                              {{0, palette::kSun.WithOpacity(0.95)},
                               {0.35, palette::kGold.WithOpacity(0.45)},
                               {1, palette::kGold.WithOpacity(0)}}});
    Add(Path::Circle(at, 13 * scale_), palette::kSun, {palette::kCream, 2 * scale_});
  }

  // At night a ring moves back below the horizon, from the time of sunset to that of sunrise.
  void SunBelow(double partOfNight) {
    const double reach = (kInnerRadius - 30) * scale_;
    const double y = centre_.y + 16 * y_;
    Add(Path().MoveTo({centre_.x - reach, y}).LineTo({centre_.x + reach, y}), forms::kTransparent,
        {palette::kCream.WithOpacity(0.16), 1.5 * scale_});
    Add(Path::Circle({centre_.x + reach * (1 - 2 * partOfNight), y}, 6 * scale_), palette::kEarth,
        {palette::kGold, 2 * scale_});
  }

  void Times() {
    const double middle = (kInnerRadius + kOuterRadius) / 2 * scale_;
    const double y = centre_.y + 20 * y_;
    Text(scene_.sunrise, {centre_.x - middle, y}, Alignment::Centre, 12, false,
         palette::kFaintCream);
    Text(scene_.sunset, {centre_.x + middle, y}, Alignment::Centre, 12, false,
         palette::kFaintCream);
    Name("Durvela", scene_.durvela);
    Name("Gulik", scene_.gulik);
    Name("Yum", scene_.yum);
  }

  // Labels the lowest part on each side inside the arc, the others outside; the second and seventh
  // at their upper end, where there is room beside them. (On no weekday is a neighbour of these two
  // labelled as well.)
  void Name(const std::string& name, const DayScene::PeriodTimes& period) {
    const double shift = period.segment == 2 ? 0.35 : period.segment == 7 ? -0.35 : 0;
    const double angle = AngleAt((period.segment - 0.5 + shift) / dayperiods::kSegmentsOfDaylight);
    const bool left = angle > 90;
    const bool inside = period.segment == 1 || period.segment == dayperiods::kSegmentsOfDaylight;
    const double radius = inside ? kInnerRadius - 12 : kOuterRadius + 18;
    const Alignment alignment = left == inside ? Alignment::Left : Alignment::Right;
    const double line = 15 * TextScale();
    Point at = OnArc(radius, angle);
    if (!inside) at.y -= line / 2;  // so that the second line clears the arc
    Text(name, at, alignment, 13, true, palette::kCream);
    Text(period.times, {at.x, at.y + line}, alignment, kSmallLettering, false,
         palette::kFaintCream);
  }

  Colour Tint(int segment) const {
    if (segment == scene_.durvela.segment) return palette::kDurvela.WithOpacity(0.95);
    if (segment == scene_.gulik.segment) return palette::kGulik.WithOpacity(0.95);
    if (segment == scene_.yum.segment) return palette::kYum.WithOpacity(0.95);
    return palette::kWhite.WithOpacity(0.16);
  }

  const DayScene& scene_;
  double x_, y_, scale_;  // factors for widths, heights and lengths of the design
  double rise_;           // vertical stretch of the arc; 1 is round
  Point centre_;
  forms::Picture picture_;
};

}  // namespace

forms::PicturePtr SkyPicture(const DayScene& scene, double width, double height) {
  return std::make_shared<forms::Picture>(SkyPainter(scene, width, height).Paint());
}

}  // namespace screens
