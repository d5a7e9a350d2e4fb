// Draws the controls of a form onto a target with the calls of a printer.
#pragma once

#include <cstdint>

#include "forms/drawing_target.h"
#include "forms/form.h"

namespace report {

// Fills first, then the controls in their order; X and Y move the form, DX and DY its texts once
// more, SizeDelta is points. A label's text begins at its left edge, neither clipped nor wrapped.
// Every statement that fails, as one does for a member that the target lacks, is passed over.
void DrawFormOnTarget(forms::Form& form, forms::DrawingTarget& Target, double X, double Y,
                      std::int16_t SizeDelta = 0, std::int16_t DX = 0, std::int16_t DY = 0);

}  // namespace report
