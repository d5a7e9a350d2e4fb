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
    const auto* lettering = std::get_if<forms::Lettering>(&item);
    if (lettering == nullptr || lettering->text.empty()) continue;
    const auto points = static_cast<float>(lettering->size * kTwipsPerPixel / kTwipsPerPoint);
    const QFontMetricsF metrics(ToQt(forms::Font{.size = points, .bold = lettering->bold}));
    const QString text = ToQt(lettering->text);
    QRectF box = metrics.tightBoundingRect(text).translated(lettering->at.x, lettering->at.y);
    const double width = metrics.horizontalAdvance(text);
    if (lettering->alignment == forms::Alignment::Right) box.translate(-width, 0);
    if (lettering->alignment == forms::Alignment::Centre) box.translate(-width / 2, 0);
    const QRect pixels = box.toAlignedRect().intersected(image.rect());
    double worst = 21;
    for (int y = pixels.top(); y <= pixels.bottom(); ++y) {
      for (int x = pixels.left(); x <= pixels.right(); ++x) {
        worst = std::min(worst, Contrast(image.pixel(x, y), ToQt(lettering->colour).rgb()));
      }
    }
    EXPECT_GE(worst, Wanted(points, lettering->bold)) << lettering->text << " " << where;
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

// As it stands in its window, at four times the size, so that strokes have their full colour.
QImage Enlarged(QWidget& widget) {
  constexpr int kTimes = 4;
  QImage image(kTimes * widget.size(), QImage::Format_RGB32);
  image.setDevicePixelRatio(kTimes);
  QWidget& window = *widget.window();
  window.render(&image, QPoint(), QRect(widget.mapTo(&window, QPoint()), widget.size()));
  return image;
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
    double worst = 21;
    int seen = 0;
    const QRect pixels = PlaceInPixels(*label).intersected(with.rect());
    for (int y = pixels.top(); y <= pixels.bottom(); ++y) {
      for (int x = pixels.left(); x <= pixels.right(); ++x) {
        const QRgb below = without.pixel(x, y);
        if (with.pixel(x, y) == below) continue;
        ++seen;
        worst = std::min(worst, Contrast(below, ToQt(label->foreColour).rgb()));
      }
    }
    EXPECT_GT(seen, 20) << caption;
    EXPECT_GE(worst, Wanted(label->font.size, label->font.bold)) << caption;
  }
  window.Mirror();
}

// The toolkit's widgets: the farthest colour from that which most of the inside has.
void CheckInside(QWidget& widget) {
  constexpr int kEdge = 16;
  const QImage image = Enlarged(widget);
  const QRect inside = image.rect().adjusted(kEdge, kEdge, -kEdge, -kEdge);
  std::map<QRgb, int> colours;
  for (int y = inside.top(); y <= inside.bottom(); ++y) {
    for (int x = inside.left(); x <= inside.right(); ++x) ++colours[image.pixel(x, y)];
  }
  const auto most =
      std::max_element(colours.begin(), colours.end(),
                       [](const auto& a, const auto& b) { return a.second < b.second; });
  double contrast = 1;
  for (const auto& [colour, count] : colours) {
    contrast = std::max(contrast, Contrast(colour, most->first));
  }
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
