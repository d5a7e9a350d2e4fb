// Colours, lines, shapes, texts and links, as they appear in a page's content.

#include <gtest/gtest.h>

#include "paper.h"

namespace pdf {
namespace {

using Colours = PaperTest;

TEST_F(Colours, AreOperators) {
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

using Lines = PaperTest;

TEST_F(Lines, MoveToTheirEndAndSetTheFillColour) {
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

TEST_F(Lines, UseDashesOfWholePoints) {
  printer.PDFSetUnit(2);
  for (const int style : {0, 1, 2, 3}) {
    printer.PDFSetLineStyle(style);
    printer.PDFDrawLine(1, 1, 2, 2);
  }
  EXPECT_EQ(Between(Content(), "%DEBUT_LN/%\n", "\n"),
            "[] 0 d[453 226 ] 0 d[226 198 56 198 ] 0 d[226 113 56 113 56 113 ] 0 d");
}

using Shapes = PaperTest;

// A known document has both combined.
TEST_F(Shapes, AreOutlinedOrFilled) {
  for (const int mode : {0, 1}) {
    printer.PDFSetDrawMode(mode);
    printer.PDFDrawRectangle(1, 10, 5, 6, "");
    printer.PDFDrawPolygon({1, 2, 3, 4});
  }
  EXPECT_EQ(Content(), KnownContent("outlined shapes") + KnownContent("filled shapes"));
}

TEST_F(Shapes, TurnTextWhiteAndAffectTheNextLink) {
  printer.PDFDrawRectangle(10, 20, 30, 40, "");
  EXPECT_EQ(printer.PDFGetTextColor(), "1.000 1.000 1.000 rg");
  // The next link is taken to be the rectangle's: as wide, and without text.
  printer.PDFLink(50, 60, "hidden", "u");
  printer.PDFLink(50, 60, "shown", "u");
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

TEST_F(Texts, AreUnderlinedOnce) {
  printer.PDFSetFont(0, 10, 3);
  printer.PDFTextOut("a b", 60, 100);
  printer.PDFTextOut("", 60, 100);
  EXPECT_EQ(Content(), KnownContent("an underlined text"));  // 20 wide: the blank counts twice
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
  for (int page = 2; page <= 1000; ++page) NewPage();
  printer.PDFLink(1, 1, "a", "");
  NewPage();
  EXPECT_ERROR(Subscript, printer.PDFLink(1, 1, "a", ""));
}

}  // namespace
}  // namespace pdf
