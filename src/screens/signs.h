// The signs of the program: a picture for each item of the menu, and the program's own.
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

// In the order of the menu.
const std::array<MenuSign, 8>& MenuSigns();

// The arc with one eighth in the Durvela colour and the sun beside it, on a field of 64 by 64.
forms::PicturePtr ProgramSign();

// A sun with its rays, on a field of 56 by 56.
forms::PicturePtr SunSign();

// What a message box is about, on a field of 56 by 56; null for nothing.
forms::PicturePtr BoxSign(foundation::MessageIcon icon);

}  // namespace screens
