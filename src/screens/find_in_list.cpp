#include "screens/find_in_list.h"

#include "foundation/resume.h"
#include "foundation/text.h"

namespace screens {

void FindInList(std::string_view text, forms::Control& listBox) {
  for (int i = 0; i < listBox.items->ListCount(); ++i) {
    if (!foundation::BeginsWith(listBox.items->List(i), text)) continue;
    forms::Select(listBox, i);
    return;
  }
}

void FindInCombo(std::string_view text, forms::Control& comboBox) {
  foundation::Resume([&] { FindInList(text, comboBox); });
}

}  // namespace screens
