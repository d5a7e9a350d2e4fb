// The program's signs: one for each menu item, and the program icon.
#pragma once

#include <array>
#include <string_view>

#include "forms/picture.h"
#include "foundation/machine.h"

namespace screens {

struct MenuSign {
  std::string_view caption;
  forms::PicturePtr picture;  // on a field of 56 by 56
};

// In menu order.
const std::array<MenuSign, 8>& MenuSigns();

// The arc with one eighth in the Durvela colour and the sun beside it, on a field of 64 by 64.
forms::PicturePtr ProgramSign();

// A sun with its rays, on a field of 56 by 56.
forms::PicturePtr SunSign();

// The sign of a message box, on a field of 56 by 56; null for none.
forms::PicturePtr BoxSign(foundation::MessageIcon icon);

}  // namespace screens
