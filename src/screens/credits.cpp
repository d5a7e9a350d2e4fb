#include "screens/credits.h"

#include <iterator>
#include <string_view>

#include "screens/palette.h"

namespace screens {
namespace {

constexpr double kWidth = 472, kLineHeight = 24;

struct CreditLine {
  std::string_view text;
  bool head;
};

constexpr CreditLine kLines[] = {
    {"Places", true},
    {"GeoNames, geonames.org, © its contributors", false},
    {"licensed under CC BY 4.0; names, coordinates and", false},
    {"countries were changed to suit the atlas", false},
    {"", false},
    {"Windows and drawing", true},
    {"Qt 6, © The Qt Company Ltd. and contributors", false},
    {"GNU Lesser General Public License, version 3", false},
    {"", false},
    {"Fonts", true},
    {"Noto Sans, © The Noto Project Authors", false},
    {"Lohit, © Red Hat, Inc. and contributors", false},
    {"SIL Open Font License, version 1.1", false},
};

}  // namespace

forms::PicturePtr CreditsPicture() {
  auto picture = forms::NewPicture(kWidth, kLineHeight * std::size(kLines));
  double y = 0;
  for (const CreditLine& line : kLines) {
    y += kLineHeight;
    picture->items.emplace_back(
        forms::Lettering{.text = std::string(line.text),
                         .at = {kWidth / 2, y - 6},
                         .alignment = forms::Alignment::Centre,
                         .size = 14,
                         .bold = line.head,
                         .colour = line.head ? palette::kDurvelaOnPaper : palette::kInk});
  }
  return picture;
}

}  // namespace screens
