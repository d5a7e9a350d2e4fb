// The calls with which a form is drawn.

#include <gtest/gtest.h>

#include "bitmap/libjpeg_library.h"
#include "pdf/paper.h"
#include "report/modPrint.h"
#include "report/pk_Durvela.h"
#include "support/screen_fakes.h"

namespace report {
namespace {

using Calls = std::vector<std::string>;

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
  const auto font = [](const char* name, const char* bold, const char* size, const char* colour) {
    return Calls{"RightToLeft 0",
                 std::string("Font ") + name,
                 "FontItalic 0",
                 std::string("FontBold ") + bold,
                 std::string("FontSize ") + size,
                 std::string("ForeColor ") + colour,
                 "FontStrikethru 0",
                 "FontUnderLine 0"};
  };
  Calls expected = {"Line 1010 2010 1030 2040 7 2",  // the frame's fill
                    "ForeColor 0", "PaintPicture 1100 2200 300 400", "ForeColor 0"};
  const auto add = [&](const Calls& calls) {
    expected.insert(expected.end(), calls.begin(), calls.end());
  };
  add(font("Arial", "1", "6", "1056816"));
  add({"FontSize 7", "CurrentX 1013", "CurrentY 2024", "Print 1013 2024 one"});
  add(font("Arial", "1", "6", "1056816"));
  add({"FontSize 7", "CurrentX 1013", "Print 1013 2264 two"});
  add({"ForeColor 0", "ForeColor 0", "ForeColor 0"});  // nothing of the empty and the unseen
  add(font("Noto Sans", "0", "13", "0"));
  add({"CurrentX 1004", "CurrentY 2006", "CurrentX 1107", "CurrentY 2210", "Print 1107 2210 in"});
  add({"ForeColor 0", "DrawWidth 2", "Line 1001 2002 1003 2004 5 0"});
  add({"ForeColor 0", "Line 1010 2010 1030 2040 7 1"});
  add({"ForeColor 0", "ForeColor 0", "PaintPicture 1005 2006 7 8"});
  EXPECT_EQ(target.calls, expected);
}

TEST(FormDrawing, PassesOverWhatATargetLacks) {
  Sheet sheet;
  Bare target;
  DrawFormOnTarget(sheet, target, 0, 0);
  EXPECT_EQ(target.texts, (Calls{"one", "two", "in"}));
}

TEST(FormDrawing, GoesIntoADocument) {
  const support::FakeRasteriser rasteriser;
  bitmap::LibjpegLibrary library;
  pdf::Paper paper(pdf::PictureMeans{rasteriser, library});
  paper.printer.PDFSetUnit(3);
  Sheet sheet;
  DrawFormOnTarget(sheet, paper.printer, 1000, 2000, nullptr, -1);
  pk_Durvela page;
  paper.printer.PDFEndPage();
  paper.printer.PDFNewPage();
  DrawFormOnTarget(page, paper.printer, 0, 0);
  paper.printer.PDFEndDoc();

  const std::string text = "q 0.000 0.000 1.000 rg \n%DEBUT_TEXT/%\nBT\n";
  const std::string end = " Tj\nET\nQ\n%FIN_TEXT/%\n";
  const std::string line = "%DEBUT_LNH/%\n\n";
  const std::string lineEnd = "1.000 0.000 0.000 RG\n0.03 w S\n%FIN_LNH/%\n";
  const std::string frame = line + "50.50 741.39 m\n51.50 741.39 l\n" + lineEnd;
  const std::string bytes = paper.File();
  EXPECT_TRUE(pdf::Holds(
      bytes,
      pdf::AsWritten("stream\n" + frame + "q\n15.00 0 0 20.00 55.00 711.89 cm /ImgJPEG1 Do Q\n" +
                     text + "50.55 740.89 Td\n/F1 9.00 Tf\n(one)" +
                     end +  // 5 - 1 + 2 is below 7: 7 + 2
                     text + "50.55 740.44 Td\n/F1 9.00 Tf\n(two)" + end +  // 9 twips below
                     text + "55.10 731.79 Td\n/F1 13.00 Tf\n(in)" + end + line +
                     "50.05 741.79 m\n50.15 741.79 l\n" + lineEnd + frame + "endstream\n")));
  EXPECT_TRUE(pdf::Holds(bytes, "(;e?kaVd dky) Tj"));  // heads as the letters they are stored in
  EXPECT_TRUE(pdf::Holds(bytes, "/ImgJPEG13 Do Q"));   // the twelve rules of the table
  EXPECT_FALSE(pdf::Holds(bytes, "/ImgJPEG14"));
}

}  // namespace
}  // namespace report
