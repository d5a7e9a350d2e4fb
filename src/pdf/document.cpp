// Document and page boundaries.

#include "foundation/numbers.h"
#include "pdf/PDFPrinter.h"

namespace pdf {
namespace {

// What closing one page's objects and opening the next leaves at the start of the new content.
constexpr std::string_view kPageTurn =
    "%FIN_OBJ/%\r\n%DEBUT_OBJ/%\r\n%FIN_OBJ/%\r\n%DEBUT_OBJ/%\r\n";

}  // namespace

void PDFPrinter::PDFFileName(std::string_view fileName) {
  fileName_ = fileName;
  file_.Open(fileName_, readers_);
}

void PDFPrinter::PDFBeginDoc() {
  file_.Restart();
  pageNumber_ = 1;
  tables_ = {{0}, {0}, {0}, {0}};
  objects_ = {};
  fontObjects_.clear();
  bookmarks_.clear();
  images_.clear();
  links_.Clear();
  fonts_.LookAgain();
  PDFPutHeader();
  PDFPutInfo();
  PDFBeginStream();
}

void PDFPrinter::PDFEndPage() {
  page_.formats.push_back(page_.formats.back());
  PDFDrawWatermark();
}

void PDFPrinter::PDFNewPage() {
  PDFEndStream();
  x_ = page_.leftMargin;
  y_ = page_.topMargin;
  links_.BeginPage();
  fonts_.LookAgain();
  pageNumber_ = foundation::RoundToInt16(pageNumber_ + 1);
  OpenStream();
  content_ = kPageTurn;
  PDFDrawWatermark();
}

void PDFPrinter::PDFEndDoc() {
  PDFDrawWatermark();
  PDFEndStream();
  PDFPutFonts();
  PDFPutPages();
  PDFPutResources();
  for (int image = 1; image <= static_cast<int>(images_.size()); ++image) PDFPutImage(image);
  for (int page = 1; page <= pageNumber_; ++page) PDFPutPage(page);
  PDFPutOutlines();
  PDFPutCatalog();
  file_.PDFPutXref(objects_.catalog);
  file_.WriteLine("%%EOF");
  file_.Close();
  if (settings_.confirm) Complain("Génération du Fichier PDF", "Fichier PDF généré.");
}

}  // namespace pdf
