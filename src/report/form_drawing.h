// Draws the controls of a form on a target.
#pragma once

#include <cstdint>

#include "forms/drawing_target.h"
#include "forms/form.h"
#include "forms/screen_services.h"

namespace report {

inline constexpr double kSmallestPrinted = 7;  // points; smaller texts are drawn at this size

// What a form or picture box shows: its picture, or just its background colour.
forms::PicturePtr ImageOf(const forms::Form& form);
forms::PicturePtr ImageOf(const forms::Control& box);

// Draws fills first, then the controls in order. X and Y move the form, DX and DY also move its
// texts (twice inside a box); SizeDelta is in points. A label's text starts at its left edge and is
// neither clipped nor wrapped. Statements that fail, for example on a member that the target lacks,
// are skipped. If ToPrinter is not null it replaces the target.
void DrawFormOnTarget(forms::Form& form, forms::DrawingTarget& Target, double X, double Y,
                      forms::Printer* ToPrinter = nullptr, std::int16_t SizeDelta = 0,
                      std::int16_t DX = 0, std::int16_t DY = 0);

}  // namespace report
