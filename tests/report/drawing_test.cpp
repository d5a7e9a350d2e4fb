// The calls that draw a form, and its colours and languages.

#include "bitmap/libjpeg_library.h"
#include "pdf/paper.h"
#include "report/display_styles.h"
#include "report/form_drawing.h"
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

// A target that can only print.
struct Bare : forms::DrawingTarget {
  std::vector<std::string> texts;
  void Print(std::string_view text) override { texts.emplace_back(text); }
};

TEST(FormDrawing, DrawsFillsFirstThenControlsInOrder) {
  Sheet sheet;
  Bare bare;
  DrawFormOnTarget(sheet, bare, 0, 0);
  support::RecordingTarget printer;
  DrawFormOnTarget(sheet, bare, 1000, 2000, &printer, 1, 3, 4);  // replaces the target
  EXPECT_EQ(bare.texts, (std::vector<std::string>{"one", "two", "in"}));
  std::string calls;
  for (const std::string& call : printer.calls) calls += call + "\n";
  EXPECT_EQ(calls, kDrawn);
}

TEST(FormDrawing, DrawsIntoADocument) {
  const support::FakeRasteriser rasteriser;
  bitmap::LibjpegLibrary library;
  pdf::Paper paper(pdf::PictureMeans{rasteriser, library});
  paper.printer.PDFSetUnit(3);
  Sheet sheet;
  DrawFormOnTarget(sheet, paper.printer, 1000, 2000, nullptr, -1);
  paper.printer.PDFEndDoc();
  EXPECT_TRUE(pdf::Holds(paper.File(), pdf::KnownContent("a form")));
}

struct Chart : forms::Form {
  Chart() : Form("Chart", "", 1000, 1000) {}
  CONTROL(Label, Planet, {.caption = "mOON", .font = {.name = "Arial", .size = 10, .bold = true}});
  CONTROL(Label, Head, {.caption = "Sun", .tag = "ch"});
  CONTROL(Label, Marked, {.caption = "Sun", .tag = "hhh"});
  CONTROL(Label, Kept, {.caption = "Sun", .font = {.name = "Arial"}, .tag = "n"});
  CONTROL(Label, Faced, {.caption = "mer", .font = {.name = "Arial"}, .tag = "hcon"});
  CONTROL(Label, Unknown, {.caption = "Mercur", .font = {.name = "Arial"}});
  CONTROL(Shape, Box, {.tag = "cs"});
};

TEST(DisplayColours, MatchTheNamedPlanets) {
  Chart chart;
  ColourForm(chart, false);
  EXPECT_EQ(chart.Planet.foreColour, forms::Colour());
  ColourForm(chart, true);
  std::vector<forms::Colour> colours;
  for (const forms::Control& control : chart.Controls()) colours.push_back(control.foreColour);
  const forms::Colour black, sun = forms::Rgb(0xB83A17), moon = forms::Rgb(0x5A6B85),
                             mercury = forms::Rgb(0x1E7A3C);
  EXPECT_EQ(colours, (std::vector{moon, black, sun, sun, mercury, black, black}));
  EXPECT_EQ(chart.Box.borderColour, forms::Rgb(0xF5B017));  // 1552629
}

TEST(LanguageFonts, ApplyToLabelsWithAPhrase) {
  const support::AppFolderScope folder;
  folder.Write("Language/ehindi.txt", "sun\xA7सूर्य\nmoon\xA7चन्द्र");
  Chart chart;
  ApplyLanguageFonts(chart, 1, 2, false);
  std::string labels;
  for (const auto& label : chart.Controls()) labels += label.caption + " " + label.font.name + "|";
  EXPECT_EQ(labels,
            "चन्द्र Lohit Devanagari|Sun Noto Sans|सूर्य Lohit Devanagari|Sun Arial|"
            "mer Lohit Devanagari|Mercur Arial| Noto Sans|");
  // Its step of 5 and 2 extra.
  EXPECT_EQ(chart.Planet.font, (forms::Font{.name = "Lohit Devanagari", .size = 17}));
  ApplyLanguageFonts(chart, 4, 0, false);  // its file is missing
  EXPECT_EQ(chart.Unknown.caption, "Mercur");
}

}  // namespace
}  // namespace report
