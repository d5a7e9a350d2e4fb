#include "bitmap/libjpeg_library.h"

#include <cstdio>
// Needs FILE from <cstdio>.
#include <jpeglib.h>

#include <csetjmp>
#include <new>

namespace bitmap {

// The codec reports errors by jumping to `failed`; nothing with a destructor may live in between.
struct LibjpegLibrary::Compressor {
  Compressor() {
    codec.err = jpeg_std_error(&errors);
    codec.client_data = this;
    errors.error_exit = [](j_common_ptr failing) {
      std::longjmp(static_cast<Compressor*>(failing->client_data)->failed, 1);
    };
    errors.output_message = [](j_common_ptr) {};
  }
  ~Compressor() { jpeg_destroy_compress(&codec); }
  Compressor(const Compressor&) = delete;
  Compressor& operator=(const Compressor&) = delete;

  bool Begin() {
    if (setjmp(failed) != 0) return false;
    jpeg_create_compress(&codec);
    return true;
  }

  bool Write(const JpegProperties& record, std::FILE* file) {
    if (setjmp(failed) != 0) {
      jpeg_abort_compress(&codec);
      return false;
    }
    jpeg_stdio_dest(&codec, file);
    Set(record);
    jpeg_start_compress(&codec, TRUE);
    WriteRows(record);
    jpeg_finish_compress(&codec);
    return true;
  }

  void Set(const JpegProperties& record) {
    codec.image_width = static_cast<JDIMENSION>(record.JPGWidth);
    codec.image_height = static_cast<JDIMENSION>(record.JPGHeight);
    codec.input_components = 3;
    codec.in_color_space = JCS_EXT_BGR;
    jpeg_set_defaults(&codec);
    jpeg_set_quality(&codec, record.jquality, TRUE);
  }

  void WriteRows(const JpegProperties& record) {
    const std::ptrdiff_t stride = std::ptrdiff_t{record.DIBWidth} * 3 + record.DIBPadBytes;
    while (codec.next_scanline < codec.image_height) {
      const JDIMENSION row =
          record.DIBHeight < 0 ? codec.image_height - 1 - codec.next_scanline : codec.next_scanline;
      JSAMPROW bytes = const_cast<JSAMPROW>(record.DIBBytes + stride * row);
      jpeg_write_scanlines(&codec, &bytes, 1);
    }
  }

  jpeg_compress_struct codec = {};
  jpeg_error_mgr errors = {};
  std::jmp_buf failed;
};

LibjpegLibrary::LibjpegLibrary() = default;
LibjpegLibrary::~LibjpegLibrary() = default;

int LibjpegLibrary::ijlInit(JpegProperties& record) {
  record = {};
  compressor_.reset(new (std::nothrow) Compressor);
  return compressor_ && compressor_->Begin() ? 0 : kFailed;
}

int LibjpegLibrary::ijlWrite(const JpegProperties& record, JpegMode mode) {
  const bool fits = record.DIBBytes != nullptr && record.JPGFile != nullptr &&
                    record.JPGWidth > 0 && record.JPGWidth == record.DIBWidth &&
                    record.JPGHeight > 0 &&
                    (record.JPGHeight == record.DIBHeight || record.JPGHeight == -record.DIBHeight);
  if (!compressor_ || !fits || mode != JpegMode::WriteWholeImage) return kUnfit;
  std::FILE* const file = std::fopen(record.JPGFile, "wb");
  if (file == nullptr) return kNoFile;
  const bool written = compressor_->Write(record, file);
  if (std::fclose(file) == 0 && written) return 0;
  std::remove(record.JPGFile);  // a partial file
  return kFailed;
}

int LibjpegLibrary::ijlFree(JpegProperties& record) {
  record = {};
  compressor_.reset();
  return 0;
}

}  // namespace bitmap
