// Colours, line styles and shapes, as the content of a page has them.

#include <gtest/gtest.h>

#include "paper.h"
#include "support/errors.h"

namespace pdf {
namespace {

TEST(Colours, AreOperators) {
  Paper paper;
  PDFPrinter& printer = paper.printer;
  EXPECT_EQ(printer.PDFGetTextColor(), "0 g");
  EXPECT_EQ(printer.PDFGetLineColor(), "0 G");
  const std::pair<Argument, std::string_view> rows[] = {{Argument{255, 0, 0}, "1.000 0.000 0.000"},
                                                        {255, "1.000 0.000 0.000"},
                                                        {16711680, "0.000 0.000 1.000"},
                                                        {"#FF8000", "1.000 0.502 0.000"},
                                                        {"#ff8000", "1.000 0.502 0.000"},
                                                        {"FF8000", "0.000 0.000 0.000"},
                                                        {"#XYZ", "0.000 0.000 0.000"},
                                                        {"", "0.000 0.000 0.000"},
                                                        {-1, "1.000 1.000 -0.004"}};
  for (const auto& [colour, components] : rows) {
    printer.PDFSetTextColor(colour);
    printer.PDFSetLineColor(colour);
    printer.PDFSetDrawColor(colour);
    EXPECT_EQ(printer.PDFGetTextColor(), std::string(components) + " rg");
    EXPECT_EQ(printer.PDFGetLineColor(), std::string(components) + " RG");
    EXPECT_EQ(printer.PDFGetDrawColor(), std::string(components) + " rg");
  }
  EXPECT_ERROR(Subscript, printer.PDFSetTextColor({1, 2}));
  EXPECT_ERROR(Overflow, printer.PDFSetTextColor(1e10));
}

TEST(Lines, LeaveTheirEndAndFillWithTheirColour) {
  Paper paper;
  PDFPrinter& printer = paper.printer;
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
  EXPECT_EQ(paper.Content(),
            AsWritten("%DEBUT_LNH/%\n\n60.00 741.89 m\n110.00 741.89 l\n0 G\n0.57 w S\n%FIN_LNH/%\n"
                      "%DEBUT_LNV/%\n\n60.00 741.89 m\n60.00 691.89 l\n1.000 0.000 0.000 RG\n"
                      "0.57 w S\n%FIN_LNV/%\n"
                      "%DEBUT_LN/%\n\n90.00 741.89 m\n60.00 641.89 l\n1.000 0.000 0.000 RG\n"
                      "2.00 w S\n%FIN_LN/%\n"));
}

TEST(Lines, HaveStylesOfWholePoints) {
  const std::pair<int, std::string_view> rows[] = {{0, "[] 0 d"},
                                                   {1, "[453 226 ] 0 d"},
                                                   {2, "[226 198 56 198 ] 0 d"},
                                                   {3, "[226 113 56 113 56 113 ] 0 d"},
                                                   {9, "[] 0 d"}};
  for (const auto& [style, dashes] : rows) {
    Paper paper;
    paper.printer.PDFSetUnit(2);
    paper.printer.PDFSetLineStyle(style);
    paper.printer.PDFDrawLine(1, 1, 2, 2);
    EXPECT_TRUE(Holds(paper.Content(), AsWritten("%DEBUT_LN/%\n" + std::string(dashes) + "\n")));
  }
}

// A document as a whole has both together.
TEST(Shapes, AreOutlinedOrFilled) {
  const std::tuple<int, std::string_view, std::string_view, std::string_view> rows[] = {
      {0, "0 G", "s", "s"}, {1, "0 g", "f", "h f"}};
  for (const auto& [mode, colour, rectangle, paint] : rows) {
    Paper paper;
    paper.printer.PDFSetDrawMode(mode);
    paper.printer.PDFDrawRectangle(1, 10, 5, 6, "");
    paper.printer.PDFDrawPolygon({1, 2, 3, 4});
    EXPECT_EQ(paper.Content(),
              AsWritten("%DEBUT_RECT/%\n" + std::string(colour) + "\n\n1.00 831.89 5.00 -6.00 re " +
                        std::string(rectangle) + "\n0.57 w S\n%FIN_RECT/%\n" + std::string(colour) +
                        "\n%DEBUT_POLY/%\n\n1.00 839.89 m\n3.00 837.89 l\n1.00 839.89 l\n0.57 w " +
                        std::string(paint) + "\n%FIN_POLY/%\n"));
  }
  Paper paper;
  for (const auto& points : {std::vector<double>{}, {1}, {1, 2, 3}}) {
    EXPECT_ERROR(Subscript, paper.printer.PDFDrawPolygon(points));
  }
}

TEST(Shapes, LeaveWhiteTextAndARectangleItsKind) {
  Paper paper;
  PDFPrinter& printer = paper.printer;
  printer.PDFDrawRectangle(10, 20, 30, 40, "");
  EXPECT_EQ(printer.PDFGetTextColor(), "1.000 1.000 1.000 rg");
  // The next link is taken for the rectangle's: as wide as that, and without its text.
  printer.PDFLink(50, 60, "hidden", "u");
  printer.PDFLink(50, 60, "shown", "u");
  const std::string file = paper.Whole();
  EXPECT_TRUE(Holds(file, "/Rect [50 781.89 80 781.89]"));
  EXPECT_FALSE(Holds(file, "(hidden)"));
  EXPECT_TRUE(Holds(file, "(shown)"));
}

}  // namespace
}  // namespace pdf
