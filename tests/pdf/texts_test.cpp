// Placed texts, links and the watermark, as the content of a page has them.

#include <gtest/gtest.h>

#include "paper.h"
#include "support/errors.h"

namespace pdf {
namespace {

TEST(Texts, StandAtThePresentPositionBesideTheMargin) {
  Paper paper;
  paper.printer.PDFTextOut("a(b)\\", 0, 0);
  EXPECT_EQ(paper.printer.PDFGetX(), 26);
  EXPECT_EQ(paper.printer.PDFGetY(), 11);
  paper.printer.PDFSetFont(0, -7, 0);
  paper.printer.PDFTextOut("é€ द", 0, 50);
  EXPECT_EQ(paper.Content(), AsWritten("q 0 g \n%DEBUT_TEXT/%\nBT\n2.00 840.89 Td\n/F1 10.00 Tf\n"
                                       "(a\\(b\\)\\\\\\\\) Tj\nET\nQ\n%FIN_TEXT/%\n"
                                       "q 0 g \n%DEBUT_TEXT/%\nBT\n27.00 791.89 Td\n/F2 -7.00 Tf\n"
                                       "(\xE9\x80 ?) Tj\nET\nQ\n%FIN_TEXT/%\n"));
}

TEST(Texts, AreUnderlinedOnce) {
  Paper paper;
  paper.printer.PDFSetFont(0, 10, 3);
  paper.printer.PDFTextOut("a b", 60, 100);
  paper.printer.PDFTextOut("", 60, 100);
  // 20 wide: the blank counts twice.
  EXPECT_EQ(paper.Content(),
            AsWritten("q 0 g \n%DEBUT_TEXT/%\nBT\n61.00 741.89 Td\n/F2 10.00 Tf\n(a b) Tj\nET\n"
                      "61.00 741.99 20.00 -0.04 re f\nQ\n%FIN_TEXT/%\n"
                      "q 0 g \n%DEBUT_TEXT/%\nBT\n61.00 741.89 Td\n/F2 10.00 Tf\n() Tj\nET\nQ\n"
                      "%FIN_TEXT/%\n"));
}

TEST(Texts, FailBeyondTheirKinds) {
  Paper paper;
  EXPECT_ERROR(Subscript, paper.printer.PDFTextOut(std::string_view("a\0b", 3), 1, 1));
  paper.printer.PDFSetFont(0, 10, 3);
  EXPECT_ERROR(Overflow, paper.printer.PDFTextOut("a", 40000, 1));
  EXPECT_ERROR(Overflow, paper.printer.PDFTextOut("a", 1, 1e308 * 10));
  paper.printer.PDFSetFont(2, 10, 1);
  EXPECT_ERROR(FileNotFound, paper.printer.PDFTextOut("no metrics", 60, 60));
}

TEST(Watermark, LiesOverEachPage) {
  Paper paper;
  paper.printer.PDFFiligran("AB");
  EXPECT_EQ(paper.Content(),
            AsWritten("q 1.000 0.753 0.796 rg \n%DEBUT_TEXT/%\nBT\n"
                      "0.70711 0.70711 -0.70711 0.70711 206.91 430.52 Tm\n/F3 50.00 Tf\n"
                      "(AB) Tj\nET\nQ\n%FIN_TEXT/%\n"));
}

TEST(Links, AreTextsAndTheirPlaces) {
  Paper paper;
  PDFPrinter& printer = paper.printer;
  printer.PDFSetFont(0, 12, 0);
  printer.PDFLink(60, 60, "itself", "");
  printer.PDFLink(60, 90, "a b", "x(y)");
  printer.PDFLink(60, 120, "open", 5);
  printer.PDFDrawRectangle(60.5, 150, 80.5, 40, "u");
  const std::string file = paper.Whole();
  EXPECT_TRUE(Holds(file, AsWritten("%DEBUT_LINK/%\nq 0 g \n%DEBUT_TEXT/%\nBT\n61.00 751.89 Td\n"
                                    "/F2 12.00 Tf\n(a b) Tj\nET\n61.00 752.03 24.00 -0.05 re f\nQ\n"
                                    "%FIN_TEXT/%\n%FIN_LINK/%\n")));
  const auto annotation = [](std::string_view rectangle) {
    return "<</Type /Annot /Subtype /Link /Rect [" + std::string(rectangle) + "] /Border [0 0 0] ";
  };
  EXPECT_TRUE(Holds(
      file, AsWritten("/Annots [" + annotation("60 781.89 96 769.89") +
                      "/A <</S /URI /URI (itself)>>>>\n" + annotation("60 751.89 78 739.89") +
                      "/A <</S /URI /URI (x\\(y\\))>>>>\n" + annotation("60 721.89 84 709.89") +
                      annotation("65 671.89 145 659.89") + "/A <</S /URI /URI (u)>>>>\n]\n")));
}

TEST(Links, AreBounded) {
  Paper paper;
  for (int i = 0; i < 1000; ++i) paper.printer.PDFLink(1, 1, "a", "");
  EXPECT_ERROR(Subscript, paper.printer.PDFLink(1, 1, "a", ""));
  for (int page = 2; page <= 1001; ++page) {
    paper.printer.PDFEndPage();
    paper.printer.PDFNewPage();
  }
  EXPECT_ERROR(Subscript, paper.printer.PDFLink(1, 1, "a", ""));
}

}  // namespace
}  // namespace pdf
