// Arbitrary bytes as a JPEG file: refused or an Error, but never read out of bounds.

#include "fuzz/fuzz.h"
#include "pdf/jpeg_scan.h"

void fuzz::Run(const std::string& bytes) {
  pdf::PDFImageRecord record;
  const bool isTaken = pdf::PDFParseJpeg(bytes, record).empty();
  fuzz::Require(!isTaken || record.data == bytes);
}
