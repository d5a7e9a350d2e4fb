// Draws the controls of a form onto a target with the calls of a printer.
#pragma once

#include <cstdint>

#include "forms/drawing_target.h"
#include "forms/form.h"
#include "forms/screen_services.h"

namespace report {

// What a form or a picture box shows: its picture, or its ground alone.
forms::PicturePtr ImageOf(const forms::Form& form);
forms::PicturePtr ImageOf(const forms::Control& box);

// Fills first, then the controls in their order; X and Y move the form, DX and DY its texts as well
// (twice inside a box), SizeDelta is points. A label's text begins at its left edge, neither
// clipped nor wrapped. Every statement that fails, as one does for a member that the target lacks,
// is passed over. With a printer the form goes there, whatever the target.
void DrawFormOnTarget(forms::Form& form, forms::DrawingTarget& Target, double X, double Y,
                      forms::Printer* ToPrinter = nullptr, std::int16_t SizeDelta = 0,
                      std::int16_t DX = 0, std::int16_t DY = 0);

}  // namespace report
