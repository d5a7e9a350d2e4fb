// cDIBSection: one 24-bit bitmap whose pixels are at hand.
#pragma once

#include <cstdint>
#include <memory>

#include "bitmap/pixels.h"
#include "forms/screen_services.h"
#include "foundation/machine.h"

namespace bitmap {

// What a bitmap says of itself.
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

// Empty, or holding one bitmap. Places are those of the picture as it is seen, from its top left;
// a negative size stands for the size of this object. What lies outside a picture is left out.
class cDIBSection {
 public:
  // Makes a black bitmap in place of a former one. False, and empty, where it cannot be had.
  bool Create(std::int32_t lWidth, std::int32_t lHeight);
  // Takes a picture's size and its dots: those it consists of, or those that the screen would show.
  // False, and empty, where there are none.
  bool CreateFromPicture(const forms::Picture& picThis, const forms::Rasteriser& rasteriser);
  void ClearUp() { pixels_ = {}; }

  // The pixels, for reading and writing alike; null when empty.
  Pixels* hdc() { return pixels_.Empty() ? nullptr : &pixels_; }
  const Pixels* hDib() const { return pixels_.Empty() ? nullptr : &pixels_; }
  std::uint8_t* DIBSectionBitsPtr() { return pixels_.Bytes().data(); }
  const std::uint8_t* DIBSectionBitsPtr() const { return pixels_.Bytes().data(); }

  // Of the bitmap that was asked for last, also where it could not be had, and after ClearUp.
  const BITMAPINFOHEADER& Header() const { return header_; }
  std::int32_t Width() const { return header_.width; }
  std::int32_t Height() const { return header_.height; }
  std::int32_t BytesPerScanLine() const;

  // Copies from a picture to the top left of this one, and from this one to a picture.
  // InvalidCall for a way of combining pixels other than SRCCOPY.
  void LoadPictureBlt(const Pixels& lhDC, std::int32_t lSrcLeft = 0, std::int32_t lSrcTop = 0,
                      std::int32_t lSrcWidth = -1, std::int32_t lSrcHeight = -1,
                      std::int32_t eRop = SRCCOPY);
  void PaintPicture(Pixels& lhDC, std::int32_t lDestLeft = 0, std::int32_t lDestTop = 0,
                    std::int32_t lDestWidth = -1, std::int32_t lDestHeight = -1,
                    std::int32_t lSrcLeft = 0, std::int32_t lSrcTop = 0,
                    std::int32_t eRop = SRCCOPY) const;

  // Whether the clipboard took it. With bAsDIB it is not tried, and the user is told so.
  bool CopyToClipboard(bool bAsDIB, forms::Clipboard& clipboard,
                       foundation::MessageBoxes& boxes) const;

  // Fills the pixels by chance: with green and red, column by column; or with greys, row by row.
  void RandomiseBits(bool bGray, foundation::RandomNumbers& random);

  // A new bitmap of that size, height first; nothing where it cannot be had. The same size is a
  // plain copy; for another one, Subscript where this is one pixel wide or high.
  std::unique_ptr<cDIBSection> Resample(std::int32_t lNewHeight, std::int32_t lNewWidth) const;

 private:
  bool CreateDIB(std::int32_t lWidth, std::int32_t lHeight, Pixels& hDib);

  BITMAPINFOHEADER header_;
  Pixels pixels_;
};

}  // namespace bitmap
