#include "screens/signs.h"

#include <initializer_list>
#include <utility>

#include "dayperiods/weekday_segments.h"
#include "screens/day_arc.h"
#include "screens/palette.h"

namespace screens {
namespace {

using forms::Colour;
using forms::Path;
using forms::Point;

constexpr double kField = 56;
constexpr Point kMiddle = {28, 28};
constexpr double kLine = 3;

constexpr auto kBlue = forms::Rgb(0x8FB8FF);
constexpr auto kStraw = forms::Rgb(0xF7D070);
constexpr auto kGreen = forms::Rgb(0x7BD3A7);
constexpr auto kViolet = forms::Rgb(0xC792EA);

// Paths drawn as lines in a single colour.
forms::PicturePtr Drawing(Colour colour, std::initializer_list<Path> lines,
                          std::initializer_list<Path> filled = {}) {
  auto picture = forms::NewPicture(kField, kField);
  for (const Path& path : filled) picture->items.emplace_back(forms::Outline{path, colour, {}});
  for (const Path& path : lines) {
    picture->items.emplace_back(forms::Outline{path, forms::kTransparent, {colour, kLine}});
  }
  return picture;
}

// The arc of the day with one eighth filled.
forms::PicturePtr EighthOfArc(Colour colour, int segment) {
  const Point centre = {28, 42};
  return Drawing(
      colour,
      {Path().Arc(centre, 24, 180, 0), Path().Arc(centre, 13, 180, 0),
       Path().MoveTo({2, 42}).LineTo({17, 42}), Path().MoveTo({39, 42}).LineTo({54, 42})},
      {Path::RingPiece(centre, 13, 24, SegmentAngle(segment), SegmentAngle(segment + 1))});
}

forms::PicturePtr TableOfDays() {
  return Drawing(
      palette::kDurvela,
      {Path::Box({8, 10}, 40, 38, 5), Path().MoveTo({8, 21}).LineTo({48, 21}),
       Path().MoveTo({8, 34.5}).LineTo({48, 34.5}), Path().MoveTo({21.5, 21}).LineTo({21.5, 48}),
       Path().MoveTo({34.5, 21}).LineTo({34.5, 48}), Path().MoveTo({18, 5}).LineTo({18, 13}),
       Path().MoveTo({38, 5}).LineTo({38, 13})});
}

forms::PicturePtr LetterInCircle() {
  return Drawing(kBlue, {Path::Circle(kMiddle, 22), Path().MoveTo({28, 25.5}).LineTo({28, 39})},
                 {Path::Circle({28, 18}, 2.4)});
}

forms::PicturePtr DividedCircle() {
  const auto spoke = [](double angle) {
    return Path()
        .MoveTo(forms::OnCircle(kMiddle, 22, angle))
        .LineTo(forms::OnCircle(kMiddle, 22, angle + 180));
  };
  return Drawing(kStraw, {Path::Circle(kMiddle, 22), spoke(0), spoke(45), spoke(90), spoke(135)});
}

forms::PicturePtr ClosedBox() {
  return Drawing(kGreen, {Path()
                              .MoveTo({28, 6})
                              .LineTo({49, 16})
                              .LineTo({49, 40})
                              .LineTo({28, 50})
                              .LineTo({7, 40})
                              .LineTo({7, 16})
                              .Close(),
                          Path().MoveTo({7, 16}).LineTo({28, 26}).LineTo({49, 16}),
                          Path().MoveTo({28, 26}).LineTo({28, 50})});
}

forms::PicturePtr FivePointedStar() {
  Path star;
  for (int i = 0; i < 10; ++i) {
    const Point tip = forms::OnCircle({28, 30}, i % 2 == 0 ? 24 : 10.5, 90 + 36.0 * i);
    i == 0 ? star.MoveTo(tip) : star.LineTo(tip);
  }
  return Drawing(kViolet, {star.Close()});
}

}  // namespace

const std::array<MenuSign, 8>& MenuSigns() {
  static const std::array<MenuSign, 8> kSigns = {{
      {"What is Durvela", EighthOfArc(palette::kDawn, 3)},
      {"Timetable", TableOfDays()},
      {"About us", LetterInCircle()},
      {"Calculation of Durvela", DividedCircle()},
      {"Products", ClosedBox()},
      {"Sitara Desk", FivePointedStar()},
      {"Yama Ghantak", EighthOfArc(palette::kYum, 6)},
      {"Gulika Kaal", EighthOfArc(palette::kGulik, 8)},
  }};
  return kSigns;
}

forms::PicturePtr ProgramSign() {
  const Point centre = {32, 48};
  auto picture = forms::NewPicture(64, 64);
  const auto add = [&](Path path, Colour fill) {
    picture->items.emplace_back(forms::Outline{std::move(path), fill, {}});
  };
  add(Path::Box({2, 2}, 60, 60, 14), palette::kNight);
  for (int segment = 1; segment <= dayperiods::kSegmentsOfDaylight; ++segment) {
    const double from = SegmentAngle(segment);
    add(Path::RingPiece(centre, 15, 25, from - 1.2, from - 21.3),
        segment == 3 ? palette::kDurvela : palette::kCream.WithOpacity(0.5));
  }
  add(Path::Circle(forms::OnCircle(centre, 20, 78.75), 6.5), palette::kGold);
  add(Path::Box({7, 48}, 50, 3, 1.5), palette::kDawn);
  return picture;
}

forms::PicturePtr SunSign() {
  auto picture = forms::NewPicture(kField, kField);
  for (int ray = 0; ray < 8; ++ray) {
    const Path line = Path()
                          .MoveTo(forms::OnCircle(kMiddle, 19, 45 * ray))
                          .LineTo(forms::OnCircle(kMiddle, 26, 45 * ray));
    picture->items.emplace_back(forms::Outline{line, forms::kTransparent, {palette::kGold, kLine}});
  }
  picture->items.emplace_back(forms::Outline{Path::Circle(kMiddle, 14), palette::kGold, {}});
  return picture;
}

forms::PicturePtr BoxSign(foundation::MessageIcon icon) {
  const auto disc = [](Colour colour, const char* letter) {
    auto picture = forms::NewPicture(kField, kField);
    picture->items.emplace_back(forms::Outline{Path::Circle(kMiddle, 26), colour, {}});
    picture->items.emplace_back(forms::Lettering{.text = letter,
                                                 .at = {kMiddle.x, 42},
                                                 .alignment = forms::Alignment::Centre,
                                                 .size = 38,
                                                 .bold = true,
                                                 .colour = palette::kCream});
    return picture;
  };
  switch (icon) {
    case foundation::MessageIcon::Information:
      return disc(palette::kGulikOnPaper, "i");
    case foundation::MessageIcon::Question:
      return disc(palette::kGulikOnPaper, "?");
    case foundation::MessageIcon::Exclamation:
      return disc(palette::kFocus, "!");
    case foundation::MessageIcon::Critical:
      return disc(palette::kDurvelaOnPaper, "×");
    case foundation::MessageIcon::None:
      break;
  }
  return nullptr;
}

}  // namespace screens
