// Arbitrary bytes as a metric file: widths or an Error.

#include "fuzz/fuzz.h"
#include "pdf/font_metrics.h"

void fuzz::Run(const std::string& bytes) {
  const pdf::WidthTable widths = pdf::ReadWidths(bytes);
  pdf::TextWidth(foundation::ByteText("Durvela"), widths, 10);
}
