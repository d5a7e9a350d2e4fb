// Colours, lines, shapes, texts and links, as the content of a page has them.

#include <gtest/gtest.h>

#include "paper.h"
#include "support/errors.h"
#include "support/table.h"

namespace pdf {
namespace {

using support::Row;

using Colours = PaperTest;

TEST_F(Colours, AreOperators) {
  EXPECT_EQ(printer.PDFGetTextColor(), "0 g");
  EXPECT_EQ(printer.PDFGetLineColor(), "0 G");
  const auto components = [&](const Argument& colour) {
    printer.PDFSetTextColor(colour);
    printer.PDFSetLineColor(colour);
    printer.PDFSetDrawColor(colour);
    const std::string text = printer.PDFGetTextColor();
    const std::string operands = text.substr(0, text.size() - 3);
    EXPECT_EQ(text, operands + " rg");
    EXPECT_EQ(printer.PDFGetLineColor(), operands + " RG");
    EXPECT_EQ(printer.PDFGetDrawColor(), operands + " rg");
    return operands;
  };
  EXPECT_EQ(components(Argument{255, 0, 0}), "1.000 0.000 0.000");
  ExpectRows(components, Row(255, "1.000 0.000 0.000"), Row(16711680, "0.000 0.000 1.000"),
             Row("#FF8000", "1.000 0.502 0.000"), Row("#ff8000", "1.000 0.502 0.000"),
             Row("FF8000", "0.000 0.000 0.000"), Row("#XYZ", "0.000 0.000 0.000"),
             Row("", "0.000 0.000 0.000"), Row(-1, "1.000 1.000 -0.004"));
  EXPECT_ERROR(Subscript, printer.PDFSetTextColor({1, 2}));
  EXPECT_ERROR(Overflow, printer.PDFSetTextColor(1e10));
}

using Lines = PaperTest;

TEST_F(Lines, LeaveTheirEndAndFillWithTheirColour) {
  printer.PDFDrawLineHor(60, 100, 50);
  EXPECT_EQ(printer.PDFGetDrawColor(), "0 g");
  EXPECT_EQ(printer.PDFGetX(), 110);
  printer.PDFSetLineColor(255);
  printer.PDFDrawLineVer(60, 100, 50);
  EXPECT_EQ(printer.PDFGetDrawColor(), "1.000 0.000 0.000 rg");
  EXPECT_EQ(printer.PDFGetY(), 150);
  printer.PDFSetLineWidth(2);
  printer.PDFDrawLine(90, 100, 60, 200);
  EXPECT_EQ(printer.PDFGetX(), 90);
  EXPECT_EQ(Content(), KnownContent("lines"));
}

TEST_F(Lines, HaveStylesOfWholePoints) {
  const auto dashes = [](int style) {
    const std::string content = ContentOf([&](PDFPrinter& p) {
      p.PDFSetUnit(2);
      p.PDFSetLineStyle(style);
      p.PDFDrawLine(1, 1, 2, 2);
    });
    const std::size_t start = content.find('\n') + 1;
    return content.substr(start, content.find('\r', start) - start);
  };
  ExpectRows(dashes, Row(0, "[] 0 d"), Row(1, "[453 226 ] 0 d"), Row(2, "[226 198 56 198 ] 0 d"),
             Row(3, "[226 113 56 113 56 113 ] 0 d"), Row(9, "[] 0 d"));
}

using Shapes = PaperTest;

// A document as a whole has both together.
TEST_F(Shapes, AreOutlinedOrFilled) {
  const auto shapes = [](int mode) {
    return ContentOf([&](PDFPrinter& p) {
      p.PDFSetDrawMode(mode);
      p.PDFDrawRectangle(1, 10, 5, 6, "");
      p.PDFDrawPolygon({1, 2, 3, 4});
    });
  };
  EXPECT_EQ(shapes(0), KnownContent("outlined shapes"));
  EXPECT_EQ(shapes(1), KnownContent("filled shapes"));
  for (const auto& points : {std::vector<double>{}, {1}, {1, 2, 3}}) {
    EXPECT_ERROR(Subscript, printer.PDFDrawPolygon(points));
  }
}

TEST_F(Shapes, LeaveWhiteTextAndARectangleItsKind) {
  printer.PDFDrawRectangle(10, 20, 30, 40, "");
  EXPECT_EQ(printer.PDFGetTextColor(), "1.000 1.000 1.000 rg");
  // The next link is taken for the rectangle's: as wide as that, and without its text.
  printer.PDFLink(50, 60, "hidden", "u");
  printer.PDFLink(50, 60, "shown", "u");
  const std::string file = Whole();
  EXPECT_TRUE(Holds(file, "/Rect [50 781.89 80 781.89]"));
  EXPECT_FALSE(Holds(file, "(hidden)"));
  EXPECT_TRUE(Holds(file, "(shown)"));
}

using Texts = PaperTest;

TEST_F(Texts, StandAtThePresentPositionBesideTheMargin) {
  printer.PDFTextOut("a(b)\\", 0, 0);
  EXPECT_EQ(std::tuple(printer.PDFGetX(), printer.PDFGetY()), std::tuple(26, 11));
  printer.PDFSetFont(0, -7, 0);
  printer.PDFTextOut("é€ द", 0, 50);
  EXPECT_EQ(Content(), AsWritten("q 0 g \n%DEBUT_TEXT/%\nBT\n2.00 840.89 Td\n/F1 10.00 Tf\n"
                                 "(a\\(b\\)\\\\\\\\) Tj\nET\nQ\n%FIN_TEXT/%\n"
                                 "q 0 g \n%DEBUT_TEXT/%\nBT\n27.00 791.89 Td\n/F2 -7.00 Tf\n"
                                 "(\xE9\x80 ?) Tj\nET\nQ\n%FIN_TEXT/%\n"));
}

TEST_F(Texts, AreUnderlinedOnce) {
  printer.PDFSetFont(0, 10, 3);
  printer.PDFTextOut("a b", 60, 100);
  printer.PDFTextOut("", 60, 100);
  EXPECT_EQ(Content(), KnownContent("an underlined text"));  // 20 wide: the blank counts twice
}

TEST_F(Texts, FailBeyondTheirKinds) {
  EXPECT_ERROR(Subscript, printer.PDFTextOut(std::string_view("a\0b", 3), 1, 1));
  printer.PDFSetFont(0, 10, 3);
  EXPECT_ERROR(Overflow, printer.PDFTextOut("a", 40000, 1));
  EXPECT_ERROR(Overflow, printer.PDFTextOut("a", 1, 1e308 * 10));
  printer.PDFSetFont(2, 10, 1);
  EXPECT_ERROR(FileNotFound, printer.PDFTextOut("no metrics", 60, 60));
}

TEST_F(Texts, LieOverEachPageAsAWatermark) {
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
  const std::string file = Whole();
  EXPECT_TRUE(Holds(file, KnownContent("a link")));
  EXPECT_TRUE(Holds(file, KnownContent("places of links")));
}

TEST_F(Links, AreBounded) {
  for (int i = 0; i < 1000; ++i) printer.PDFLink(1, 1, "a", "");
  EXPECT_ERROR(Subscript, printer.PDFLink(1, 1, "a", ""));
  for (int page = 2; page <= 1001; ++page) NewPage();
  EXPECT_ERROR(Subscript, printer.PDFLink(1, 1, "a", ""));
}

}  // namespace
}  // namespace pdf
