// What forms need of the screen beyond their own window.
#pragma once

#include "forms/drawing_target.h"
#include "forms/form.h"

namespace forms {

// Shows and closes forms.
class FormHost {
 public:
  virtual ~FormHost() = default;

  // Makes the window at the first call and loads the form; brings an open window to the front.
  virtual void Show(Form& form) = 0;
  // Returns when the form is hidden or unloaded; timers of all forms go on meanwhile.
  virtual void ShowModal(Form& form, Form& owner) = 0;
  virtual void Hide(Form& form) = 0;
  virtual bool IsShown(const Form& form) const = 0;  // a minimised one too
  virtual void Unload(Form& form) = 0;               // without asking the form
  // At once, with no clean-up; does not return.
  virtual void EndProgram() = 0;
  // Draws on a picture box, of a form that need not be loaded. The same until the form is unloaded
  // or the target forgotten.
  virtual DrawingTarget& TargetOf(Control& pictureBox) = 0;
  // The next target of the box begins with its present size and picture.
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

// Pages of a printer, drawn like any target. The first call that draws opens the document; a page
// on which nothing was drawn is not printed. FileAccess if the printer does not take a page.
class Printer : public DrawingTarget {
 public:
  // Of the next document: the title that a print queue, a reader and a file's name show.
  virtual void SetDocumentName(std::string_view name) = 0;
  // The system's dialog. Cancelled when the user cancels it.
  virtual void AskUser() = 0;
  virtual void SetOrientation(Orientation orientation) = 0;
  virtual void NewPage() = 0;
  virtual void EndDoc() = 0;  // and forget the printer that the user chose
};

class Clipboard {
 public:
  virtual ~Clipboard() = default;
  // Replaces what is there; false when the clipboard cannot be had.
  virtual bool SetPicture(const PicturePtr& picture) = 0;
};

}  // namespace forms
