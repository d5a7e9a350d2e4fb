#include "forms/control.h"

#include <algorithm>
#include <utility>

#include "foundation/error.h"

namespace forms {
namespace {

[[noreturn]] void RefuseMember() {
  throw foundation::Error(foundation::ErrorKind::NoSuchMember);
}

template <typename T>
void Set(const Control& control, T& property, T value) {
  if (property == value) return;
  property = std::move(value);
  if (control.onChange) control.onChange();
}

}  // namespace

Place& PlaceOf(Control& control) {
  if (control.kind == Kind::Timer || control.kind == Kind::Line) RefuseMember();
  return control.place;
}

Font& FontOf(Control& control) {
  switch (control.kind) {
    case Kind::Shape:
    case Kind::Line:
    case Kind::Image:
    case Kind::Timer:
      RefuseMember();
    default:
      return control.font;
  }
}

void SetText(Control& textBox, std::string_view text) {
  Set(textBox, textBox.caption, std::string(text));
}

void SetScroll(Control& scrollBar, int value) {
  const ScrollRange& range = scrollBar.scroll;
  Set(scrollBar, scrollBar.scroll.value, std::max(range.minimum, std::min(value, range.maximum)));
}

void Select(Control& list, int index) {
  if (index < 0 || list.items->ListIndex() != index) Choose(list, index);
}

void Choose(Control& list, int index) {
  list.items->SetListIndex(index);
  if (list.onClick) list.onClick();
}

}  // namespace forms
