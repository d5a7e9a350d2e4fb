// Arbitrary bytes as a page file: a loaded picture survives saving and loading again; or an Error.

#include <variant>

#include "fuzz/fuzz.h"
#include "report/page_files.h"
#include "support/app_folder.h"

void fuzz::Run(const std::string& bytes) {
  static const support::AppFolderScope folder;
  const auto dotsOf = [](const forms::PicturePtr& page) {
    return *std::get<forms::Dots>(page->items.at(0)).raster;
  };
  folder.Write("temp/prv1.tmp", bytes);
  forms::Raster dots = dotsOf(report::LoadPage(1));
  dots.dotsPerInch = 96;
  report::SavePage(2, dots);
  fuzz::Require(dotsOf(report::LoadPage(2)).rgb == dots.rgb);
}
