#include <iterator>

#include "foundation/numbers.h"
#include "pdf/PDFPrinter.h"
#include "pdf/tokens.h"

namespace pdf {
namespace {

constexpr std::string_view kFamilies[] = {"Helvetica", "Courier", "Times", "Symbol",
                                          "ZapfDingbats"};

bool HasDigit(std::int32_t flags, char digit) {
  return std::to_string(flags).find(digit) != std::string::npos;
}

// The names of the metric files; Times italic has no hyphen.
std::string FaceName(std::string_view family, bool italic, bool bold) {
  const bool isTimes = family == "Times";
  std::string_view style;
  if (italic && bold) {
    style = isTimes ? "-BoldItalic" : "-BoldOblique";
  } else if (bold) {
    style = "-Bold";
  } else if (italic) {
    style = isTimes ? "Italic" : "-Oblique";
  } else if (isTimes) {
    style = "-Roman";
  }
  return std::string(family).append(style);
}

}  // namespace

void PDFPrinter::PDFPathConfiguration(std::string_view folder) {
  fonts_.SetPath(folder);
}

void PDFPrinter::PDFLoadAfm(std::string_view folder) {
  fonts_.PDFLoadAfm(folder);
}

void PDFPrinter::PDFSetFont(std::int32_t font, double size, std::int32_t style) {
  font_.size = foundation::RoundToInt16(size);
  if (HasDigit(style, '3')) font_.underline = true;
  if (font >= 0 && font < std::int32_t{std::size(kFamilies)}) {
    font_.name = FaceName(kFamilies[font], HasDigit(style, '1'), HasDigit(style, '2'));
    return;
  }
  Complain("Nom de Font",
           "Nom de font incorrecte : " + std::to_string(style) +
               ".\r\nLa font utilisée sera Times New Roman non gras , non italique.");
  font_.name = "TimesRoman";
}

double PDFPrinter::PDFGetStringWidth(std::string_view text, std::string_view fontName,
                                     double size) {
  return pdf::TextWidth(Encoded(text), fonts_.Widths(fontName.empty() ? font_.name : fontName),
                        size);
}

double PDFPrinter::StringWidth(const ByteText& text, double size) {
  return pdf::TextWidth(text, fonts_.Widths(font_.name), size);
}

double PDFPrinter::PDFTextHeight() const {
  return font_.size * page_.scale;
}

}  // namespace pdf
