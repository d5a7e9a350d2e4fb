// Any bytes at all as a JPEG file: a refusal or an Error, never a read outside them.

#include "fuzz/fuzz.h"
#include "pdf/jpeg_scan.h"

void fuzz::Run(const std::string& bytes) {
  pdf::PDFImageRecord record;
  const bool isTaken = pdf::PDFParseJpeg(bytes, record).empty();
  fuzz::Require(!isTaken || record.data == bytes);
}
