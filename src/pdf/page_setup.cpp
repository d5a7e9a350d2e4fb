#include "pdf/page_setup.h"

#include <iterator>
#include <utility>

#include "foundation/numbers.h"
#include "pdf/PDFPrinter.h"

namespace pdf {

using foundation::RoundToInt16;

void PDFPrinter::PDFSetUnit(std::int32_t unit) {
  constexpr double kScales[] = {1, kPointsPerMillimetre, kPointsPerCentimetre, kPointsPerTwip};
  if (unit >= 0 && unit < std::int32_t{std::size(kScales)}) {
    page_.scale = kScales[unit];
    return;
  }
  Complain("Code Unité de Mesure", "Code unité de mesure incorrect : " + std::to_string(unit) +
                                       ".\r\nL'Unité de Mesure utilisée sera le centimètre.");
  page_.scale = kPointsPerCentimetre;
}

std::string PDFPrinter::PDFGetUnit() const {
  if (page_.scale == 1) return "pt";
  if (page_.scale == kPointsPerMillimetre) return "mm";
  return page_.scale == kPointsPerCentimetre ? "cm" : "";
}

void PDFPrinter::PDFOrientation(std::int32_t orientation) {
  if (orientation == 0) {
    std::swap(page_.Format().width, page_.Format().height);
  } else if (orientation != 1) {
    Complain("Type d'Orientation de Page",
             "Code orientation de page incorrect : " + std::to_string(orientation) +
                 ".\r\nL'Orientation de la page sera le mode portrait.");
  }
}

void PDFPrinter::PDFFormatPage(const Argument& format) {
  if (const auto* size = format.List(); size != nullptr && size->size() == 2) {
    page_.Format() = {size->front(), size->back()};
    return;
  }
  for (std::size_t code = 0; code < std::size(kPageFormats); ++code) {
    if (format.Number() == nullptr || *format.Number() != static_cast<double>(code)) continue;
    page_.Format() = kPageFormats[code];
    return;
  }
  Complain("Format de Page", "Code format de page incorrect : " + format.Shown() +
                                 ".\r\nLe Format de page utilisé sera le format A4" +
                                 (format.Number() == nullptr ? "" : "."));
  page_.Format() = kPageFormats[0];
}

void PDFPrinter::PDFSetLeftMargin(double left) {
  page_.leftMargin = RoundToInt16(left);
}

void PDFPrinter::PDFSetTopMargin(double top) {
  page_.topMargin = RoundToInt16(top);
}

void PDFPrinter::PDFSetRightMargin(double right) {
  page_.rightMargin = RoundToInt16(right);
}

void PDFPrinter::PDFSetBottomMargin(double bottom) {
  page_.bottomMargin = RoundToInt16(bottom);
}

void PDFPrinter::PDFSetCellMargin(double cell) {
  page_.cellMargin = RoundToInt16(cell);
}

void PDFPrinter::PDFSetMargins(double left, double top, double right, double bottom) {
  PDFSetLeftMargin(left);
  PDFSetTopMargin(top);
  PDFSetRightMargin(RoundToInt16(right) == -1 ? left : right);
  PDFSetBottomMargin(RoundToInt16(bottom) == -1 ? top : bottom);
}

std::int16_t PDFPrinter::PDFGetX() const {
  return RoundToInt16(x_);
}

std::int16_t PDFPrinter::PDFGetY() const {
  return RoundToInt16(y_);
}

}  // namespace pdf
