// Helpers for the rows of the screens' tables of controls.
#pragma once

#include "forms/layout.h"
#include "screens/palette.h"

namespace screens {

namespace layout = forms::layout;

using forms::Alignment;
using forms::Properties;

}  // namespace screens
