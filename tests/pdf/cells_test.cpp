// Text in boxes, as it appears in a page's content.

#include <gtest/gtest.h>

#include "paper.h"

namespace pdf {
namespace {

using CellLines = PaperTest;

// The content after the colours for a cell at 60, 100, a hundred wide and twenty high.
std::string CellLine(int border, bool fill, int alignment) {
  Paper paper;
  paper.printer.PDFSetBorder(border);
  paper.printer.PDFSetFill(fill);
  paper.printer.PDFSetAlignement(alignment);
  paper.printer.PDFCellLine("(b) c", 60, 100, 100, 20, "");
  return paper.Content().substr(std::string_view("0 G\n0 g\n").size());
}

TEST_F(CellLines, PlaceBordersFillsAndTexts) {
  const auto text = [](const std::string& x) {
    return "q 0 g \nBT\n/F1 10 Tf\n" + x + " 728.89 Td\n(\\(b\\) c) Tj\nET\nQ\n";
  };
  ExpectRows(
      CellLine, Row(0, false, 1, text("63.00")),
      // 32.5 rounds to 32; the seven characters, including backslashes, are 35 wide.
      Row(0, true, 0, "60.00 741.89 100.00 -20.00 re f~\n" + text("92.00")),
      Row(1, false, 2, "60.00 741.89 100.00 -20.00 re S~\n" + text("122.00")),
      Row(1, true, 1, "60.00 741.89 100.00 -20.00 re B~\n" + text("63.00")),
      Row(4, false, 1, "0.57 w\n60.00 741.89 m 60.00 721.89 l S~\n" + text("63.00")),
      Row(532, true, 1,
          "0.57 w\n60.00 741.89 100.00 -20.00 re f~60.00 741.89 m 160.00 741.89 l S ~160.00 741.89 "
          "m 160.00 721.89 l S ~60.00 721.89 m 160.00 721.89 l S ~\n" +
              text("63.00")));
}

TEST_F(CellLines, UnderlineTheirLinks) {
  printer.PDFSetBorder(0);
  printer.PDFCellLine("ab", 60, 100, 100, 20, "u");
  EXPECT_EQ(Place(), std::pair(160, 120));
  const std::string file = Finish();
  EXPECT_TRUE(Holds(file, "q 0 g \n63.00 725.89 0.00 -0.02 re f\nBT\n"));
  // One area around the text, and one where the cell begins.
  EXPECT_EQ(Between(file, "/Rect ", " /Border"), "[63 736.89 73 726.89][60 741.89 70 731.89]");
}

TEST_F(CellLines, KeepTheirMarginAndTellTheirAlignment) {
  printer.PDFSetCellMargin(7.5);
  printer.PDFSetBorder(0);
  const auto aligned = [&](int alignment) {
    printer.PDFSetAlignement(alignment);
    return printer.PDFGetAlignement();
  };
  ExpectRows(aligned, Row(0, "Center"), Row(2, "Right"), Row(3, "Left"), Row(1, "Left"));
  printer.PDFCellLine("ab", 60, 100, 100, 20, "");
  EXPECT_EQ(Between(Content(), "Tf\n", " 728"), "68.00");
}

using Cells = PaperTest;

TEST_F(Cells, WrapAtBlanks) {
  // The positions of a cell's lines, and the lines.
  const auto lines = [](std::string_view text, double width = 36) {
    Paper paper;
    paper.printer.PDFSetFont(1, 10, 0);
    paper.printer.PDFSetBorder(0);
    paper.printer.PDFCell(text, 60, 100, width, 12, "");
    const std::string content = paper.Content();
    return Between(content, "Tf\n", ".00 ") + Between(content, "Td\n", " Tj");
  };
  ExpectRows(lines, Row("ab cd ef", "6060(ab cd)(ef)"), Row("abcdefghi", "6360(abcdef)(ghi)"),
             Row("abcdef ghi", "6060(abcdef)(ghi)"), Row("", "60()"), Row("a\r\n", "60(a~)"),
             Row("ab\r\ncd", "60(ab\ncd)"), Row("       x", "6060(      )(x)"));
  EXPECT_EQ(lines("ab", 7), "636360(a)(b)()");  // no character fits
}

TEST_F(Cells, NeedTheBorderSetForEachCell) {
  const auto cell = [&] { printer.PDFCell("ab", 60, 100, 100, 20, ""); };
  printer.PDFSetFont(0, 10, 0);
  printer.PDFSetBorder(1);
  cell();
  EXPECT_ERROR(TypeMismatch, cell());
}

TEST_F(Cells, JustifyAndClearTheSpacing) {
  printer.PDFSetFont(0, 10, 3);
  printer.PDFSetBorder(0);
  printer.PDFSetAlignement(3);
  printer.PDFCell("a b c", 63, 100, 100, 20, "");
  // Half of 100 less three margins and 25. Underline: 10 + 25 + 66 less three margins and the size.
  EXPECT_EQ(Content(), KnownContent("a justified cell"));
}

}  // namespace
}  // namespace pdf
