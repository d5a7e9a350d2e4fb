// What a document needs to know of a JPEG file, found by its markers without decoding it.
#pragma once

#include <optional>
#include <string>

namespace pdf {

struct PDFImageRecord {
  std::optional<int> width;  // pixels; nothing without a frame header
  std::optional<int> height;
  std::string colourSpace;  // "DeviceGray", "DeviceRGB", "DeviceCMYK" or nothing
  std::optional<int> bitsPerComponent;
  std::string filter;
  std::string data;            // the whole file
  std::string resolutionUnit;  // "Dots", "Dots/inch (DPI)", "Dots/cm"
};

// Scans the bytes of a file and takes them into the record. Returns what is wrong with the file, in
// the words for the user; nothing if it can be used. The scan does not stop at the picture's data:
// what looks like a frame header there overwrites the size. Subscript where a length leads it past
// the end in the middle of a marker.
std::string PDFParseJpeg(std::string bytes, PDFImageRecord& record);

}  // namespace pdf
