// What forms need of the screen beyond their own window.
#pragma once

#include "forms/drawing_target.h"
#include "forms/form.h"

namespace forms {

// Shows and closes forms.
class FormHost {
 public:
  virtual ~FormHost() = default;

  // Creates the window and loads the form at the first call; brings an open window to the front.
  virtual void Show(Form& form) = 0;
  // Returns when the form is hidden or unloaded; the timers of all forms keep running.
  virtual void ShowModal(Form& form, Form& owner) = 0;
  virtual void Hide(Form& form) = 0;
  virtual bool IsShown(const Form& form) const = 0;  // even if minimised
  virtual void Unload(Form& form) = 0;               // skips Form_QueryUnload
  // Immediately, without clean-up; does not return.
  virtual void EndProgram() = 0;
  // Draws on a picture box, whose form need not be loaded. Stays the same until the form is
  // unloaded or the target forgotten.
  virtual DrawingTarget& TargetOf(Control& pictureBox) = 0;
  // The next target of the box starts with its current size and picture.
  virtual void ForgetTarget(Control& pictureBox) = 0;
};

// Turns pictures into pixels as on the screen.
class Rasteriser {
 public:
  virtual ~Rasteriser() = default;
  // The picture's units must be twips.
  virtual Raster Render(const Picture& picture) const = 0;
};

enum class Orientation { Portrait = 1, Landscape = 2 };

// The pages of a printer. The first drawing call opens the document; pages without drawing calls
// are not printed. FileAccess if the printer rejects a page.
class Printer : public DrawingTarget {
 public:
  // The next document's title, shown by print queues and readers and used for file names.
  virtual void SetDocumentName(std::string_view name) = 0;
  // Shows the system's dialog. Cancelled if the user cancels it.
  virtual void AskUser() = 0;
  virtual void SetOrientation(Orientation orientation) = 0;
  virtual void NewPage() = 0;
  virtual void EndDoc() = 0;  // also forgets the printer that the user chose
};

class Clipboard {
 public:
  virtual ~Clipboard() = default;
  // Replaces the contents; false if the clipboard is unavailable.
  virtual bool SetPicture(const PicturePtr& picture) = 0;
};

}  // namespace forms
