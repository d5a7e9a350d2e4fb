// The calls with which a form is drawn.

#include <gtest/gtest.h>

#include "report/modPrint.h"
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

}  // namespace
}  // namespace report
