// The calls with which a form is drawn, and the colours and languages that it is shown in.

#include <gtest/gtest.h>

#include "bitmap/libjpeg_library.h"
#include "pdf/paper.h"
#include "report/display_settings.h"
#include "report/modDispRUNTIME.h"
#include "report/modPrint.h"
#include "report/pk_Durvela.h"
#include "support/app_folder.h"
#include "support/screen_fakes.h"

namespace report {
namespace {

// One control of each kind, some in a box.
struct Sheet : forms::Form {
  Sheet() : Form("Sheet", "", 1000, 1000) {}

  CONTROL(PictureBox, Box, {.place = {100, 200, 300, 400}, .backColour = forms::Rgb(0)});
  CONTROL(Label, TwoLines,
          {.place = {10, 20, 0, 0},
           .caption = "one\r\ntwo",
           .font = {.name = "Arial", .size = 5, .bold = true},
           .foreColour = forms::Rgb(0x102030)});
  CONTROL(Label, Empty, {.font = {.size = 30}});
  CONTROL(Label, Left, {.caption = "unseen", .tag = "np"});
  CONTROL(TextBox, Inside,
          {.container = &Box, .place = {1, 2, 0, 0}, .caption = "in", .font = {.size = 12}});
  CONTROL(Line, Rule, {.ends = {1, 2, 3, 4}, .borderColour = forms::Rgb(5), .borderWidth = 2});
  CONTROL(Shape, Frame, {.place = {10, 10, 20, 30}, .borderColour = forms::Rgb(7)});
  CONTROL(Shape, Marked, {.container = &Box, .place = {1, 1, 2, 2}, .tag = "cs"});
  CONTROL(Image, Picture, {.place = {5, 6, 7, 8}});
};

constexpr char kDrawn[] =
#include "report/drawn_sheet.inc"
    ;

// A target that can do nothing but print at one place.
struct Bare : forms::DrawingTarget {
  std::vector<std::string> texts;
  void Print(std::string_view text) override { texts.emplace_back(text); }
};

TEST(FormDrawing, GoesFillsFirstAndThenControlByControl) {
  Sheet sheet;
  support::RecordingTarget target;
  Bare passedOver;
  DrawFormOnTarget(sheet, passedOver, 1000, 2000, &target, 1, 3, 4);
  EXPECT_TRUE(passedOver.texts.empty());
  std::string calls;
  for (const std::string& call : target.calls) calls += call + "\n";
  EXPECT_EQ(calls, kDrawn);
}

TEST(FormDrawing, PassesOverWhatATargetLacks) {
  Sheet sheet;
  Bare target;
  DrawFormOnTarget(sheet, target, 0, 0);
  EXPECT_EQ(target.texts, (std::vector<std::string>{"one", "two", "in"}));
}

TEST(FormDrawing, GoesIntoADocument) {
  const support::FakeRasteriser rasteriser;
  bitmap::LibjpegLibrary library;
  pdf::Paper paper(pdf::PictureMeans{rasteriser, library});
  paper.printer.PDFSetUnit(3);
  Sheet sheet;
  DrawFormOnTarget(sheet, paper.printer, 1000, 2000, nullptr, -1);
  pk_Durvela page;
  paper.NewPage();
  DrawFormOnTarget(page, paper.printer, 0, 0);
  paper.printer.PDFEndDoc();

  const std::string bytes = paper.File();
  EXPECT_TRUE(pdf::Holds(bytes, pdf::KnownContent("a form")));
  EXPECT_TRUE(pdf::Holds(bytes, "(;e?kaVd dky) Tj"));  // heads as the letters they are stored in
  EXPECT_TRUE(pdf::Holds(bytes, "/ImgJPEG13 Do Q"));   // the twelve rules of the table
  EXPECT_FALSE(pdf::Holds(bytes, "/ImgJPEG14"));
}

struct Chart : forms::Form {
  Chart() : Form("Chart", "", 1000, 1000) {}
  CONTROL(Label, Planet, {.caption = "mOON", .font = {.name = "Arial", .size = 10, .bold = true}});
  CONTROL(Label, Head, {.caption = "Sun", .tag = "ch"});
  CONTROL(Label, Based, {.caption = "Sun"});
  CONTROL(Label, Marked, {.caption = "Sun", .tag = "hhh"});
  CONTROL(Label, Kept, {.caption = "Sun", .font = {.name = "Arial"}, .tag = "n"});
  CONTROL(Label, Faced, {.caption = "12", .font = {.name = "Arial"}, .tag = "hcon"});
  CONTROL(Label, Unknown, {.caption = "12", .font = {.name = "Arial"}});
  CONTROL(Shape, Box, {.tag = "cs"});
};

TEST(DisplayColours, AreThoseOfThePlanetsNamed) {
  const auto& colours = display::kPlanetColours;
  const std::pair<const char*, forms::Colour> captions[] = {
      {"Sun", colours[1].colour}, {"moo", colours[2].colour}, {"MERCURY", colours[4].colour},
      {"Mercur", forms::Rgb(0)},  {"", forms::Rgb(0)},        {"yXu", forms::Rgb(0)}};
  for (const auto& [caption, colour] : captions) EXPECT_EQ(PlanetColourOf(caption), colour);
  Chart chart;
  ColourForm(chart, false);
  EXPECT_EQ(chart.Planet.foreColour, forms::Colour());
  ColourForm(chart, true);
  EXPECT_EQ(chart.Planet.foreColour, colours[2].colour);
  EXPECT_EQ(chart.Head.foreColour, forms::Rgb(0));
  EXPECT_EQ(chart.Box.borderColour, (forms::Colour{0xF5, 0xB0, 0x17}));  // 1552629
}

TEST(LanguageFonts, DressLabelsWithAPhrase) {
  const support::AppFolderScope folder;
  folder.Write("Language/ehindi.txt", "sun\xA7सूर्य\nmoon\xA7चन्द्र");
  Chart chart;
  ApplyLanguageFonts(chart, 1, 2, false);
  std::string captions;
  for (const forms::Control& control : chart.Controls()) captions += control.caption + "|";
  EXPECT_EQ(captions, "चन्द्र|Sun|Sun|सूर्य|Sun|12|12||");
  EXPECT_EQ(chart.Planet.font.size, 17);  // a step of 5 and 2 more
  EXPECT_FALSE(chart.Planet.font.bold);
  for (const auto* label : {&chart.Planet, &chart.Faced})
    EXPECT_EQ(label->font.name, "Lohit Devanagari");
  EXPECT_EQ(chart.Unknown.font.name, "Arial");
  ApplyLanguageFonts(chart, 4, 0, false);  // whose file is not there
  EXPECT_EQ(chart.Unknown.caption, "12");
}

}  // namespace
}  // namespace report
