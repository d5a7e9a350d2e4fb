// Every text has enough contrast by the relative luminances of WCAG 2.1: at its worst point 4.5 to
// 1, or 3 to 1 from 18 points up, or from 14 if bold.

#include <gtest/gtest.h>

#include <QtWidgets>
#include <algorithm>
#include <cmath>
#include <map>
#include <set>

#include "forms/moment_picker.h"
#include "report/display_settings.h"
#include "screens/day_sky.h"
#include "screens/palette.h"
#include "screens/qt/control_widget.h"
#include "screens/qt/text_box_widget.h"
#include "screens/qt/whole_program.h"
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

TEST(Contrast, MatchesAPublishedPair) {
  EXPECT_NEAR(Contrast(0xFF777777, 0xFFFFFFFF), 4.48, 0.005);  // the grey that just fails
}

// The contrasts of a colour with the pixels in a box.
std::set<double> Contrasts(QRgb colour, const QImage& image, const QRect& box) {
  const QRect pixels = box & image.rect();
  std::set<QRgb> others;
  for (int y = pixels.top(); y <= pixels.bottom(); ++y) {
    for (int x = pixels.left(); x <= pixels.right(); ++x) others.insert(image.pixel(x, y));
  }
  std::set<double> contrasts;
  for (const QRgb other : others) contrasts.insert(Contrast(colour, other));
  return contrasts;
}

void CheckText(const std::string& text, const forms::Font& font, forms::Colour colour,
               const QRect& box, const QImage& below) {
  const auto contrasts = Contrasts(ToQt(colour).rgb(), below, box);
  ASSERT_FALSE(contrasts.empty()) << text;
  EXPECT_GE(*contrasts.begin(), font.size >= 18 || (font.bold && font.size >= 14) ? 3 : 4.5)
      << text;
}

// Checks the texts of a picture against the rest of it, drawn on `ground`.
void CheckLettering(const forms::Picture& picture, forms::Colour ground) {
  forms::Picture bare = picture;
  std::erase_if(bare.items,
                [](const auto& item) { return std::holds_alternative<forms::Lettering>(item); });
  QImage image(QSizeF(picture.width, picture.height).toSize(), QImage::Format_RGB32);
  image.fill(ToQt(ground));
  QPainter painter(&image);
  PaintPicture(painter, bare, QRectF(image.rect()));
  for (const auto& item : picture.items) {
    const auto* line = std::get_if<forms::Lettering>(&item);
    if (line == nullptr || line->text.empty()) continue;
    const auto points = static_cast<float>(line->size * kTwipsPerPixel / kTwipsPerPoint);
    const forms::Font font = {.size = points, .bold = line->bold};
    const QFontMetricsF metrics(ToQt(font));
    const QString text = ToQt(line->text);
    QRectF box = metrics.tightBoundingRect(text).translated(line->at.x, line->at.y);
    const double width = metrics.horizontalAdvance(text);
    if (line->alignment == forms::Alignment::Right) box.translate(-width, 0);
    if (line->alignment == forms::Alignment::Centre) box.translate(-width / 2, 0);
    CheckText(line->text, font, line->colour, box.toAlignedRect(), image);
  }
}

TEST(Contrast, IsEnoughOnTheSkyAtAnyHourOfTheWeek) {
  const foundation::SessionTable session = support::Delhi();
  for (int day = 1; day <= 7; ++day) {
    DayScene scene = SceneOf(foundation::DateFromParts(2011, 3, day) + 0.5, session);
    for (const auto& [width, height] : {std::pair(840, 560), {630, 1000}, {1280, 560}}) {
      for (scene.sun = 0; scene.sun < 2; scene.sun += scene.sun < 1 ? 1 / 16.0 : 0.5) {
        SCOPED_TRACE("on day " + std::to_string(day) + " at " + std::to_string(scene.sun));
        CheckLettering(*SkyPicture(scene, width, height), palette::kEarth);
      }
    }
  }
}

// Checks the labels' colours against the window without its labels.
void CheckLabels(FormWindow& window, forms::Form& form) {
  std::map<forms::Control*, forms::Colour> labels;
  for (forms::Control& control : form.Controls()) {
    if (control.kind != forms::Kind::Label || !control.visible || control.caption.empty()) continue;
    labels[&control] = std::exchange(control.foreColour, forms::kTransparent);
  }
  window.Mirror();
  const QImage below = window.grab().toImage();
  for (auto& [label, colour] : labels) {
    label->foreColour = colour;
    CheckText(label->caption, label->font, colour, PlaceInPixels(*label), below);
  }
  window.Mirror();
}

