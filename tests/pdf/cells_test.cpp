// Texts in boxes, as the content of a page has them.

#include <gtest/gtest.h>

#include "paper.h"
#include "support/errors.h"
#include "support/table.h"

namespace pdf {
namespace {

using support::Row;

using CellLines = PaperTest;

// The content of a page with a cell at 60, 100, a hundred wide and twenty high.
template <typename Settings>
std::string CellLine(std::string_view text, const Settings& settings) {
  return ContentOf([&](PDFPrinter& p) {
    p.PDFSetBorder(0);
    settings(p);
    p.PDFCellLine(text, 60, 100, 100, 20, "");
    EXPECT_EQ(std::tuple(p.PDFGetX(), p.PDFGetY()), std::tuple(160, 120));
  });
}

TEST_F(CellLines, HaveBordersAndFillings) {
  const auto framed = [](int border, bool fill, std::string_view frame) {
    const auto settings = [&](PDFPrinter& p) { p.PDFSetBorder(border), p.PDFSetFill(fill); };
    EXPECT_EQ(CellLine("(b)", settings),
              AsWritten("0 G\n0 g\n" + std::string(frame) +
                        "q 0 g \nBT\n/F1 10 Tf\n63.00 728.89 Td\n(\\(b\\)) Tj\nET\nQ\n"));
  };
  framed(0, false, "");
  framed(0, true, "60.00 741.89 100.00 -20.00 re f~\n");
  framed(1, false, "60.00 741.89 100.00 -20.00 re S~\n");
  framed(1, true, "60.00 741.89 100.00 -20.00 re B~\n");
  framed(54, false,
         "0.57 w\n60.00 741.89 m 60.00 721.89 l S~160.00 741.89 m 160.00 721.89 l S ~\n");
  framed(32, true,
         "0.57 w\n60.00 741.89 100.00 -20.00 re f~60.00 741.89 m 160.00 741.89 l S ~60.00 721.89 m "
         "160.00 721.89 l S ~\n");
  framed(9, false, "0.57 w\n");
}

TEST_F(CellLines, AreAligned) {
  const auto aligned = [](int alignment, std::string_view name, std::string_view offset) {
    const std::string content = CellLine("a b c", [&](PDFPrinter& p) {
      p.PDFSetAlignement(alignment);
      EXPECT_EQ(p.PDFGetAlignement(), name);
    });
    EXPECT_TRUE(Holds(content, AsWritten("\n" + std::string(offset) + "728.89 Td\n"))) << content;
  };
  aligned(0, "Center", "98.00 ");
  aligned(1, "Left", "63.00 ");  // 37.5 is 38, less the rounded width 25
  aligned(2, "Right", "132.00 ");
  aligned(3, "Left", "33.000 Tw\nq 0 g \nBT\n/F1 10 Tf\n60.00 ");
}

TEST_F(CellLines, UnderlineTheirLinks) {
  printer.PDFSetBorder(0);
  printer.PDFCellLine("ab", 60, 100, 100, 20, "u");
  const std::string file = Whole();
  EXPECT_TRUE(Holds(file, AsWritten("q 0 g \n63.00 725.89 0.00 -0.02 re f\nBT\n")));
  // One place round the text, and one where the cell begins.
  EXPECT_TRUE(Holds(file, "/Rect [63 736.89 73 726.89]"));
  EXPECT_TRUE(Holds(file, "/Rect [60 741.89 70 731.89]"));
}

using Cells = PaperTest;

TEST_F(Cells, WrapAtBlanks) {
  // The texts of a cell's lines with the x of each.
  const auto lines = [](std::string_view text) {
    Paper paper;
    paper.folder.Write("Courier.afm", "StartCharMetrics\nC 10 ; WX 0 ;\nC 13 ; WX 0 ;\n" +
                                          HalfWideMetrics().substr(20));
    paper.printer.PDFSetFont(1, 10, 0);
    paper.printer.PDFSetBorder(0);
    paper.printer.PDFCell(text, 60, 100, 36, 12, "");
    const std::string content = paper.Content();
    std::string found;
    for (std::size_t at = 0; (at = content.find(" Tf\r\n", at)) != std::string::npos; at += 5) {
      const std::size_t start = content.find('(', at);
      found += content.substr(at + 5, 2) + content.substr(start, content.find(" Tj", at) - start);
    }
    return found;
  };
  ExpectRows(lines, Row("ab cd ef", "60(ab cd)60(ef)"), Row("abcdefghi", "63(abcdef)60(ghi)"),
             Row("abcdef ghi", "60(abcdef)60(ghi)"), Row("", "60()"), Row("a\r\n", "60(a\r)"),
             Row("ab\r\ncd", "60(ab\r\ncd)"), Row("       x", "60(      )60(x)"));
}

TEST_F(Cells, NeedABorderAnewEachTime) {
  const auto cell = [&] { printer.PDFCell("ab", 60, 100, 100, 20, ""); };
  printer.PDFSetBorder(0);
  EXPECT_ERROR(DivisionByZero, cell());
  printer.PDFSetFont(0, 10, 3);
  printer.PDFSetBorder(45);
  EXPECT_ERROR(TypeMismatch, cell());
  for (const int border : {0, 1}) {
    printer.PDFSetBorder(border);
    cell();
    EXPECT_ERROR(TypeMismatch, cell());
  }
}

TEST_F(Cells, JustifyAndClearTheSpacing) {
  printer.PDFSetFont(0, 10, 3);
  printer.PDFSetBorder(0);
  printer.PDFSetAlignement(3);
  printer.PDFCell("a b", 63, 100, 100, 20, "");
  // 100 less two margins and 15; underlined 5 + 15 + 79 less two margins and the size.
  EXPECT_EQ(Content(), KnownContent("a justified cell"));
}

TEST_F(Cells, TakeAMillionCharactersAndOddSizes) {
  std::string text;
  while (text.size() < 1'000'000) text += "word ((\\ ";
  printer.PDFSetFont(0, 10, 0);
  printer.PDFSetBorder(1);
  printer.PDFCell(text, 60, 60, 300, 16, "");
  printer.PDFSetFont(0, -5, 0);
  printer.PDFSetBorder(1);
  printer.PDFCell("abc def", 60, 60, 300, 16, "");
  printer.PDFSetBorder(1);
  printer.PDFCell("abc", 0, 0, -300, 0, "");
  printer.PDFSetBorder(1);
  EXPECT_ERROR(Overflow, printer.PDFCell("abc", 0, 0, 1e308, 0, ""));
  EXPECT_GT(Whole().size(), 2'000'000U);
}

}  // namespace
}  // namespace pdf
