// Every text stands out from what lies below it: by the relative luminances of WCAG 2.1, at the
// worst point, 4.5 to 1, or 3 to 1 from 18 points up and from 14 where it is bold.

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QFontMetricsF>
#include <QLineEdit>
#include <QListView>
#include <QPainter>
#include <QSettings>
#include <QTemporaryDir>
#include <algorithm>
#include <cmath>
#include <functional>
#include <map>

#include "screens/credits.h"
#include "screens/day_sky.h"
#include "screens/palette.h"
#include "screens/period_pictures.h"
#include "screens/qt/application.h"
#include "support/machine_fakes.h"
#include "support/session_at.h"

namespace screens::qt {
namespace {

double Luminance(QRgb colour) {
  const auto linear = [](int part) {
    const double value = part / 255.0;
    return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(qRed(colour)) + 0.7152 * linear(qGreen(colour)) +
         0.0722 * linear(qBlue(colour));
}

double Contrast(QRgb one, QRgb other) {
  const auto [low, high] = std::minmax({Luminance(one), Luminance(other)});
  return (high + 0.05) / (low + 0.05);
}

double Wanted(double points, bool bold) {
  return points >= 18 || (bold && points >= 14) ? 3 : 4.5;
}

TEST(Contrast, IsThatOfPublishedPairs) {
  EXPECT_NEAR(Contrast(0xFF000000, 0xFFFFFFFF), 21, 1e-9);
  EXPECT_NEAR(Contrast(0xFF777777, 0xFFFFFFFF), 4.48, 0.005);  // the grey that just fails
}

// At the worst of the points that a text takes up on what is below it.
double ContrastIn(const QRect& box, const QImage& below, forms::Colour colour,
                  const std::function<bool(QPoint)>& taken) {
  double worst = 21;
  const QRect pixels = box.intersected(below.rect());
  for (int y = pixels.top(); y <= pixels.bottom(); ++y) {
    for (int x = pixels.left(); x <= pixels.right(); ++x) {
      if (taken({x, y})) worst = std::min(worst, Contrast(below.pixel(x, y), ToQt(colour).rgb()));
    }
  }
  return worst;
}

// The colours below each line of a picture, where it is shown on a ground.
void CheckLettering(const forms::Picture& picture, forms::Colour ground, const std::string& where) {
  forms::Picture bare = picture;
  std::erase_if(bare.items,
                [](const auto& item) { return std::holds_alternative<forms::Lettering>(item); });
  QImage image(static_cast<int>(picture.width), static_cast<int>(picture.height),
               QImage::Format_RGB32);
  image.fill(ToQt(ground));
  QPainter painter(&image);
  PaintPicture(painter, bare, QRectF(image.rect()));
  for (const auto& item : picture.items) {
    const auto* line = std::get_if<forms::Lettering>(&item);
    if (line == nullptr || line->text.empty()) continue;
    const auto points = static_cast<float>(line->size * kTwipsPerPixel / kTwipsPerPoint);
    const QFontMetricsF metrics(ToQt(forms::Font{.size = points, .bold = line->bold}));
    const QString text = ToQt(line->text);
    QRectF box = metrics.tightBoundingRect(text).translated(line->at.x, line->at.y);
    const double width = metrics.horizontalAdvance(text);
    if (line->alignment == forms::Alignment::Right) box.translate(-width, 0);
    if (line->alignment == forms::Alignment::Centre) box.translate(-width / 2, 0);
    const auto all = [](QPoint) { return true; };
    EXPECT_GE(ContrastIn(box.toAlignedRect(), image, line->colour, all), Wanted(points, line->bold))
        << line->text << " " << where;
  }
}

TEST(Contrast, IsEnoughOnTheSkyAtAnyHourOfTheWeek) {
  const foundation::SessionTable session = support::Delhi();
  for (int day = 1; day <= 7; ++day) {
    DayScene scene = SceneOf(foundation::DateFromParts(2011, 3, day) + 0.5, session);
    for (const auto& [width, height] : {std::pair(840, 560), {630, 1000}, {1280, 560}}) {
      for (scene.sun = 0; scene.sun < 2; scene.sun += scene.sun < 1 ? 1 / 16.0 : 0.5) {
        CheckLettering(*SkyPicture(scene, width, height), palette::kEarth,
                       "on day " + std::to_string(day) + " at " + std::to_string(scene.sun));
      }
    }
  }
}

TEST(Contrast, IsEnoughInThePicturesOfTheInformationScreens) {
  const std::vector<Period> all = {Period::Durvela, Period::Gulik, Period::Yum};
  for (const auto& picture : {SampleDay(all), WeekdayTable(all), CreditsPicture()}) {
    CheckLettering(*picture, palette::kPaper, "on paper");
  }
}

// Labels, against what is there when they are away.
void CheckLabels(FormWindow& window, forms::Form& form) {
  const QImage with = window.grab().toImage();
  std::map<forms::Control*, std::string> captions;
  for (forms::Control& control : form.Controls()) {
    if (control.kind == forms::Kind::Label && control.visible) {
      captions[&control] = std::exchange(control.caption, "");
    }
  }
  window.Mirror();
  const QImage without = window.grab().toImage();
  for (auto& [label, caption] : captions) {
    label->caption = caption;
    if (caption.empty()) continue;
    int seen = 0;
    const auto taken = [&](QPoint at) {
      const bool differs = with.pixel(at) != without.pixel(at);
      seen += differs;
      return differs;
    };
    EXPECT_GE(ContrastIn(PlaceInPixels(*label), without, label->foreColour, taken),
              Wanted(label->font.size, label->font.bold))
        << caption;
    EXPECT_GT(seen, 20) << caption;
  }
  window.Mirror();
}

// The toolkit's widgets, at four times the size, so that strokes have their full colour: the
// farthest colour from that which most of the inside has.
void CheckInside(QWidget& widget) {
  constexpr int kTimes = 4, kEdge = 16;
  QImage image(kTimes * widget.size(), QImage::Format_RGB32);
  image.setDevicePixelRatio(kTimes);
  QWidget& window = *widget.window();
  window.render(&image, QPoint(), QRect(widget.mapTo(&window, QPoint()), widget.size()));
  std::map<QRgb, int> colours;
  for (int y = kEdge; y < image.height() - kEdge; ++y) {
    for (int x = kEdge; x < image.width() - kEdge; ++x) ++colours[image.pixel(x, y)];
  }
  const QRgb most =
      std::ranges::max_element(colours, {}, [](const auto& of) { return of.second; })->first;
  double contrast = 1;
  for (const auto& [colour, count] : colours) contrast = std::max(contrast, Contrast(colour, most));
  EXPECT_GE(contrast, 4.5) << widget.objectName().toStdString();
}

void CheckForm(Program& program, forms::Form& form) {
  FormWindow& window = program.host.WindowOf(form);
  SCOPED_TRACE(form.name);
  window.show();
  CheckLabels(window, form);
  for (QWidget* widget : window.findChildren<QWidget*>()) {
    auto* button = qobject_cast<QAbstractButton*>(widget);
    const auto* list = qobject_cast<QListView*>(widget);
    const bool input = qobject_cast<QComboBox*>(widget) || qobject_cast<QDateTimeEdit*>(widget) ||
                       qobject_cast<QLineEdit*>(widget) ||
                       (list != nullptr && list->model()->rowCount() > 0);
    if (!widget->isVisible() || !(button || input)) continue;
    CheckInside(*widget);
    if (button == nullptr) continue;
    button->setDown(true);
    CheckInside(*widget);
    button->setDown(false);
  }
}

TEST(Contrast, IsEnoughOnEveryScreen) {
  const QTemporaryDir folder;
  QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder.path());
  support::FakeClock clock;
  clock.now = foundation::DateFromParts(2011, 3, 5) + 0.5;
  Program program(clock);
  CheckForm(program, program.dashboard);
  CheckForm(program, program.Timetable());
  CheckForm(program, program.About());
  CheckForm(program, program.Preview());
  for (const auto* page : {&WhatIsPage(), &CalculatePage(), &GulikPage(), &YumPage(),
                           &ProductsPage(), &SitaraDeskPage()}) {
    CheckForm(program, program.Information(*page));
  }
  program.Picker().Load("India", "Ujjain", program.dashboard);
  CheckForm(program, program.Picker());
}

}  // namespace
}  // namespace screens::qt