// Checks the colour in a Qt widget that contrasts most with its background, ignoring arrows at the
// right end. Renders at four times the size so that strokes reach their full colour.
void CheckInside(QWidget& widget) {
  constexpr int kTimes = 4, kEdge = 16;
  const bool arrow = qobject_cast<QComboBox*>(&widget) || qobject_cast<QAbstractSpinBox*>(&widget);
  const int right = arrow ? kTimes * 26 : kEdge;
  QImage image(kTimes * widget.size(), QImage::Format_RGB32);
  image.setDevicePixelRatio(kTimes);
  QWidget& window = *widget.window();
  window.render(&image, QPoint(), QRect(widget.mapTo(&window, QPoint()), widget.size()));
  const QRect inside = image.rect().adjusted(kEdge, kEdge, -right, -kEdge);
  EXPECT_GE(*Contrasts(image.pixel(kEdge, kEdge), image, inside).rbegin(), 4.5)
      << widget.objectName().toStdString();
}

// Shown only as long as the field is empty.
void CheckHint(QWidget& widget) {
  if (qobject_cast<TextBoxWidget*>(&widget) == nullptr) return;
  const QColor colour = widget.palette().color(QPalette::PlaceholderText);
  EXPECT_EQ(colour.alpha(), 255) << widget.objectName().toStdString();
  EXPECT_GE(Contrast(colour.rgb(), ToQt(palette::kPaper).rgb()), 4.5)
      << widget.objectName().toStdString();
}

// In one of Qt's dialogs, whose arrow the program's style does not change.
TEST(Contrast, IsEnoughForTheArrowOfAPlainDropDown) {
  QComboBox paper;
  paper.addItem(QStringLiteral("A4"));
  paper.resize(160, 32);
  const QImage image = paper.grab().toImage();
  EXPECT_GE(*Contrasts(image.pixel(100, 16), image, {136, 16, 18, 1}).rbegin(), 3);
}

TEST(Contrast, IsEnoughForThePlanetsOnAPage) {
  std::set<QRgb> colours;
  for (const auto& planet : report::display::kPlanetColours) {
    colours.insert(ToQt(planet.colour).rgb());
    EXPECT_GE(Contrast(ToQt(planet.colour).rgb(), 0xFFFFFFFF), 4.5) << planet.name;
  }
  EXPECT_EQ(colours.size(), 13U);
}

void CheckForm(Program& program, forms::Form& form) {
  FormWindow& window = program.host.WindowOf(form);
  SCOPED_TRACE(form.name);
  window.show();
  CheckLabels(window, form);
  for (const forms::Control& control : form.Controls()) {
    const bool page = control.name == "picRes";  // drawn in twips
    if (control.picture && !page) CheckLettering(*control.picture, form.backColour);
  }
  for (QWidget* widget : window.findChildren<QWidget*>()) {
    const bool wordless = qobject_cast<ControlWidget*>(widget) || qobject_cast<QScrollBar*>(widget);
    if (!widget->isVisible() || wordless || widget->focusPolicy() == Qt::NoFocus) continue;
    CheckInside(*widget);
    CheckHint(*widget);
  }
}

TEST(Contrast, IsEnoughOnEveryScreen) {
  WholeProgram whole;
  whole.clock.east = {};  // elsewhere, so that a word stands beside the dashboard's time
  Program& program = whole.program;
  program.Picker().Load("India", "Ujjain", program.dashboard);
  for (forms::Control* list :
       {&program.Preview().lstPage, &program.Preview().cmbPage, &program.Picker().cmbCountry}) {
    list->items->AddItem("1: March 2011");
    list->items->SetListIndex(0);
  }
  program.Zones().Load("UTC");
  frmDurvela& timetable = program.Timetable();
  program.host.WindowOf(timetable);
  forms::TypeMoment(timetable.DT1, "soon");                         // shows two remarks
  for (int tick = 0; tick < 100; ++tick) timetable.Timer1_Timer();  // until its sun stops
  for (forms::Form* form : std::initializer_list<forms::Form*>{
           &program.dashboard, &timetable, &program.About(), &program.Preview(), &program.Picker(),
           &program.Preferences(), &program.Zones()}) {
    CheckForm(program, *form);
  }
  for (const auto page :
       {CalculatePage, WhatIsPage, GulikPage, YumPage, ProductsPage, SitaraDeskPage}) {
    CheckForm(program, program.Information(page()));
  }
}

}  // namespace
}  // namespace screens::qt
