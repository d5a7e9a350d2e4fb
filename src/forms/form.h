// A form without a toolkit: its controls in the order of their creation, and its events.
#pragma once

#include <deque>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "forms/control.h"

namespace forms {

enum class WindowState { Normal = 0, Minimised = 1, Maximised = 2 };

// Controls of one name, told apart by an index from 0. Subscript outside.
class ControlArray {
 public:
  explicit ControlArray(std::vector<Control*> controls) : controls_(std::move(controls)) {}

  Control& operator[](int index) const;
  int LBound() const { return 0; }
  int UBound() const { return static_cast<int>(controls_.size()) - 1; }

 private:
  std::vector<Control*> controls_;
};

class Form {
 public:
  Form(std::string_view name, std::string_view caption, float scaleWidth, float scaleHeight);
  virtual ~Form() = default;
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;

  const std::string name;
  std::string caption;
  float scaleWidth;  // inside, in twips
  float scaleHeight;
  float left = 0, top = 0;  // of the window on the screen; where the screen tells it
  float minimumWidth = 0;   // inside; no smaller by hand
  float minimumHeight = 0;
  WindowState windowState = WindowState::Normal;
  Colour backColour;
  PicturePtr picture;  // background
  bool autoRedraw = false;
  Place paintedPicture;  // where the background stands

  // Controls in the order of their creation.
  std::deque<Control>& Controls() { return controls_; }
  // The first of that name. NoSuchMember where there is none.
  Control& ControlNamed(std::string_view controlName);

  Control* activeControl = nullptr;  // has, or gets, the keyboard's focus

  // Printing of its own; NoSuchMember for a form that has none.
  virtual void PrintForm();

  // Events, raised by the host.
  virtual void Form_Load() {}    // once for each window, before it shows
  virtual void Form_Resize() {}  // scaleWidth, scaleHeight or the window's state has changed
  // The user closes the window, as Unload does not. Cancel keeps the form.
  virtual void Form_QueryUnload([[maybe_unused]] bool& cancel) {}
  virtual void Form_MouseMove() {}  // where no control is that answers
  virtual void Form_MouseLeave() {}
  virtual void Form_KeyDown([[maybe_unused]] KeyPress& press) {}  // before the control's own
  virtual void Form_Deactivate() {}  // another window has become the active one

 protected:
  Control& AddControl(Kind kind, std::string_view controlName, Properties properties);
  ControlArray AddControls(Kind kind, std::string_view controlName,
                           const std::vector<Properties>& rows);

 private:
  std::deque<Control> controls_;  // references to its elements stay good as it grows
};

// A row of a form's table of controls: declares the member and enters the control under the
// member's name.
#define CONTROL(kind, name, ...) \
  ::forms::Control& name = AddControl(::forms::Kind::kind, #name, __VA_ARGS__)
#define CONTROL_ARRAY(kind, name, ...) \
  ::forms::ControlArray name = AddControls(::forms::Kind::kind, #name, __VA_ARGS__)

}  // namespace forms
