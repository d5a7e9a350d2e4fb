// Properties of a JPEG file, read from its markers without decoding it.
#pragma once

#include <optional>
#include <string>

namespace pdf {

struct PDFImageRecord {
  std::optional<int> width;  // pixels; empty without a frame header
  std::optional<int> height;
  std::string colourSpace;  // "DeviceGray", "DeviceRGB", "DeviceCMYK" or ""
  std::optional<int> bitsPerComponent;
  std::string filter;
  std::string data;            // the complete file
  std::string resolutionUnit;  // "Dots", "Dots/inch (DPI)", "Dots/cm"
};

// Scans a file and stores it in the record. Returns a message for the user if the file is unusable,
// else an empty text. The scan continues into the image data: anything there that looks like a
// frame header overwrites the size. Subscript if a length leads past the end in the middle of a
// marker.
std::string PDFParseJpeg(std::string bytes, PDFImageRecord& record);

}  // namespace pdf
