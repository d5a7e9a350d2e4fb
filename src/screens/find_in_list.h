// Finding an entry of a list by how it begins.
#pragma once

#include <string_view>

#include "forms/control.h"

namespace screens {

// Select the first entry, in the list's order, that begins with the text, case aside; an empty
// text finds the first. Where none does, the selection stays.
void FindInList(std::string_view text, forms::Control& listBox);
void FindInCombo(std::string_view text, forms::Control& comboBox);  // failures are ignored

}  // namespace screens
