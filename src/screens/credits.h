// Whose work Durvela is made with.
#pragma once

#include "forms/picture.h"

namespace screens {

// A strip 472 wide, a line of text below the other.
forms::PicturePtr CreditsPicture();

}  // namespace screens
