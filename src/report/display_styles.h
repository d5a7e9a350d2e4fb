// Display styles of forms, controlled by the tags of their controls.
#pragma once

#include <cstdint>
#include <string_view>

#include "forms/form.h"

namespace report {

// The colour of the planet that a caption names in full or by three letters, ignoring case; black
// for any other caption.
forms::Colour PlanetColourOf(std::string_view caption);

// If the colour option is on, colours labels by planet, or black if tagged "ch". Makes shapes
// tagged "cs" black with a gold border, and those tagged "cs2" all black.
void ColourForm(forms::Form& form, bool colourOption);

// Translates captions and texts: uses the phrase and face of the language, and adds its size step
// and `extraSize` points unless the page keeps its sizes. Applies to labels and text boxes that
// have a phrase and are not in the base font. Tag "n" excludes a control, "hhh" includes it even in
// the base font, "hcon" changes the face even without a phrase. Does nothing for language 0 without
// an extra size. Ignores failures.
void ApplyLanguageFonts(forms::Form& form, std::int32_t language, int extraSize,
                        bool blnDontChangePageFontSize);

// Applies both with the default settings, as forms do when they load.
void ApplyDisplayStyles(forms::Form& form, std::int32_t language);

}  // namespace report
