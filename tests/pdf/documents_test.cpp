// Complete documents, and the objects around the pages.

#include <unistd.h>

#include "paper.h"

namespace pdf {
namespace {

using Documents = PaperTest;

TEST_F(Documents, TwoBookmarks) {
  printer.PDFLoadAfm(METRICS_FOLDER);
  printer.PDFSetUnit(3);
  printer.PDFUseOutlines(true);
  printer.PDFSetBookmark("A", 0, 200);
  printer.PDFSetBookmark("A1", 1, 400);
  EXPECT_TRUE(Holds(Finish(), KnownContent("two bookmarks")));
}

TEST_F(Documents, AWrappedText) {
  printer.PDFProducer("\\p");
  printer.PDFAuthor("b");
  printer.PDFCreator("c");
  printer.PDFKeywords("k");
  printer.PDFSubject("s");
  printer.PDFTitle("a) द");
  Begin();
  printer.PDFLoadAfm(METRICS_FOLDER);
  printer.PDFSetFont(2, 12, 0);
  printer.PDFSetBorder(1);
  printer.PDFCell(
      "The five limbs of the almanac are reckoned from the places of the Sun and the Moon, and "
      "each of them ends at a moment that differs from day to day.",
      60, 60, 300, 16, "");
  EXPECT_EQ(Finish(), KnownContent("a wrapped text"));
}

TEST_F(Documents, LaterPagesStartWithPageTurnMarkers) {
  printer.PDFFormatPage({200.5, 300});
  NewPage();
  printer.PDFPageHeight(400);
  const std::string file = Finish();
  EXPECT_TRUE(
      Holds(file, "stream\n%FIN_OBJ/%\n%DEBUT_OBJ/%\n%FIN_OBJ/%\n%DEBUT_OBJ/%\nendstream\n"));
  EXPECT_TRUE(Holds(file, "/Kids [\n11 0 R\n12 0 R\n]\n/Count 2\n"));
  EXPECT_TRUE(Holds(file, "[ 0 0 200.5 300]\n/Resources 10 0 R\n/Contents 2 "));
  EXPECT_TRUE(Holds(file, "[ 0 0 200.5 400]\n/Resources 10 0 R\n/Contents 4 "));
}

TEST_F(Documents, BeginAgainWithoutTheOneBefore) {
  const std::string empty = Finish();
  Begin();
  folder.Write("a.jpg",
               std::string("\xFF\xD8\xFF\xFE\0\xF8", 6) + std::string(246, 'x') + "\xFF\xD9");
  printer.PDFImage((folder.path / "a.jpg").string(), 1, 1, 1, 1, "");
  printer.PDFLink(1, 1, "a", "");
  for (int i = 0; i < 2; ++i) printer.PDFSetBookmark("a", 0, 0);
  NewPage();
  Begin();
  EXPECT_EQ(Finish(), empty);
}

TEST_F(Documents, OpenAsConfigured) {
  const auto catalog = [](int zoom, int layout, bool thumbs, int preferences) {
    Paper paper;
    paper.printer.PDFSetZoomMode(zoom);
    paper.printer.PDFSetLayoutMode(layout);
    paper.printer.PDFUseThumbs(thumbs);
    paper.printer.PDFSetViewerPreferences(preferences);
    return Between(paper.Finish(), "/OpenAction [3 0 R ", "\n>>\nendobj");
  };
  ExpectRows(catalog,
             Row(1, 1, true, 135,
                 "/FitH null]\n/PageLayout /OneColumn\n/PageMode /UseThumbs\n/ViewerPreferences<<\n"
                 "/HideToolbar true\n/HideWindowUI true\n/CenterWindow true\n>>"),
             Row(2, 2, false, 246,
                 "/XYZ null null 1]\n/PageLayout /TwoColumnLeft\n/ViewerPreferences<<\n"
                 "/HideMenubar true\n/DisplayDocTitle true\n/FitWindow true\n>>"),
             Row(3, 3, false, 7, "/XYZ null null 0.03]\n/ViewerPreferences<<\n>>"));
}

TEST_F(Documents, AreConfirmedAndClosed) {
  printer.PDFConfirm(true);
  printer.PDFEndDoc();
  EXPECT_EQ(TakeMessages(), "Génération du Fichier PDF - vrPDF 4.0: Fichier PDF généré.\n");
  EXPECT_ERROR(ObjectNotSet, printer.PDFBeginDoc());
}

TEST_F(Documents, NameAFileThatCannotBeWritten) {
  for (const std::string file : {"/dev/full", "/none/a.pdf"}) {
    printer.PDFFileName(file);
    const auto write = [&] {
      printer.PDFBeginDoc();
      printer.PDFEndDoc();
    };
    EXPECT_EQ(support::FailureOf(write), "The file " + file + " cannot be written");
  }
}

// Gives up the program's folder when it is asked to close.
struct Reader : ReaderWindows {
  void Close(std::string_view title) override {
    EXPECT_EQ(seteuid(getuid()), 0);
    permissions(foundation::AppFolder(), std::filesystem::perms::owner_all);
    EXPECT_EQ(title, "Adobe Reader - [held.pdf]");
  }
};

TEST_F(Documents, AreWrittenOnceTheReaderCloses) {
  Reader reader;
  PDFPrinter another(clock, boxes, reader);
  permissions(folder.path, std::filesystem::perms::none);
  EXPECT_EQ(seteuid(getuid() == 0 ? 65534 : getuid()), 0);  // root would not be kept out
  another.PDFFileName((folder.path / "held.pdf").string());
  another.PDFBeginDoc();
  another.PDFEndDoc();
  EXPECT_TRUE(foundation::ReadFile(folder.path / "held.pdf").starts_with("%PDF-1.3"));
}

// Objects from 10 are bookmarks, followed by the outline; calculated by hand.
TEST_F(Documents, LinkBookmarksByLevel) {
  const auto references = [](const std::vector<std::int16_t>& levels) {
    Paper paper;
    for (const std::int16_t level : levels) paper.printer.PDFSetBookmark("", level, 0);
    const std::string file = paper.Finish();
    return Between(file, "<</Title ()\n", "/Dest") + Between(file, "/Outlines ", ">>");
  };
  EXPECT_EQ(references({0}), "");
  EXPECT_EQ(references({0, 0}), "/Parent 12 0 R\n/Parent 12 0 R\n/First 10 0 R\n/Last 10 0 R");
  EXPECT_EQ(references({0, 1, 1, 0}),
            "/Parent 14 0 R\n/Next 13 0 R\n/First 11 0 R\n/Last 12 0 R\n"
            "/Parent 10 0 R\n/Next 12 0 R\n/Parent 10 0 R\n/Prev 11 0 R\n"
            "/Parent 14 0 R\n/Prev 10 0 R\n/First 10 0 R\n/Last 12 0 R");
  EXPECT_EQ(references({0, 2, 1}),
            "/Parent 13 0 R\n/Next 12 0 R\n/First 11 0 R\n/Last 12 0 R\n"
            "/Parent 10 0 R\n/Parent 10 0 R\n/Prev 10 0 R\n/First 10 0 R\n/Last 12 0 R");
  EXPECT_ERROR(Subscript, references({0, -1}));
}

}  // namespace
}  // namespace pdf
