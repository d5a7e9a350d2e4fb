// A folder's fonts and their widths.

#include <gtest/gtest.h>

#include "paper.h"

namespace pdf {
namespace {

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

using FontFolders = PaperTest;

TEST_F(FontFolders, OverwriteNamesFromTheFirst) {
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
  folder.Write("more/Zapf.AFM", "StartCharMetrics 1\nC 65 ;\n");
  fonts.LookAgain();
  EXPECT_EQ(support::FailureOf([&] { fonts.Widths("Zapf"); }),
            "The file " + (folder.path / "more/Zapf.AFM").string() + " is not a font metric file");
}

TEST_F(FontFolders, NoticeAChangedFileOnTheNextPage) {
  const auto width = [&] { return printer.PDFGetStringWidth("A", "Courier", 10); };
  EXPECT_EQ(width(), 5);
  folder.Write("Courier.afm", "StartCharMetrics 1\nC 65 ; WX 900 ;\nEndCharMetrics\n");
  EXPECT_EQ(width(), 5);
  NewPage();
  EXPECT_EQ(width(), 9);
}

TEST(Metrics, ReadTheNumberedCharactersOrFail) {
  const WidthTable widths = ReadWidths(
      "C 65 ; WX 1 ;\nStartCharMetrics 4\r\n C 66 ; WX 700.9 ; N B ;\nC 68 ; WX 5 ;\n"
      "C 67 ; WX 5 ;\nC -1 ; WX 9 ; N x ;\nC 69 ; WX 9 ;\n");
  const auto width = [&](int code) { return widths[code]; };
  // 68 is above the last code.
  ExpectRows(width, Row(65, 0), Row(66, 700), Row(67, 5), Row(68, 0), Row(69, 0));
  EXPECT_EQ(ReadWidths("StartCharMetrics\nC 66 ; WX 700 ;\n")[66], 0);
  EXPECT_ERROR(FileAccess, ReadWidths("StartCharMetrics 1\n"));
  EXPECT_ERROR(Subscript, ReadWidths("StartCharMetrics 1\nC 256 ; WX 5"));
  EXPECT_ERROR(Subscript, ReadWidths("StartCharMetrics 1\nC 65 ; WX"));
  EXPECT_ERROR(TypeMismatch, ReadWidths("StartCharMetrics 1\nC 65 ; WX 5x"));
}

}  // namespace
}  // namespace pdf
