// The system's JPEG library: baseline files with colour at half the resolution both ways.
#pragma once

#include <memory>

#include "bitmap/jpeg_library.h"

namespace bitmap {

class LibjpegLibrary : public JpegLibrary {
 public:
  static constexpr int kUnfit = -1;   // not a picture, or not initialised
  static constexpr int kNoFile = -2;  // the file cannot be opened
  static constexpr int kFailed = -3;  // the compressor gave up, or the disk is full

  LibjpegLibrary();
  ~LibjpegLibrary() override;

  int ijlInit(JpegProperties& record) override;
  int ijlWrite(const JpegProperties& record, JpegMode mode) override;
  int ijlFree(JpegProperties& record) override;

 private:
  struct Compressor;
  std::unique_ptr<Compressor> compressor_;
};

}  // namespace bitmap
