// The calls with which a form is drawn.

#include <gtest/gtest.h>

#include "bitmap/libjpeg_library.h"
#include "pdf/paper.h"
#include "report/modPrint.h"
#include "report/pk_Durvela.h"
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

}  // namespace
}  // namespace report
