// The colours of all forms, as screens::palette.
#pragma once

#include "forms/palette.h"

namespace screens {

namespace palette = forms::palette;

}  // namespace screens
