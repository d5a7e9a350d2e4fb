// The colours of every form, under the screens' own roof.
#pragma once

#include "forms/palette.h"

namespace screens {

namespace palette = forms::palette;

}  // namespace screens
