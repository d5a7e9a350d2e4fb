// Texts in boxes, as the content of a page has them.

#include <gtest/gtest.h>

#include "paper.h"
#include "support/errors.h"

namespace pdf {
namespace {

// A cell at 60, 100, a hundred wide and twenty high.
std::string Cell(Paper& paper, std::string_view text) {
  paper.printer.PDFCellLine(text, 60, 100, 100, 20, "");
  EXPECT_EQ(paper.printer.PDFGetX(), 160);
  EXPECT_EQ(paper.printer.PDFGetY(), 120);
  return paper.Content();
}

TEST(CellLines, HaveBordersAndFillings) {
  struct Row {
    int border;
    bool fill;
    std::string_view frame;
  };
  const Row rows[] = {
      {0, false, ""},
      {0, true, "60.00 741.89 100.00 -20.00 re f~\n"},
      {1, false, "60.00 741.89 100.00 -20.00 re S~\n"},
      {1, true, "60.00 741.89 100.00 -20.00 re B~\n"},
      {54, false, "0.57 w\n60.00 741.89 m 60.00 721.89 l S~160.00 741.89 m 160.00 721.89 l S ~\n"},
      {32, true,
       "0.57 w\n60.00 741.89 100.00 -20.00 re f~60.00 741.89 m 160.00 741.89 l S ~"
       "60.00 721.89 m 160.00 721.89 l S ~\n"},
      {9, false, "0.57 w\n"},
  };
  for (const Row& row : rows) {
    Paper paper;
    paper.printer.PDFSetBorder(row.border);
    paper.printer.PDFSetFill(row.fill);
    EXPECT_EQ(Cell(paper, "(b)"),
              AsWritten("0 G\n0 g\n" + std::string(row.frame) +
                        "q 0 g \nBT\n/F1 10 Tf\n63.00 728.89 Td\n(\\(b\\)) Tj\nET\nQ\n"));
  }
}

TEST(CellLines, AreAligned) {
  struct Row {
    int alignment;
    std::string_view name, offset;
  };
  const Row rows[] = {{0, "Center", "98.00 "},
                      {1, "Left", "63.00 "},  // 37.5 is 38, less the rounded width 25
                      {2, "Right", "132.00 "},
                      {3, "Left", "33.000 Tw\nq 0 g \nBT\n/F1 10 Tf\n60.00 "}};
  for (const Row& row : rows) {
    Paper paper;
    paper.printer.PDFSetBorder(0);
    paper.printer.PDFSetAlignement(row.alignment);
    EXPECT_EQ(paper.printer.PDFGetAlignement(), row.name);
    const std::string content = Cell(paper, "a b c");
    EXPECT_TRUE(Holds(content, AsWritten("\n" + std::string(row.offset) + "728.89 Td\n")))
        << content;
  }
}

TEST(CellLines, UnderlineTheirLinks) {
  Paper paper;
  paper.printer.PDFSetBorder(0);
  paper.printer.PDFCellLine("ab", 60, 100, 100, 20, "u");
  const std::string file = paper.Whole();
  EXPECT_TRUE(Holds(file, AsWritten("q 0 g \n63.00 725.89 0.00 -0.02 re f\nBT\n")));
  // One place round the text, and one where the cell begins.
  EXPECT_TRUE(Holds(file, "/Rect [63 736.89 73 726.89]"));
  EXPECT_TRUE(Holds(file, "/Rect [60 741.89 70 731.89]"));
}

// The texts of the cell's lines with the x of each.
std::string Lines(Paper& paper) {
  const std::string content = paper.Content();
  std::string lines;
  for (std::size_t at = 0; (at = content.find(" Tf\r\n", at)) != std::string::npos; at += 5) {
    const std::size_t text = content.find('(', at);
    lines += content.substr(at + 5, 2) + content.substr(text, content.find(" Tj", at) - text);
  }
  return lines;
}

TEST(Cells, WrapAtBlanks) {
  const std::pair<std::string_view, std::string_view> rows[] = {
      {"ab cd ef", "60(ab cd)60(ef)"},
      {"abcdefghi", "63(abcdef)60(ghi)"},
      {"abcdef ghi", "60(abcdef)60(ghi)"},
      {"", "60()"},
      {"a\r\n", "60(a\r)"},
      {"ab\r\ncd", "60(ab\r\ncd)"},
      {"       x", "60(      )60(x)"},
  };
  for (const auto& [text, lines] : rows) {
    Paper paper;
    paper.folder.Write("Courier.afm", "StartCharMetrics\nC 10 ; WX 0 ;\nC 13 ; WX 0 ;\n" +
                                          HalfWideMetrics().substr(20));
    paper.printer.PDFSetFont(1, 10, 0);
    paper.printer.PDFSetBorder(0);
    paper.printer.PDFCell(text, 60, 100, 36, 12, "");
    EXPECT_EQ(Lines(paper), lines);
  }
}

TEST(Cells, NeedABorderAnewEachTime) {
  Paper paper;
  PDFPrinter& printer = paper.printer;
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

TEST(Cells, JustifyAndClearTheSpacing) {
  Paper paper;
  paper.printer.PDFSetFont(0, 10, 3);
  paper.printer.PDFSetBorder(0);
  paper.printer.PDFSetAlignement(3);
  paper.printer.PDFCell("a b", 63, 100, 100, 20, "");
  // 100 less two margins and 15; underlined 5 + 15 + 79 less two margins and the size.
  EXPECT_EQ(paper.Content(),
            AsWritten("%DEBUT_CELL/%\n0 G\n0 g\n0.57 w\n79.000 Tw\nq 0 g \n"
                      "60.00 725.89 83.00 -0.19 re f\nBT\n/F2 10 Tf\n60.00 728.89 Td\n"
                      "(a b) Tj\nET\nQ\n0 Tw\n%FIN_CELL/%\n"));
}

TEST(Cells, TakeAMillionCharactersAndOddSizes) {
  Paper paper;
  PDFPrinter& printer = paper.printer;
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
  EXPECT_GT(paper.Whole().size(), 2'000'000U);
}

}  // namespace
}  // namespace pdf
