#include "forms/control.h"

#include "foundation/error.h"

namespace forms {
namespace {

[[noreturn]] void RefuseMember() {
  throw foundation::Error(foundation::ErrorKind::NoSuchMember);
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
  if (textBox.caption == text) return;
  textBox.caption = text;
  if (textBox.onChange) textBox.onChange();
}

void Select(Control& list, int index) {
  if (index >= 0 && list.items->ListIndex() == index) return;
  list.items->SetListIndex(index);
  if (list.onClick) list.onClick();
}

}  // namespace forms
