// cDIBSection: a 24-bit bitmap with direct access to its pixels.
#pragma once

#include <cstdint>
#include <memory>

#include "bitmap/pixels.h"
#include "forms/screen_services.h"
#include "foundation/machine.h"

namespace bitmap {

// The bitmap's own description.
struct BITMAPINFOHEADER {
  std::int32_t headerSize = 0;  // 40
  std::int32_t width = 0;       // pixels
  std::int32_t height = 0;
  std::int16_t planes = 0;       // 1
  std::int16_t bitCount = 0;     // 24
  std::int32_t compression = 0;  // none
  std::int32_t imageSize = 0;    // bytes
};

inline constexpr std::int32_t SRCCOPY = 13369376;

// Empty, or holding one bitmap. Coordinates count from the top left of the picture as seen; a
// negative size means the size of this object. Parts outside a picture are clipped.
class cDIBSection {
 public:
  // Replaces any bitmap with a black one. Returns false, and stays empty, if it cannot be created.
  bool Create(std::int32_t lWidth, std::int32_t lHeight);
  // Takes the size and pixels of a picture, rendering it as on the screen if it does not consist of
  // pixels. Returns false, and stays empty, if there are none.
  bool CreateFromPicture(const forms::Picture& picThis, const forms::Rasteriser& rasteriser);
  void ClearUp() { pixels_ = {}; }

  // The pixels, for reading and writing; null if empty.
  Pixels* hdc() { return pixels_.Empty() ? nullptr : &pixels_; }
  const Pixels* hDib() const { return pixels_.Empty() ? nullptr : &pixels_; }
  std::uint8_t* DIBSectionBitsPtr() { return pixels_.Bytes().data(); }
  const std::uint8_t* DIBSectionBitsPtr() const { return pixels_.Bytes().data(); }

  // Describes the bitmap requested last, even if it could not be created, and after ClearUp.
  const BITMAPINFOHEADER& Header() const { return header_; }
  std::int32_t Width() const { return header_.width; }
  std::int32_t Height() const { return header_.height; }
  std::int32_t BytesPerScanLine() const;

  // Copy from a picture to the top left of this one, and from this one to a picture. InvalidCall
  // for any raster operation other than SRCCOPY.
  void LoadPictureBlt(const Pixels& lhDC, std::int32_t lSrcLeft = 0, std::int32_t lSrcTop = 0,
                      std::int32_t lSrcWidth = -1, std::int32_t lSrcHeight = -1,
                      std::int32_t eRop = SRCCOPY);
  void PaintPicture(Pixels& lhDC, std::int32_t lDestLeft = 0, std::int32_t lDestTop = 0,
                    std::int32_t lDestWidth = -1, std::int32_t lDestHeight = -1,
                    std::int32_t lSrcLeft = 0, std::int32_t lSrcTop = 0,
                    std::int32_t eRop = SRCCOPY) const;

  // Returns whether the clipboard took the bitmap. With bAsDIB it only shows a message.
  bool CopyToClipboard(bool bAsDIB, forms::Clipboard& clipboard,
                       foundation::MessageBoxes& boxes) const;

  // Fills the pixels with random greens and reds, column by column, or with random greys, row by
  // row.
  void RandomiseBits(bool bGray, foundation::RandomNumbers& random);

  // A new bitmap of the given size, height first; null if it cannot be created. The same size gives
  // a plain copy; for any other, Subscript if this bitmap is one pixel wide or high.
  std::unique_ptr<cDIBSection> Resample(std::int32_t lNewHeight, std::int32_t lNewWidth) const;

 private:
  bool CreateDIB(std::int32_t lWidth, std::int32_t lHeight, Pixels& hDib);

  BITMAPINFOHEADER header_;
  Pixels pixels_;
};

}  // namespace bitmap
