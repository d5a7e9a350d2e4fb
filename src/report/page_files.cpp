#include "report/page_files.h"

#include <filesystem>
#include <memory>
#include <string>

#include "bitmap/bmp_file.h"
#include "forms/units.h"
#include "foundation/modFileFx.h"
#include "foundation/numbers.h"

namespace report {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kExtension = ".tmp";
constexpr int kUsualDotsPerInch = 96;

fs::path PageFile(std::int16_t number) {
  return foundation::TempFolder() / ("prv" + std::to_string(number) + std::string(kExtension));
}

// From the bottom row up, blue first.
bitmap::Pixels ToPixels(const forms::Raster& dots) {
  bitmap::Pixels pixels(dots.width, dots.height);
  const std::uint8_t* rgb = dots.rgb.data();
  for (int y = dots.height - 1; y >= 0; --y) {
    const auto row = pixels.Row(y);
    for (std::size_t x = 0; x < 3 * static_cast<std::size_t>(dots.width); x += 3, rgb += 3) {
      row[x] = rgb[2];
      row[x + 1] = rgb[1];
      row[x + 2] = rgb[0];
    }
  }
  return pixels;
}

forms::Raster ToRaster(const bitmap::Pixels& pixels) {
  forms::Raster dots = {.width = pixels.Width(), .height = pixels.Height()};
  dots.rgb.resize(3 * static_cast<std::size_t>(dots.width) * static_cast<std::size_t>(dots.height));
  std::uint8_t* rgb = dots.rgb.data();
  for (int y = dots.height - 1; y >= 0; --y) {
    const auto row = pixels.Row(y);
    for (std::size_t x = 0; x < 3 * static_cast<std::size_t>(dots.width); x += 3, rgb += 3) {
      rgb[0] = row[x + 2];
      rgb[1] = row[x + 1];
      rgb[2] = row[x];
    }
  }
  return dots;
}

}  // namespace

void SavePage(std::int16_t PageNum, const forms::Raster& dots) {
  std::error_code failure;
  fs::create_directories(foundation::TempFolder(), failure);
  bitmap::WriteBmp(PageFile(PageNum), ToPixels(dots), foundation::RoundToInt32(dots.dotsPerInch));
}

forms::PicturePtr LoadPage(std::int16_t PageNum) {
  const bitmap::BmpPicture file = bitmap::ReadBmp(PageFile(PageNum));
  const double dotsPerInch = file.dotsPerInch > 0 ? file.dotsPerInch : kUsualDotsPerInch;
  const double twipsPerDot = forms::kTwipsPerPoint * 72 / dotsPerInch;
  auto picture = std::make_shared<forms::Picture>();
  picture->width = file.pixels.Width() * twipsPerDot;
  picture->height = file.pixels.Height() * twipsPerDot;
  picture->items.emplace_back(
      forms::Dots{std::make_shared<const forms::Raster>(ToRaster(file.pixels))});
  return picture;
}

void DeletePages() {
  std::error_code failure;
  for (fs::directory_iterator entry(foundation::TempFolder(), failure), end;
       !failure && entry != end; entry.increment(failure)) {
    std::error_code ignored;
    if (entry->path().extension() == kExtension && entry->is_regular_file(ignored)) {
      fs::remove(entry->path(), ignored);
    }
  }
}

}  // namespace report
