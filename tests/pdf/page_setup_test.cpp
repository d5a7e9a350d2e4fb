// Units, formats, margins, and what a wrong code is told.

#include <gtest/gtest.h>

#include "paper.h"
#include "pdf/tokens.h"
#include "support/errors.h"
#include "support/table.h"

namespace pdf {
namespace {

using support::Row;

TEST(Numbers, AreWrittenWithoutALocale) {
  ExpectRows(PDFFormatNumber, Row(12, 2, "12.00"), Row(0.5, 2, "0.50"), Row(-0.003, 2, "-0.00"),
             Row(-0.0, 2, "0.00"), Row(0.125, 2, "0.12"), Row(0.375, 2, "0.38"),
             Row(1.005, 2, "1.00"), Row(-2.675, 2, "-2.67"), Row(0.995, 2, "0.99"),
             Row(9.999, 2, "10.00"), Row(-41.996, 2, "-42.00"), Row(0.0005, 3, "0.001"),
             Row(1234567.891, 1, "1234567.9"), Row(3e9, 2, "3000000000.00"),
             Row(0.7071054, 5, "0.70711"));
  EXPECT_EQ(PDFFormatNumber(1e300, 2).size(), 304U);
  EXPECT_ERROR(Overflow, PDFFormatNumber(1e308 * 10, 2));
  ExpectRows(GeneralNumber, Row(595.28, "595.28"), Row(0.5, "0.5"), Row(-0.0, "0"),
             Row(0.00001, "0.00001"), Row(1e17, "100000000000000000"));
}

using PageSetup = PaperTest;

TEST_F(PageSetup, TakesItsUnits) {
  printer.PDFSetFont(0, 10, 0);
  const auto unit = [&](int code, double height) {
    printer.PDFSetUnit(code);
    EXPECT_DOUBLE_EQ(printer.PDFTextHeight(), height) << code;
    return printer.PDFGetUnit();
  };
  ExpectRows(unit, Row(0, 10, "pt"), Row(1, 720 / 25.4, "mm"), Row(2, 720 / 2.54, "cm"),
             Row(3, 0.5, ""), Row(4, 720 / 2.54, "cm"));
}

TEST_F(PageSetup, RoundsMarginsToWholeUnits) {
  printer.PDFSetMargins(2, 3, -1, -1);
  EXPECT_EQ(std::tuple(printer.PDFGetRightMargin(), printer.PDFGetBottomMargin()),
            std::tuple(2, 3));
  printer.PDFSetLeftMargin(2.5);
  printer.PDFSetTopMargin(3.5);
  EXPECT_EQ(std::tuple(printer.PDFGetLeftMargin(), printer.PDFGetTopMargin()), std::tuple(2, 4));
  EXPECT_EQ(printer.PDFGetCellMargin(), 3);
  EXPECT_ERROR(Overflow, printer.PDFSetCellMargin(32768));
  EXPECT_EQ(printer.PDFGetX(), 1);
  NewPage();
  EXPECT_EQ(std::tuple(printer.PDFGetX(), printer.PDFGetY()), std::tuple(2, 4));
}

TEST_F(PageSetup, TakesItsFormats) {
  const std::pair<Argument, std::tuple<double, double>> formats[] = {
      {2, {420.94, 595.28}},  {3, {612, 792}},          {9, {595.28, 841.89}},
      {1, {841.89, 1190.55}}, {"A3", {595.28, 841.89}}, {Argument{7.5, 8}, {7.5, 8}}};
  for (const auto& [format, size] : formats) {
    printer.PDFFormatPage(format);
    EXPECT_EQ(std::tuple(printer.PDFGetPageWidth(), printer.PDFGetPageHeight()), size);
  }
  printer.PDFOrientation(0);
  EXPECT_EQ(printer.PDFGetPageWidth(), 8);
  printer.PDFOrientation(1);
  EXPECT_EQ(printer.PDFGetPageWidth(), 8);
  printer.PDFOrientation(0);
  EXPECT_EQ(printer.PDFGetPageWidth(), 7.5);
}

using WrongCodes = PaperTest;

TEST_F(WrongCodes, AreToldAndReplaced) {
  struct Told {
    void (*call)(PDFPrinter&);
    std::string_view subject, text;
  };
  const Told rows[] = {
#include "pdf/wrong_codes.inc"
  };
  for (const Told& row : rows) {
    Paper paper;
    row.call(paper.printer);
    ASSERT_EQ(paper.boxes.shown.size(), 1U) << row.subject;
    const auto& box = paper.boxes.shown[0];
    EXPECT_EQ(box.title, std::string(row.subject) + " - vrPDF 4.0");
    EXPECT_EQ(box.text, row.text);
    EXPECT_EQ(box.icon, foundation::MessageIcon::Critical);
  }
  printer.PDFDrawRectangle(0, 0, 9, 9, 5);
  EXPECT_TRUE(boxes.shown.empty());
}

}  // namespace
}  // namespace pdf
