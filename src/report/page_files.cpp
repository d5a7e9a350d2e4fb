#include "report/page_files.h"

#include <filesystem>
#include <memory>
#include <string>

#include "bitmap/bmp_file.h"
#include "bitmap/raster.h"
#include "forms/units.h"
#include "foundation/folders.h"
#include "foundation/numbers.h"
#include "foundation/text.h"

namespace report {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kExtension = ".tmp";
constexpr int kDefaultDotsPerInch = 96;

}  // namespace

fs::path PageFile(std::int16_t PageNum) {
  return foundation::TempFolder() / ("prv" + std::to_string(PageNum) + std::string(kExtension));
}

void SavePage(std::int16_t PageNum, const forms::Raster& raster) {
  std::error_code failure;
  fs::create_directories(foundation::TempFolder(), failure);
  bitmap::WriteBmp(PageFile(PageNum), bitmap::ToPixels(raster),
                   foundation::RoundToInt32(raster.dotsPerInch));
}

forms::PicturePtr LoadPage(std::int16_t PageNum) {
  const bitmap::BmpPicture file = bitmap::ReadBmp(PageFile(PageNum));
  const double dotsPerInch = file.dotsPerInch > 0 ? file.dotsPerInch : kDefaultDotsPerInch;
  const double twipsPerPixel = forms::kTwipsPerPoint * 72 / dotsPerInch;
  auto picture =
      forms::NewPicture(file.pixels.Width() * twipsPerPixel, file.pixels.Height() * twipsPerPixel);
  picture->items.emplace_back(
      forms::Dots{std::make_shared<const forms::Raster>(bitmap::ToRaster(file.pixels))});
  return picture;
}

void DeletePages() {
  std::error_code failure;
  for (fs::directory_iterator entry(foundation::TempFolder(), failure), end;
       !failure && entry != end; entry.increment(failure)) {
    std::error_code ignored;
    const std::string name = foundation::FoldCase(entry->path().filename().string());
    if (name.ends_with(kExtension) && entry->is_regular_file(ignored)) {
      fs::remove(entry->path(), ignored);
    }
  }
}

}  // namespace report
