#include "forms/form.h"

#include "foundation/error.h"

namespace forms {

Control& ControlArray::operator[](int index) const {
  if (index < LBound() || index > UBound()) {
    throw foundation::Error(foundation::ErrorKind::Subscript);
  }
  return *controls_[static_cast<std::size_t>(index)];
}

Form::Form(std::string_view formName, std::string_view formCaption, float width, float height)
    : name(formName), caption(formCaption), scaleWidth(width), scaleHeight(height) {}

Control& Form::AddControl(Kind kind, std::string_view controlName, Properties properties) {
  Control& control = controls_.emplace_back();
  static_cast<Properties&>(control) = std::move(properties);
  control.kind = kind;
  control.name = controlName;
  if (kind == Kind::ListBox || kind == Kind::ComboBox) {
    control.items = std::make_unique<ItemList>(control.sorted);
  }
  return control;
}

ControlArray Form::AddControls(Kind kind, std::string_view controlName,
                               const std::vector<Properties>& rows) {
  std::vector<Control*> controls;
  for (const Properties& row : rows) {
    Control& control = AddControl(kind, controlName, row);
    control.index = static_cast<int>(controls.size());
    controls.push_back(&control);
  }
  return ControlArray(std::move(controls));
}

Control& Form::ControlNamed(std::string_view controlName) {
  for (Control& control : controls_) {
    if (control.name == controlName) return control;
  }
  throw foundation::Error(foundation::ErrorKind::NoSuchMember);
}

void Form::PrintForm() {
  throw foundation::Error(foundation::ErrorKind::NoSuchMember);
}

}  // namespace forms
