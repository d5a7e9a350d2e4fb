// Credits for the work that Durvela builds on.
#pragma once

#include "forms/picture.h"

namespace screens {

// A strip of text lines, 472 wide.
forms::PicturePtr CreditsPicture();

}  // namespace screens
