// Any bytes at all as a metric file: widths or an Error.

#include <cstddef>
#include <cstdint>
#include <string>

#include "foundation/error.h"
#include "pdf/font_metrics.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text(data, data + size);
  try {
    const pdf::WidthTable widths = pdf::ReadWidths(text);
    pdf::TextWidth(foundation::ByteText("Durvela"), widths, 10);
  } catch (const foundation::Error&) {
  }
  return 0;
}
