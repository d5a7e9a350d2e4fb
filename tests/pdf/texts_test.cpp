// Placed texts, links and the watermark, as the content of a page has them.

#include <gtest/gtest.h>

#include "paper.h"
#include "support/errors.h"

namespace pdf {
namespace {

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
