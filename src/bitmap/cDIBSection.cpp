#include "bitmap/cDIBSection.h"

#include <algorithm>
#include <new>

#include "bitmap/copy_area.h"
#include "bitmap/raster.h"
#include "bitmap/resampler.h"
#include "forms/units.h"
#include "foundation/error.h"
#include "foundation/numbers.h"

namespace bitmap {
namespace {

// An image size beyond 2 GiB is truncated to 32 bits.
BITMAPINFOHEADER HeaderOf(std::int32_t width, std::int32_t height) {
  const auto imageSize =
      static_cast<std::uint64_t>(Pixels::StrideOf(width)) * static_cast<std::uint64_t>(height);
  return {40, width, height, 1, 24, 0, static_cast<std::int32_t>(imageSize)};
}

forms::PicturePtr PictureOf(const Pixels& pixels) {
  auto picture = std::make_shared<forms::Picture>();
  picture->width = pixels.Width() * forms::kTwipsPerPixel;
  picture->height = pixels.Height() * forms::kTwipsPerPixel;
  picture->items.emplace_back(forms::Dots{std::make_shared<const forms::Raster>(ToRaster(pixels))});
  return picture;
}

void CheckCopies(std::int32_t rop) {
  if (rop != SRCCOPY) throw foundation::Error(foundation::ErrorKind::InvalidCall);
}

std::uint8_t NextByte(foundation::RandomNumbers& random) {
  return static_cast<std::uint8_t>(foundation::RoundToInt16(random.Next() * 255));
}

void FillWithGreys(Pixels& pixels, foundation::RandomNumbers& random) {
  for (std::int32_t y = 0; y < pixels.Height(); ++y) {
    for (std::int32_t x = 0; x < pixels.Width(); ++x) {
      std::ranges::fill_n(pixels.Row(y).begin() + x * 3, 3, NextByte(random));
    }
  }
}

void FillWithColours(Pixels& pixels, foundation::RandomNumbers& random) {
  for (std::int32_t x = 0; x < pixels.Width(); ++x) {
    for (std::int32_t y = 0; y < pixels.Height(); ++y) {
      const auto pixel = pixels.Row(y).begin() + x * 3;
      pixel[0] = 0;
      pixel[1] = NextByte(random);
      pixel[2] = NextByte(random);
    }
  }
}

}  // namespace

bool cDIBSection::Create(std::int32_t lWidth, std::int32_t lHeight) {
  ClearUp();
  return CreateDIB(lWidth, lHeight, pixels_);
}

bool cDIBSection::CreateDIB(std::int32_t lWidth, std::int32_t lHeight, Pixels& hDib) {
  header_ = HeaderOf(lWidth, lHeight);
  try {
    hDib = Pixels(lWidth, lHeight);
    return true;
  } catch (const foundation::Error&) {
    return false;
  } catch (const std::bad_alloc&) {
    return false;
  }
}

bool cDIBSection::CreateFromPicture(const forms::Picture& picThis,
                                    const forms::Rasteriser& rasteriser) {
  forms::RasterPtr dots = forms::DotsOf(picThis);
  if (!dots) dots = std::make_shared<const forms::Raster>(rasteriser.Render(picThis));
  if (!Create(dots->width, dots->height)) return false;
  LoadPictureBlt(ToPixels(*dots));
  return true;
}

std::int32_t cDIBSection::BytesPerScanLine() const {
  return static_cast<std::int32_t>(Pixels::StrideOf(Width()));
}

void cDIBSection::LoadPictureBlt(const Pixels& lhDC, std::int32_t lSrcLeft, std::int32_t lSrcTop,
                                 std::int32_t lSrcWidth, std::int32_t lSrcHeight,
                                 std::int32_t eRop) {
  CheckCopies(eRop);
  CopyArea(lhDC, {lSrcLeft, lSrcTop}, pixels_, {}, lSrcWidth < 0 ? Width() : lSrcWidth,
           lSrcHeight < 0 ? Height() : lSrcHeight);
}

void cDIBSection::PaintPicture(Pixels& lhDC, std::int32_t lDestLeft, std::int32_t lDestTop,
                               std::int32_t lDestWidth, std::int32_t lDestHeight,
                               std::int32_t lSrcLeft, std::int32_t lSrcTop,
                               std::int32_t eRop) const {
  CheckCopies(eRop);
  CopyArea(pixels_, {lSrcLeft, lSrcTop}, lhDC, {lDestLeft, lDestTop},
           lDestWidth < 0 ? Width() : lDestWidth, lDestHeight < 0 ? Height() : lDestHeight);
}

bool cDIBSection::CopyToClipboard(bool bAsDIB, forms::Clipboard& clipboard,
                                  foundation::MessageBoxes& boxes) const {
  if (bAsDIB) {
    boxes.Show("I don't know how to put a DIB on the clipboard! Copy as bitmap instead!!!",
               foundation::MessageIcon::None);
    return false;
  }
  return !pixels_.Empty() && clipboard.SetPicture(PictureOf(pixels_));
}

void cDIBSection::RandomiseBits(bool bGray, foundation::RandomNumbers& random) {
  bGray ? FillWithGreys(pixels_, random) : FillWithColours(pixels_, random);
}

std::unique_ptr<cDIBSection> cDIBSection::Resample(std::int32_t lNewHeight,
                                                   std::int32_t lNewWidth) const {
  auto resampled = std::make_unique<cDIBSection>();
  if (!resampled->Create(lNewWidth, lNewHeight)) return nullptr;
  if (lNewWidth == Width() && lNewHeight == Height()) {
    resampled->LoadPictureBlt(pixels_);
  } else {
    Resampler(pixels_, resampled->pixels_);
  }
  return resampled;
}

}  // namespace bitmap
