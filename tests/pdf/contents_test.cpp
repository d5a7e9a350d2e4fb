// Colours, lines, shapes, texts, links and cells, as they appear in a page's content.

#include "paper.h"

namespace pdf {
namespace {

using Shapes = PaperTest;

TEST_F(Shapes, HaveColoursAsOperators) {
  const auto colour = [&](const Argument& argument) {
    printer.PDFSetTextColor(argument);
    return printer.PDFGetTextColor();
  };
  ExpectRows(colour, Row(Argument{255, 0, 0}, "1.000 0.000 0.000 rg"),
             Row(255, "1.000 0.000 0.000 rg"), Row(16711680, "0.000 0.000 1.000 rg"),
             Row("#ff8000", "1.000 0.502 0.000 rg"), Row("#XYZ", "0.000 0.000 0.000 rg"),
             Row("", "0.000 0.000 0.000 rg"), Row(-1, "1.000 1.000 -0.004 rg"));
  EXPECT_ERROR(Subscript, printer.PDFSetTextColor({1, 2}));
}

TEST_F(Shapes, MoveToTheEndOfLinesAndSetTheFillColour) {
  printer.PDFDrawLineHor(60, 100, 50);
  EXPECT_EQ(Place(), std::pair(110, 100));
  printer.PDFSetLineColor(255);
  printer.PDFDrawLineVer(60, 100, 50);
  EXPECT_EQ(Place(), std::pair(60, 150));
  EXPECT_EQ(printer.PDFGetDrawColor(), "1.000 0.000 0.000 rg");
  printer.PDFSetLineWidth(2);
  printer.PDFDrawLine(90, 100, 60, 200);
  EXPECT_EQ(Place(), std::pair(90, 200));
  EXPECT_EQ(Content(), KnownContent("lines"));
}

TEST_F(Shapes, UseDashesOfWholePoints) {
  printer.PDFSetUnit(2);
  for (const int style : {0, 1, 2, 3}) {
    printer.PDFSetLineStyle(style);
    printer.PDFDrawLine(1, 1, 2, 2);
  }
  EXPECT_EQ(Between(Content(), "%DEBUT_LN/%\n", "\n"),
            "[] 0 d[453 226 ] 0 d[226 198 56 198 ] 0 d[226 113 56 113 56 113 ] 0 d");
}

TEST_F(Shapes, AreOutlinedOrFilledOrBoth) {
  for (const int mode : {0, 1}) {
    printer.PDFSetDrawMode(mode);
    printer.PDFDrawRectangle(1, 10, 5, 6, "");
    printer.PDFDrawPolygon({1, 2, 3, 4});
  }
  printer.PDFLoadAfm(METRICS_FOLDER);
  printer.PDFSetFont(0, 14, 0);
  printer.PDFSetLineColor("#C00000");
  printer.PDFSetDrawColor("#2060A0");
  printer.PDFSetLineWidth(2);
  printer.PDFSetDrawMode(2);
  printer.PDFDrawRectangle(60, 60, 160, 90, "");
  printer.PDFTextOut("white", 70, 100);
  printer.PDFSetLineStyle(0);
  printer.PDFDrawEllipse(260, 60, 160, 90, "");
  printer.PDFDrawEllipse(450, 60, 90, 0, "");
  printer.PDFDrawPolygon({60, 300, 140, 200, 220, 300, 140, 260});
  printer.PDFDrawPolygon({260, 200, 420, 200, 420, 300, 260, 300});
  EXPECT_EQ(Place(), std::pair(450, 105));
  EXPECT_EQ(Content(), KnownContent("outlined shapes") + KnownContent("filled shapes") +
                           KnownContent("shapes filled and outlined"));
}

TEST_F(Shapes, TurnTextWhiteAndAffectTheNextLink) {
  printer.PDFDrawRectangle(10, 20, 30, 40, "");
  EXPECT_EQ(printer.PDFGetTextColor(), "1.000 1.000 1.000 rg");
  // The next link is taken to be the rectangle's: as wide, and without text.
  for (const char* text : {"hidden", "shown"}) printer.PDFLink(50, 60, text, "u");
  const std::string file = Finish();
  EXPECT_TRUE(Holds(file, "/Rect [50 781.89 80 781.89]"));
  EXPECT_EQ(Between(file, "\n(", ") Tj"), "shown");
}

TEST_F(Shapes, DropHalfAPointBehindAnEvenNumberOfPoints) {
  const auto lines = [](std::size_t numbers) {
    Paper paper;
    paper.printer.PDFDrawPolygon(std::vector(numbers, 1.0));
    return Between(paper.Content(), "1.00 840.89 ", "\n");
  };
  ExpectRows(lines, Row(4, "mll"), Row(5, "mll"), Row(8, "mllll"), Row(9, "mllll"));
  for (const std::size_t numbers : {0, 1, 3, 7}) EXPECT_ERROR(Subscript, lines(numbers));
}

using Texts = PaperTest;

TEST_F(Texts, StartAtTheCurrentPositionPlusTheMargin) {
  printer.PDFTextOut("a(b)\\", 0, 0);
  EXPECT_EQ(Place(), std::pair(26, 11));
  printer.PDFSetFont(0, -7, 0);
  printer.PDFTextOut("é€ द", 0, 50);
  EXPECT_EQ(Content(),
            "q 0 g \n%DEBUT_TEXT/%\nBT\n2.00 840.89 Td\n/F1 10.00 Tf\n"
            "(a\\(b\\)\\\\\\\\) Tj\nET\nQ\n%FIN_TEXT/%\n"
            "q 0 g \n%DEBUT_TEXT/%\nBT\n27.00 791.89 Td\n/F2 -7.00 Tf\n"
            "(\xE9\x80 ?) Tj\nET\nQ\n%FIN_TEXT/%\n");
}

TEST_F(Texts, AreDrawnOnEachPageAsAWatermark) {
  printer.PDFFiligran("AB");
  EXPECT_EQ(Content(), KnownContent("a watermark"));
}

using Links = PaperTest;

TEST_F(Links, AreTextsAndTheirPlaces) {
  printer.PDFSetFont(0, 12, 0);
  printer.PDFLink(60, 60, "itself", "");
  printer.PDFLink(60, 90, "a b", "x(y)");
  printer.PDFLink(60, 120, "open", 5);
  printer.PDFDrawRectangle(60.5, 150, 80.5, 40, "u");
  const std::string file = Finish();
  EXPECT_TRUE(Holds(file, KnownContent("a link")));
  EXPECT_TRUE(Holds(file, KnownContent("places of links")));
}

TEST_F(Links, AreBounded) {
  for (int i = 0; i < 1000; ++i) printer.PDFLink(1, 1, "a", "");
  EXPECT_ERROR(Subscript, printer.PDFLink(1, 1, "a", ""));
  for (int page = 2; page <= 1001; ++page) NewPage();
  EXPECT_ERROR(Subscript, printer.PDFLink(1, 1, "a", ""));
}

using Cells = PaperTest;

// The content after the colours for a cell at 60, 100, a hundred wide and twenty high.
std::string CellLine(int border, bool fill, int alignment) {
  Paper paper;
  paper.printer.PDFSetBorder(border);
  paper.printer.PDFSetFill(fill);
  paper.printer.PDFSetAlignement(alignment);
  paper.printer.PDFCellLine("(b) c", 60, 100, 100, 20, "");
  return paper.Content().substr(std::string_view("0 G\n0 g\n").size());
}

TEST_F(Cells, PlaceBordersFillsAndTexts) {
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

TEST_F(Cells, UnderlineTheirLinks) {
  printer.PDFCellLine("ab", 60, 100, 100, 20, "u");
  EXPECT_EQ(Place(), std::pair(160, 120));
  const std::string file = Finish();
  EXPECT_TRUE(Holds(file, "q 0 g \n63.00 725.89 0.00 -0.02 re f\nBT\n"));
  // One area around the text, and one where the cell begins.
  EXPECT_EQ(Between(file, "/Rect ", " /Border"), "[63 736.89 73 726.89][60 741.89 70 731.89]");
}

TEST_F(Cells, KeepTheirMarginAndTellTheirAlignment) {
  std::string alignments;
  for (const int alignment : {0, 2, 3, 1}) {
    printer.PDFSetAlignement(alignment);
    alignments += printer.PDFGetAlignement() + " ";
  }
  EXPECT_EQ(alignments, "Center Right Left Left ");
  printer.PDFSetCellMargin(7.5);
  printer.PDFCellLine("ab", 60, 100, 100, 20, "");
  EXPECT_EQ(Between(Content(), "Tf\n", " 728"), "68.00");
}

TEST_F(Cells, WrapAtBlanks) {
  // The positions of a cell's lines, and the lines.
  const auto lines = [](std::string_view text, double width = 36) {
    Paper paper;
    paper.printer.PDFSetFont(1, 10, 0);
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
  printer.PDFSetFont(0, 10, 0);
  printer.PDFSetBorder(1);
  printer.PDFCell("ab", 60, 100, 100, 20, "");
  EXPECT_ERROR(TypeMismatch, printer.PDFCell("ab", 60, 100, 100, 20, ""));
}

TEST_F(Cells, JustifyAndClearTheSpacing) {
  printer.PDFSetFont(0, 10, 3);
  printer.PDFSetAlignement(3);
  printer.PDFCell("a b c", 63, 100, 100, 20, "");
  // Half of 100 less three margins and 25. Underline: 10 + 25 + 66 less three margins and the size.
  EXPECT_EQ(Content(), KnownContent("a justified cell"));
}

}  // namespace
}  // namespace pdf
