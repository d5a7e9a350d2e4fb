// What forms need of the screen beyond their own window.
#pragma once

#include "forms/drawing_target.h"
#include "forms/form.h"

namespace forms {

// Shows and closes forms.
class FormHost {
 public:
  virtual ~FormHost() = default;

  virtual void Show(Form& form) = 0;
  // Returns when the form is hidden or unloaded; timers of all forms go on meanwhile.
  virtual void ShowModal(Form& form, Form& owner) = 0;
  virtual void Hide(Form& form) = 0;
  virtual bool IsShown(const Form& form) const = 0;
  virtual void Unload(Form& form) = 0;
  // At once, with no clean-up; does not return.
  virtual void EndProgram() = 0;
  // Draws on a picture box. Stays good as long as the form is loaded.
  virtual DrawingTarget& TargetOf(Control& pictureBox) = 0;
  // The next target of the box begins anew, with its present size.
  virtual void ForgetTarget(Control& pictureBox) = 0;
};

// Turns pictures into dots as the screen shows them.
class Rasteriser {
 public:
  virtual ~Rasteriser() = default;
  // Of a picture whose units are twips.
  virtual Raster Render(const Picture& picture) const = 0;
};

enum class Orientation { Portrait = 1, Landscape = 2 };

// Pages of a printer, drawn like any target.
class Printer : public DrawingTarget {
 public:
  // The system's dialog. Cancelled when the user cancels it.
  virtual void AskUser() = 0;
  virtual void SetOrientation(Orientation orientation) = 0;
  virtual void NewPage() = 0;
  virtual void EndDoc() = 0;
};

class Clipboard {
 public:
  virtual ~Clipboard() = default;
  // Replaces what is there; false when the clipboard cannot be had.
  virtual bool SetPicture(const PicturePtr& picture) = 0;
};

}  // namespace forms
