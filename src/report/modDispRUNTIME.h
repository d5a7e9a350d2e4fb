// What is applied to forms when they are shown, steered by the tags of their controls.
#pragma once

#include <cstdint>
#include <string_view>

#include "forms/form.h"

namespace report {

// The colour of the planet that a caption names, whole or by three letters, case aside; black for
// any other.
forms::Colour PlanetColourOf(std::string_view caption);

// Where the colour option is on: labels in the colours of their planets, and black with the tag
// "ch"; shapes with the tag "cs" black with a gold border, with "cs2" black.
void ColourForm(forms::Form& form, bool colourOption);

// Captions and texts in a language: the phrase of its file, in its face, larger by its step and
// `extraSize` points unless the page keeps its sizes. Only labels and text boxes that are not in
// the base font take part, and of these only those that have a phrase. Tag "n" leaves a control
// alone, "hhh" takes one in whatever its face, "hcon" changes the face without a phrase. Language 0
// without an extra size does nothing. Failures are ignored.
void ApplyLanguageFonts(forms::Form& form, std::int32_t language, int extraSize,
                        bool blnDontChangePageFontSize);

// Both, as a form that loads has them.
void ApplyDisplayStyles(forms::Form& form, std::int32_t language);

}  // namespace report
