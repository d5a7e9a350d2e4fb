// What the writing of JPEG files asks of a JPEG library.
#pragma once

#include <cstdint>

namespace bitmap {

// A picture of 24-bit rows in the order blue, green, red, and the file that it goes to.
struct JpegProperties {
  std::int32_t DIBWidth = 0;               // pixels
  std::int32_t DIBHeight = 0;              // negative where the bottom row comes first
  const std::uint8_t* DIBBytes = nullptr;  // the first row
  std::int32_t DIBPadBytes = 0;            // after each row
  const char* JPGFile = nullptr;           // a path, ended by a 0 byte
  std::int32_t JPGWidth = 0;               // pixels
  std::int32_t JPGHeight = 0;
  std::int32_t jquality = 0;  // 1 to 100
};

enum class JpegMode { WriteWholeImage = 8 };

// Each returns 0 on success, or a negative number of the library's own.
class JpegLibrary {
 public:
  virtual ~JpegLibrary() = default;
  // Comes first, on a record of zeros.
  virtual int ijlInit(JpegProperties& record) = 0;
  virtual int ijlWrite(const JpegProperties& record, JpegMode mode) = 0;
  virtual int ijlFree(JpegProperties& record) = 0;
};

}  // namespace bitmap
