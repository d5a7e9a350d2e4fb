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

}  // namespace forms
