// What page drawing writes on: a picture box, a printer, a document writer.
#pragma once

#include <string_view>

#include "forms/colour.h"
#include "forms/font.h"
#include "forms/picture.h"

namespace forms {

enum class LineStyle { Straight, Box, FilledBox };

// Lengths are twips. A member that a target lacks raises NoSuchMember, which is what each of them
// does until a target gives it a body; who draws goes on with the next statement.
class DrawingTarget {
 public:
  virtual ~DrawingTarget() = default;

  virtual void SetForeColor(Colour colour);
  virtual void SetDrawWidth(double pixels);
  virtual void SetFont(std::string_view name);
  virtual void SetFontSize(double points);
  virtual double FontSize() const;
  virtual void SetFontBold(bool on);
  virtual void SetFontItalic(bool on);
  virtual void SetFontStrikethru(bool on);
  virtual void SetFontUnderLine(bool on);
  virtual void SetRightToLeft(bool on);

  // Where the next text begins; Print moves it down by a line.
  virtual void SetCurrentX(double x);
  virtual double CurrentX() const;
  virtual void SetCurrentY(double y);
  virtual double CurrentY() const;

  virtual void Cls();
  virtual void Line(double x1, double y1, double x2, double y2, Colour colour, LineStyle style);
  virtual void PaintPicture(const PicturePtr& picture, double x, double y, double width,
                            double height);
  virtual void Print(std::string_view text);

  // Of a text in the present font.
  virtual double TextWidth(std::string_view text) const;
  virtual double TextHeight(std::string_view text) const;
};

}  // namespace forms
