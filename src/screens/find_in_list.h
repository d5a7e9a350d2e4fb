// Finds list entries by prefix.
#pragma once

#include <string_view>

#include "forms/control.h"

namespace screens {

// Select the first entry, in list order, that begins with the text, ignoring case; empty text
// selects the first entry. If none matches, the selection stays.
void FindInList(std::string_view text, forms::Control& listBox);
void FindInCombo(std::string_view text, forms::Control& comboBox);  // ignores failures

}  // namespace screens
