#include "pdf/PDFPrinter.h"

#include "foundation/folders.h"
#include "pdf/tokens.h"

namespace pdf {
namespace {

ReaderWindows& NoReaders() {
  static NoReaderWindows none;
  return none;
}

}  // namespace

PDFPrinter::PDFPrinter(const foundation::Clock& clock, foundation::MessageBoxes& boxes)
    : PDFPrinter(clock, boxes, NoReaders(), std::nullopt) {}

PDFPrinter::PDFPrinter(const foundation::Clock& clock, foundation::MessageBoxes& boxes,
                       ReaderWindows& readers)
    : PDFPrinter(clock, boxes, readers, std::nullopt) {}

PDFPrinter::PDFPrinter(const foundation::Clock& clock, foundation::MessageBoxes& boxes,
                       PictureMeans means)
    : PDFPrinter(clock, boxes, NoReaders(), means) {}

PDFPrinter::PDFPrinter(const foundation::Clock& clock, foundation::MessageBoxes& boxes,
                       ReaderWindows& readers, std::optional<PictureMeans> means)
    : clock_(clock), boxes_(boxes), readers_(readers), means_(means) {
  fonts_.SetPath(foundation::AppFolder());
  fonts_.PDFLoadAfm(foundation::AppFolder());
}

void PDFPrinter::Complain(std::string_view subject, std::string_view text) {
  boxes_.Show(text, foundation::MessageIcon::Critical, foundation::MessageButtons::Ok,
              std::string(subject) + " - vrPDF 4.0");
}

void PDFPrinter::PDFTitle(std::string_view text) {
  info_.title = Encoded(text);
}

void PDFPrinter::PDFAuthor(std::string_view text) {
  info_.author = Encoded(text);
}

void PDFPrinter::PDFCreator(std::string_view text) {
  info_.creator = Encoded(text);
}

void PDFPrinter::PDFKeywords(std::string_view text) {
  info_.keywords = Encoded(text);
}

void PDFPrinter::PDFSubject(std::string_view text) {
  info_.subject = Encoded(text);
}

void PDFPrinter::PDFProducer(std::string_view text) {
  info_.producer = Encoded(text);
}

void PDFPrinter::PDFSetLayoutMode(std::int32_t layoutMode) {
  if (layoutMode >= 0 && layoutMode <= 3) {
    settings_.layoutMode = layoutMode;
    return;
  }
  Complain("Layout Mode", "Layout incorrect : " + std::to_string(layoutMode) +
                              ".\r\nLe Layout utilisé sera le layout simple.");
}

void PDFPrinter::PDFSetBookmark(std::string_view text, std::int16_t level, double y) {
  bookmarks_.push_back(
      {.title = Encoded(text), .level = level, .y = y == -1 ? y_ : y, .page = pageNumber_});
}

}  // namespace pdf
