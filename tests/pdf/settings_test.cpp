// Units, formats, margins and fonts, and messages for wrong codes.

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

using Fonts = PaperTest;

TEST_F(Fonts, AreNamedByFamilyAndStyle) {
  printer.PDFLoadAfm(METRICS_FOLDER);
  // The metric files use another encoding, in which this byte is "Ø".
  EXPECT_EQ(printer.PDFGetStringWidth("é", "Helvetica", 10), 7.78);
  // In thousandths of the size, added up from the files.
  const auto width = [&](int font, int style) {
    printer.PDFSetFont(font, 10, style);
    return foundation::NumberText(printer.PDFGetStringWidth("Durvela", "", 1000));
  };
  ExpectRows(width, Row(0, 0, "3445"), Row(1, 0, "4200"), Row(2, 0, "3221"), Row(0, 12, "3668"),
             Row(2, 2, "3444"), Row(2, 1, "3277"), Row(2, 12, "3333"), Row(3, 0, "4069"),
             Row(4, 0, "5395"));
  EXPECT_ERROR(Subscript, printer.PDFGetStringWidth(std::string_view("a\0b", 3), "", 10));
  printer.PDFSetFont(9, 10, 0);
  EXPECT_ERROR(FileNotFound, printer.PDFGetStringWidth("", "", 10));
}

TEST_F(Fonts, OverwriteNamesFromTheFirst) {
  FontFolder fonts;
  fonts.PDFLoadAfm(folder.path);
  EXPECT_EQ(fonts.Names(), (std::vector<std::string>{"Courier", "Helvetica", "Times-Roman"}));
  folder.Write("more/Zapf.AFM", "StartCharMetrics 1\nC 65 ; WX 700 ;\nEndCharMetrics\n");
  folder.Write("more/courier-x.afm", "");
  folder.Write("more/notes.txt", "");
  fonts.PDFLoadAfm(folder.path / "more");
  EXPECT_EQ(fonts.Names(), (std::vector<std::string>{"courier-x", "Zapf", "Times-Roman"}));
  EXPECT_EQ(fonts.NumberOf("Zapf"), 2);
  EXPECT_EQ(fonts.Widths("Zapf")[65], 700);  // the extension's case does not matter
  EXPECT_ERROR(FileNotFound, fonts.PDFLoadAfm(folder.path / "none"));
}

TEST_F(Fonts, NoticeAChangedFileOnTheNextPage) {
  const auto width = [&] { return printer.PDFGetStringWidth("A", "Courier", 10); };
  EXPECT_EQ(width(), 5);
  folder.Write("Courier.afm", "StartCharMetrics 1\nC 65 ; WX 900 ;\nEndCharMetrics\n");
  EXPECT_EQ(width(), 5);
  NewPage();
  EXPECT_EQ(width(), 9);
  folder.Write("Courier.afm", "StartCharMetrics 1\nC 65 ;\n");
  NewPage();
  EXPECT_EQ(support::FailureOf(width),
            "The file " + (folder.path / "Courier.afm").string() + " is not a font metric file");
}

TEST(Metrics, ReadTheNumberedCharactersOrFail) {
  const WidthTable widths = ReadWidths(
      "C 65 ; WX 1 ;\nStartCharMetrics 4\r\n C 66 ; WX 700.9 ; N B ;\nC 68 ; WX 5 ;\n"
      "C 67 ; WX 5 ;\nC -1 ; WX 9 ; N x ;\nC 69 ; WX 9 ;\n");
  // 68 is above the last code.
  EXPECT_EQ((std::array{widths[65], widths[66], widths[67], widths[68], widths[69]}),
            (std::array{0, 700, 5, 0, 0}));
  EXPECT_EQ(ReadWidths("StartCharMetrics\nC 66 ; WX 700 ;\n")[66], 0);
  EXPECT_ERROR(FileAccess, ReadWidths("StartCharMetrics 1\n"));
  EXPECT_ERROR(Subscript, ReadWidths("StartCharMetrics 1\nC 256 ; WX 5"));
  EXPECT_ERROR(Subscript, ReadWidths("StartCharMetrics 1\nC 65 ; WX"));
  EXPECT_ERROR(TypeMismatch, ReadWidths("StartCharMetrics 1\nC 65 ; WX 5x"));
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
