// Whole documents, and the objects round the pages.

#include <gtest/gtest.h>

#include "paper.h"
#include "support/errors.h"

namespace pdf {
namespace {

using Documents = PaperTest;

TEST_F(Documents, TwoBookmarks) {
  printer.PDFLoadAfm(METRICS_FOLDER);
  printer.PDFUseOutlines(true);
  printer.PDFSetBookmark("A", 0, 10);
  printer.PDFSetBookmark("A1", 1, 20);
  EXPECT_TRUE(Holds(Whole(), KnownContent("two bookmarks")));
}

TEST_F(Documents, ShapesFilledAndOutlined) {
  printer.PDFLoadAfm(METRICS_FOLDER);
  printer.PDFSetFont(0, 14, 0);
  printer.PDFSetLineColor("#C00000");
  printer.PDFSetDrawColor("#2060A0");
  printer.PDFSetLineWidth(2);
  printer.PDFSetDrawMode(2);
  printer.PDFDrawRectangle(60, 60, 160, 90, "");
  printer.PDFTextOut("white", 70, 100);
  printer.PDFSetLineStyle(0);
  printer.PDFDrawEllipse(260, 60, 160, 90, "");
  printer.PDFDrawEllipse(450, 60, 90, 0, "");
  printer.PDFDrawPolygon({60, 300, 140, 200, 220, 300, 140, 260});
  printer.PDFDrawPolygon({260, 200, 420, 200, 420, 300, 260, 300});
  EXPECT_EQ(std::tuple(printer.PDFGetX(), printer.PDFGetY()), std::tuple(450, 105));
  EXPECT_EQ(Content(), KnownContent("shapes filled and outlined"));
}

TEST_F(Documents, AWrappedText) {
  printer.PDFLoadAfm(METRICS_FOLDER);
  printer.PDFSetFont(2, 12, 0);
  printer.PDFSetBorder(1);
  printer.PDFCell(
      "The five limbs of the almanac are reckoned from the places of the Sun and the Moon, and "
      "each of them ends at a moment that differs from day to day.",
      60, 60, 300, 16, "");
  EXPECT_EQ(Whole(), KnownContent("a wrapped text"));
  EXPECT_EQ(printer.PDFNbPage(), 1);
}

TEST_F(Documents, ASecondPageOpensWithTheMarkersOfTheTurn) {
  printer.PDFFormatPage({200.5, 300});
  NewPage();
  EXPECT_EQ(printer.PDFPageNumber(), 2);
  printer.PDFPageHeight(400);
  EXPECT_EQ(Content(2), AsWritten("%FIN_OBJ/%\n%DEBUT_OBJ/%\n%FIN_OBJ/%\n%DEBUT_OBJ/%\n"));
  const std::string file = File();
  EXPECT_TRUE(Holds(file, AsWritten("/Kids [\n11 0 R\n12 0 R\n]\n/Count 2\n")));
  EXPECT_TRUE(Holds(file, AsWritten("[ 0 0 200.5 300]\n/Resources 10 0 R\n/Contents 2 ")));
  EXPECT_TRUE(Holds(file, AsWritten("[ 0 0 200.5 400]\n/Resources 10 0 R\n/Contents 4 ")));
  EXPECT_EQ(printer.PDFNbPage(), 2);
}

TEST_F(Documents, NeedAPageEndBeforeEachNewPage) {
  printer.PDFNewPage();
  EXPECT_ERROR(Subscript, printer.PDFEndDoc());
}

TEST_F(Documents, KeepTheirInformationAsGiven) {
  printer.PDFTitle("a) été द");
  printer.PDFProducer("\\p");
  printer.PDFBeginDoc();
  EXPECT_TRUE(Holds(Whole(), AsWritten("/Producer (\\p)\n/Author ()\n")));
  EXPECT_TRUE(Holds(File(), "/Title (a) \xE9t\xE9 ?)"));
}

TEST_F(Documents, OpenAsTheirSettingsAsk) {
  const auto opens = [](void (*set)(PDFPrinter&), std::string_view catalog) {
    Paper paper;
    set(paper.printer);
    EXPECT_TRUE(Holds(paper.Whole(), AsWritten(catalog))) << catalog;
  };
  opens([](PDFPrinter& p) { p.PDFSetZoomMode(1), p.PDFSetLayoutMode(1); },
        "/FitH null]\n/PageLayout /OneColumn\n>>");
  opens([](PDFPrinter& p) { p.PDFSetZoomMode(2), p.PDFSetLayoutMode(2); },
        "/XYZ null null 1]\n/PageLayout /TwoColumnLeft\n>>");
  opens([](PDFPrinter& p) { p.PDFSetZoomMode(3), p.PDFSetLayoutMode(3); },
        "/XYZ null null 0.03]\n>>");
  opens([](PDFPrinter& p) { p.PDFUseThumbs(true), p.PDFUseOutlines(true); },
        "/SinglePage\n/PageMode /UseThumbs\n/Outlines 0 0 R\n/PageMode /UseOutlines\n>>");
  opens([](PDFPrinter& p) { p.PDFSetViewerPreferences(123); },
        "/SinglePage\n/ViewerPreferences<<\n/HideMenubar true\n/HideToolbar true\n/HideWindowUI "
        "true\n>>\n>>");
  opens([](PDFPrinter& p) { p.PDFSetViewerPreferences(456); },
        "<<\n/DisplayDocTitle true\n/CenterWindow true\n/FitWindow true\n>>\n>>");
}

using Outlines = PaperTest;

// Objects 10 and on are the bookmarks, object 7 the page tree; worked out by hand.
TEST_F(Outlines, TieBookmarksByTheirLevels) {
  const auto references = [](const std::vector<std::int16_t>& levels) {
    Paper paper;
    for (const std::int16_t level : levels) paper.printer.PDFSetBookmark("", level, 0);
    const std::string file = paper.Whole();
    std::string found;
    for (std::string_view rest = file; !rest.empty();) {
      const std::string_view line = foundation::TakeLine(rest);
      for (const std::string_view name : {"/Parent ", "/Prev ", "/Next ", "/First ", "/Last "}) {
        if (line.starts_with(name)) found += line.substr(0, line.find(" 0 R"));
      }
    }
    return found;
  };
  EXPECT_EQ(references({0}), "/Parent 7");
  EXPECT_EQ(references({0, 0, 0}),
            "/Parent 7/Parent 13/Parent 13/Next 12/Parent 13/Prev 11/Last 10");
  EXPECT_EQ(references({0, 1, 1, 0}),
            "/Parent 7/Parent 14/Next 13/First 11/Last 12/Parent 10/Next 12/Parent 10/Prev "
            "11/Parent 14/Prev 10/Last 12");
  EXPECT_EQ(references({0, 2, 1}),
            "/Parent 7/Parent 13/Next 12/First 11/Last 12/Parent 10/Parent 10/Prev 10/Last 12");
  printer.PDFSetBookmark("", 0, 0);
  printer.PDFSetBookmark("", -1, 0);
  EXPECT_ERROR(Subscript, printer.PDFEndDoc());
}

using Files = PaperTest;

TEST_F(Files, ThatCannotBeMadeFailAtTheFirstWrite) {
  const std::string nowhere = (folder.path / "none" / "a.pdf").string();
  printer.PDFFileName(nowhere);
  EXPECT_EQ(printer.PDFGetFileName(), nowhere);
  EXPECT_ERROR(ObjectNotSet, printer.PDFBeginDoc());
  EXPECT_TRUE(boxes.shown.empty());
}

TEST_F(Files, AreClosedAndConfirmed) {
  printer.PDFConfirm(true);
  printer.PDFEndDoc();
  ASSERT_EQ(boxes.shown.size(), 1U);
  EXPECT_EQ(boxes.shown[0].text, "Fichier PDF généré.");
  EXPECT_EQ(boxes.shown[0].title, "Génération du Fichier PDF - vrPDF 4.0");
  EXPECT_ERROR(ObjectNotSet, printer.PDFBeginDoc());
}

}  // namespace
}  // namespace pdf
