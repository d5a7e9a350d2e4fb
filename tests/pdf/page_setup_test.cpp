// Units, formats, margins, and messages for wrong codes.

#include <gtest/gtest.h>

#include "paper.h"
#include "pdf/tokens.h"

namespace pdf {
namespace {

TEST(Numbers, AreIndependentOfTheLocale) {
  ExpectRows(PDFFormatNumber, Row(12, 2, "12.00"), Row(-0.003, 2, "-0.00"), Row(-0.0, 2, "0.00"),
             Row(0.125, 2, "0.12"), Row(0.375, 2, "0.38"), Row(1.005, 2, "1.00"),
             Row(-41.996, 2, "-42.00"), Row(3e9, 2, "3000000000.00"), Row(0.7071054, 5, "0.70711"));
  ExpectRows(GeneralNumber, Row(595.28, "595.28"), Row(-0.0, "0"), Row(0.00001, "0.00001"));
}

using PageSetup = PaperTest;

TEST_F(PageSetup, ConvertsUnits) {
  printer.PDFSetFont(0, 10, 0);
  const auto height = [&](int unit) {
    printer.PDFSetUnit(unit);
    return PDFFormatNumber(printer.PDFTextHeight(), 3) + " " + printer.PDFGetUnit();
  };
  ExpectRows(height, Row(0, "10.000 pt"), Row(1, "28.346 mm"), Row(2, "283.465 cm"),
             Row(3, "0.500 "), Row(4, "283.465 cm"));
}

TEST_F(PageSetup, RoundsMarginsToWholeUnits) {
  printer.PDFSetMargins(2.5, 3.5, -1, -1);
  EXPECT_EQ(std::tuple(printer.PDFGetLeftMargin(), printer.PDFGetTopMargin(),
                       printer.PDFGetRightMargin(), printer.PDFGetBottomMargin()),
            std::tuple(2, 4, 2, 4));
  NewPage();
  EXPECT_EQ(Place(), std::pair(2, 4));
}

TEST_F(PageSetup, SetsPageFormats) {
  using Size = std::pair<double, double>;
  const auto size = [&](const Argument& format, int orientation) {
    printer.PDFFormatPage(format);
    printer.PDFOrientation(orientation);
    return Size(printer.PDFGetPageWidth(), printer.PDFGetPageHeight());
  };
  ExpectRows(size, Row(1, 1, Size(841.89, 1190.55)), Row(2, 0, Size(595.28, 420.94)),
             Row(3, 1, Size(8.5 * 72, 11 * 72)), Row(4, 1, Size(8.5 * 72, 14 * 72)),
             Row("A3", 1, Size(595.28, 841.89)), Row(Argument{7.5, 8}, 0, Size(8, 7.5)));
}

using WrongCodes = PaperTest;

TEST_F(WrongCodes, AreReportedAndReplaced) {
  struct {
    void (*call)(PDFPrinter&);
    std::string subject, text;
  } const rows[] = {
#include "pdf/wrong_codes.inc"
  };
  for (const auto& [call, subject, text] : rows) {
    call(printer);
    EXPECT_EQ(TakeMessages(), subject + " - vrPDF 4.0: " + text + "\n");
  }
  printer.PDFDrawRectangle(0, 0, 9, 9, 5);
  EXPECT_EQ(TakeMessages(), "");
  EXPECT_TRUE(Holds(Content(), "re s\n"));  // despite what the draw mode's message says
}

}  // namespace
}  // namespace pdf
