// Any bytes at all as a JPEG file: a refusal or an Error, never a read outside them.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "foundation/error.h"
#include "pdf/jpeg_scan.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string bytes(data, data + size);
  pdf::PDFImageRecord record;
  try {
    const bool isTaken = pdf::PDFParseJpeg(bytes, record).empty();
    if (isTaken && record.data != bytes) std::abort();
  } catch (const foundation::Error&) {
  }
  return 0;
}
