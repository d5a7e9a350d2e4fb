// A form, independent of a toolkit: its controls in creation order, and its events.
#pragma once

#include <deque>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "forms/control.h"

namespace forms {

enum class WindowState { Normal = 0, Minimised = 1, Maximised = 2 };

// Controls that share a name, indexed from 0. Subscript outside.
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
  float scaleWidth;  // inner size, in twips
  float scaleHeight;
  float left = 0, top = 0;  // position of the window, if the screen reports it
  float minimumWidth = 0;   // inner size; smallest the user can set
  float minimumHeight = 0;
  WindowState windowState = WindowState::Normal;
  Colour backColour;
  PicturePtr picture;  // background
  bool autoRedraw = false;
  Place paintedPicture;  // where the background is drawn

  // Controls in creation order.
  std::deque<Control>& Controls() { return controls_; }
  // The first control with that name. NoSuchMember if there is none.
  Control& ControlNamed(std::string_view controlName);

  Control* activeControl = nullptr;  // has, or will get, the keyboard focus

  // Custom printing; NoSuchMember for a form without it.
  virtual void PrintForm();

  // Events, raised by the host.
  virtual void Form_Load() {}    // once per window, before it shows
  virtual void Form_Resize() {}  // scaleWidth, scaleHeight or the window's state has changed
  // The user, not Unload, is closing the window. Set cancel to keep it open.
  virtual void Form_QueryUnload([[maybe_unused]] bool& cancel) {}
  virtual void Form_MouseMove() {}  // outside any control that handles it
  virtual void Form_MouseLeave() {}
  virtual void Form_KeyDown([[maybe_unused]] KeyPress& press) {}  // before the control's own
  virtual void Form_Activate() {}                                 // its window became active
  virtual void Form_Deactivate() {}                               // another window became active

 protected:
  Control& AddControl(Kind kind, std::string_view controlName, Properties properties);
  ControlArray AddControls(Kind kind, std::string_view controlName,
                           const std::vector<Properties>& rows);

 private:
  std::deque<Control> controls_;  // a deque, so references stay valid as it grows
};

// A row of a form's control table: declares the member and adds a control of the same name.
#define CONTROL(kind, name, ...) \
  ::forms::Control& name = AddControl(::forms::Kind::kind, #name, __VA_ARGS__)
#define CONTROL_ARRAY(kind, name, ...) \
  ::forms::ControlArray name = AddControls(::forms::Kind::kind, #name, __VA_ARGS__)

}  // namespace forms
