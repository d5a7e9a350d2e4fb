#include "screens/information.h"

#include <string>
#include <utility>

#include "screens/signs.h"

namespace screens {
namespace {

using layout::At;

// Logical pixels.
constexpr float kWidth = 760, kHeight = 520;
constexpr float kPictureLeft = 400, kPictureWidth = 328;

Properties Head() {
  return {.place = At(0, 0, kWidth, 72), .backColour = palette::kEarth};
}

Properties Sign(int sign) {
  return {.place = At(24, 8, 56, 56),
          .picture = MenuSigns()[static_cast<std::size_t>(sign)].picture};
}

Properties Title(std::string_view title) {
  return {.place = At(96, 16, 600, 40),
          .caption = std::string(title),
          .font = {.size = 15.75F, .bold = true},
          .foreColour = palette::kCream};
}

Properties Text(const std::vector<std::string_view>& paragraphs) {
  std::string text;
  for (const std::string_view paragraph : paragraphs) text.append(paragraph).append("\n\n");
  return {.place = At(32, 96, 336, 352),
          .caption = std::move(text),
          .font = {.size = 10.5F},
          .foreColour = palette::kInk,
          .wordWrap = true};
}

Properties Ok() {
  return {.place = At(628, 464, 100, 36),
          .caption = "OK",
          .font = {.size = 10.5F},
          .tabStop = true,
          .look = forms::Look::Primary};
}

}  // namespace

InformationScreen::InformationScreen(const InformationPage& page, forms::FormHost& host)
    : ScaledForm(page.name, page.title, kWidth, kHeight), host_(host) {
  AddControl(forms::Kind::Shape, "Head", Head());
  AddControl(forms::Kind::PictureBox, "Sign", Sign(page.sign));
  AddControl(forms::Kind::Label, "lblTitle", Title(page.title));
  AddControl(forms::Kind::Label, "lblText", Text(page.paragraphs));
  if (!page.periods.empty()) AddPictures(page.periods);
  forms::Control& cmdOK = AddControl(forms::Kind::CommandButton, "cmdOK", Ok());
  cmdOK.onClick = [this] { cmdOK_Click(); };
  backColour = palette::kPaper;
}

void InformationScreen::AddPictures(const std::vector<PeriodKind>& periods) {
  const auto add = [&](const char* box, const char* spokenName, float y,
                       const forms::PicturePtr& drawn) {
    forms::Properties properties;
    properties.place = At(kPictureLeft, y, kPictureWidth, static_cast<float>(drawn->height));
    properties.spokenName = spokenName;
    properties.picture = drawn;
    AddControl(forms::Kind::PictureBox, box, properties);
  };
  add("Day", "A day in eight parts", 92, SampleDay(periods));
  add("Week", "The part of each weekday", 320, WeekdayTable(periods));
}

void InformationScreen::Form_KeyDown(forms::KeyPress& press) {
  press.handled = press.key == forms::Key::Escape;
  if (press.handled) cmdOK_Click();
}

void InformationScreen::cmdOK_Click() {
  host_.Unload(*this);
}

const InformationPage& WhatIsPage() {
  static const InformationPage kPage = {
      "frmWhatIs",
      "What is Durvela",
      0,
      {"Durvela is a part of each day that is held unlucky for beginnings. A journey, a purchase "
       "or new work is not begun in it; what has begun before may go on.",
       "It lasts an eighth of the daylight: about an hour and a half, longer in summer and shorter "
       "in winter.",
       "Each weekday has its own part, counted from sunrise. The table shows which.",
       "Sunrise and sunset are those of your own place, so each town has its own times. The night "
       "has no Durvela."},
      {PeriodKind::Durvela}};
  return kPage;
}

const InformationPage& CalculatePage() {
  static const InformationPage kPage = {
      "frmCalculate",
      "Calculation of Durvela",
      3,
      {"1. Sunrise and sunset of the day are worked out for the place, by its clock.",
       "2. The daylight from sunrise to sunset is cut into eight equal parts.",
       "3. The weekday chooses the part of each period, as the table shows.",
       "Before sunrise the sun of the day before counts, with the weekday of the calendar. A day "
       "without a sunrise or a sunset is not divided; nor, by the country's clock, is any day "
       "beyond "
       "63 degrees of latitude."},
      {PeriodKind::Durvela, PeriodKind::Gulik, PeriodKind::Yum}};
  return kPage;
}

const InformationPage& GulikPage() {
  static const InformationPage kPage = {
      "frmGulik",
      "Gulika Kaal",
      7,
      {"Gulika Kaal is the eighth of the daylight that Saturn rules.",
       "The parts are ruled in the order of the weekdays: the first by the planet of the day "
       "itself, "
       "the next by that of the following day, and so on; the eighth has the first ruler again.",
       "So Gulika Kaal comes a part earlier from one day to the next. On Saturday the first part "
       "and "
       "the last are both Saturn's, and the last one counts."},
      {PeriodKind::Gulik}};
  return kPage;
}

const InformationPage& YumPage() {
  static const InformationPage kPage = {
      "frmYum",
      "Yama Ghantak",
      6,
      {"Yama Ghantak is the eighth of the daylight that Jupiter rules.",
       "The parts are ruled in the order of the weekdays: the first by the planet of the day "
       "itself, "
       "the next by that of the following day, and so on; the eighth has the first ruler again.",
       "So Yama Ghantak comes a part earlier from one day to the next. On Thursday the first part "
       "and the last are both Jupiter's, and the last one counts."},
      {PeriodKind::Yum}};
  return kPage;
}

const InformationPage& ProductsPage() {
  static const InformationPage kPage = {"frmProducts", "Products", 4, {}, {}};
  return kPage;
}

const InformationPage& SitaraDeskPage() {
  static const InformationPage kPage = {"frmSitaraDesk", "Sitara Desk", 5, {}, {}};
  return kPage;
}

}  // namespace screens
