// Drawing on a picture box: what is drawn becomes the picture of the box.
#pragma once

#include <memory>

#include "forms/control.h"
#include "forms/drawing_target.h"
#include "forms/text_measure.h"

namespace forms {

// A page of a size that stays, in twips; what is drawn below its foot is lost. The box may show it
// larger or smaller.
class PicturePage : public DrawingTarget {
 public:
  // Box and measure outlive the page.
  PicturePage(Control& pictureBox, const TextMeasure& measure);

  void SetForeColor(Colour colour) override { colour_ = colour; }
  void SetFontSize(double points) override { font_.size = static_cast<float>(points); }
  double FontSize() const override { return font_.size; }
  void SetFontBold(bool on) override { font_.bold = on; }
  void SetCurrentX(double x) override { x_ = x; }
  double CurrentX() const override { return x_; }
  void SetCurrentY(double y) override { y_ = y; }
  double CurrentY() const override { return y_; }

  void Cls() override;
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
  double x_ = 0, y_ = 0;
};

}  // namespace forms
