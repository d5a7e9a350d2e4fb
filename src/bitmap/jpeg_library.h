// The JPEG library that writing JPEG files needs.
#pragma once

#include <cstdint>

namespace bitmap {

// A picture of 24-bit rows in the order blue, green, red, and its target file.
struct JpegProperties {
  std::int32_t DIBWidth = 0;               // pixels
  std::int32_t DIBHeight = 0;              // negative if the bottom row comes first
  const std::uint8_t* DIBBytes = nullptr;  // the first row
  std::int32_t DIBPadBytes = 0;            // after each row
  const char* JPGFile = nullptr;           // null-terminated path
  std::int32_t JPGWidth = 0;               // pixels
  std::int32_t JPGHeight = 0;
  std::int32_t jquality = 0;  // 1 to 100
};

enum class JpegMode { WriteWholeImage = 8 };

// Each returns 0 on success, or a negative number that the library defines.
class JpegLibrary {
 public:
  virtual ~JpegLibrary() = default;
  // Must be called first; clears the record.
  virtual int ijlInit(JpegProperties& record) = 0;
  virtual int ijlWrite(const JpegProperties& record, JpegMode mode) = 0;
  virtual int ijlFree(JpegProperties& record) = 0;
};

}  // namespace bitmap
