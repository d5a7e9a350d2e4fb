// A surface for page drawing: a picture box, a printer, a PDF document.
#pragma once

#include <string_view>

#include "forms/colour.h"
#include "forms/picture.h"
#include "foundation/error.h"

namespace forms {

enum class LineStyle { Straight, Box, FilledBox };

// Lengths are twips. Members raise NoSuchMember unless a target implements them; callers then skip
// that step.
class DrawingTarget {
 public:
  virtual ~DrawingTarget() = default;

  virtual void SetForeColor(Colour) { Lacking(); }
  virtual void SetDrawWidth(double /*pixels*/) { Lacking(); }
  virtual void SetFont(std::string_view /*name*/) { Lacking(); }
  virtual void SetFontSize(double /*points*/) { Lacking(); }
  virtual double FontSize() const { Lacking(); }
  virtual void SetFontBold(bool) { Lacking(); }
  virtual void SetFontItalic(bool) { Lacking(); }
  virtual void SetFontStrikethru(bool) { Lacking(); }
  virtual void SetFontUnderLine(bool) { Lacking(); }
  virtual void SetRightToLeft(bool) { Lacking(); }

  // Where the next text begins; Print moves it down by a line.
  virtual void SetCurrentX(double) { Lacking(); }
  virtual double CurrentX() const { Lacking(); }
  virtual void SetCurrentY(double) { Lacking(); }
  virtual double CurrentY() const { Lacking(); }

  virtual void Cls() { Lacking(); }
  virtual void Line(double /*x1*/, double /*y1*/, double /*x2*/, double /*y2*/, Colour, LineStyle) {
    Lacking();
  }
  virtual void PaintPicture(const PicturePtr&, double /*x*/, double /*y*/, double /*width*/,
                            double /*height*/) {
    Lacking();
  }
  virtual void Print(std::string_view) { Lacking(); }

  // Size of a text in the current font.
  virtual double TextWidth(std::string_view) const { Lacking(); }
  virtual double TextHeight(std::string_view) const { Lacking(); }

 private:
  [[noreturn]] static void Lacking() {
    throw foundation::Error(foundation::ErrorKind::NoSuchMember);
  }
};

}  // namespace forms
