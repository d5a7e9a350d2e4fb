// Colours, line styles and shapes, as the content of a page has them.

#include <gtest/gtest.h>

#include "paper.h"
#include "support/errors.h"
#include "support/table.h"

namespace pdf {
namespace {

using support::ExpectRows;
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

}  // namespace
}  // namespace pdf
