// Drawing on a picture box: the drawing becomes the box's picture.
#pragma once

#include <memory>

#include "forms/control.h"
#include "forms/drawing_target.h"
#include "forms/text_measure.h"

namespace forms {

// A page of fixed size in twips that starts with the box's picture; drawing below its bottom edge
// is lost. The box may show it at another size.
class PicturePage : public DrawingTarget {
 public:
  // Box and measure must outlive the page.
  PicturePage(Control& pictureBox, const TextMeasure& measure);

  void SetForeColor(Colour colour) override { colour_ = colour; }
  void SetDrawWidth(double pixels) override { lineWidth_ = pixels; }
  void SetFont(std::string_view name) override { font_.name = name; }
  void SetFontSize(double points) override { font_.size = static_cast<float>(points); }
  double FontSize() const override { return font_.size; }
  void SetFontBold(bool on) override { font_.bold = on; }
  void SetFontItalic(bool on) override { font_.italic = on; }
  void SetFontStrikethru(bool on) override { font_.strikethrough = on; }
  void SetFontUnderLine(bool on) override { font_.underline = on; }
  void SetRightToLeft(bool) override {}  // the characters decide
  void SetCurrentX(double x) override { x_ = x; }
  double CurrentX() const override { return x_; }
  void SetCurrentY(double y) override { y_ = y; }
  double CurrentY() const override { return y_; }

  void Cls() override;
  void Line(double x1, double y1, double x2, double y2, Colour colour, LineStyle style) override;
  void PaintPicture(const PicturePtr& picture, double x, double y, double width,
                    double height) override;
  void Print(std::string_view text) override;
  double TextWidth(std::string_view text) const override;
  double TextHeight(std::string_view text) const override;

 private:
  Picture& Editable();

  Control& box_;
  const TextMeasure& measure_;
  std::shared_ptr<Picture> picture_;
  Font font_;
  Colour colour_;
  double lineWidth_ = 1;  // pixels
  double x_ = 0, y_ = 0;
};

}  // namespace forms
