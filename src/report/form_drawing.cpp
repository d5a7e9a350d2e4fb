#include "report/form_drawing.h"

#include <string_view>

#include "foundation/numbers.h"
#include "foundation/resume.h"
#include "report/display_settings.h"

namespace report {
namespace {

using forms::Control;
using forms::DrawingTarget;
using forms::Kind;
using forms::LineStyle;
using foundation::Resume;

constexpr std::string_view kNotPrinted = "np";
constexpr auto kBlack = forms::Rgb(0);

forms::PicturePtr Background(forms::Colour colour, double width, double height) {
  auto background = forms::NewPicture(width, height);
  background->items.emplace_back(
      forms::Outline{forms::Path::Box({0, 0}, width, height), colour, {}});
  return background;
}

class FormDrawing {
 public:
  FormDrawing(DrawingTarget& target, double X, double Y, double sizeDelta, double DX, double DY)
      : target_(target), X_(X), Y_(Y), sizeDelta_(sizeDelta), DX_(DX), DY_(DY) {}

  void DrawFill(const Control& shape) {
    if (shape.container == nullptr || (shape.tag == "cs" && display::kColourOption)) {
      DrawBox(shape, LineStyle::FilledBox);
    }
  }

  void Draw(const Control& control) {
    Resume([&] { target_.SetForeColor(kBlack); });
    if (control.tag == kNotPrinted) return;
    switch (control.kind) {
      case Kind::Label:
      case Kind::TextBox:
        DrawText(control);
        break;
      case Kind::Line:
        DrawLine(control);
        break;
      case Kind::PictureBox:
        Paint(control, ImageOf(control));
        break;
      case Kind::Shape:
        if (control.tag != "cs" && control.tag != "cs2") DrawBox(control, LineStyle::Box);
        break;
      case Kind::Image:
        Paint(control, control.picture);
        break;
      default:
        break;
    }
  }

 private:
  double BaseX(const Control& control) const {
    return X_ + (control.container == nullptr ? 0 : control.container->place.left);
  }
  double BaseY(const Control& control) const {
    return Y_ + (control.container == nullptr ? 0 : control.container->place.top);
  }

  void DrawBox(const Control& shape, LineStyle style) {
    const double left = BaseX(shape) + shape.place.left, top = BaseY(shape) + shape.place.top;
    Resume([&] {
      target_.Line(left, top, left + shape.place.width, top + shape.place.height,
                   shape.borderColour, style);
    });
  }

  void DrawLine(const Control& line) {
    const double x = BaseX(line), y = BaseY(line);
    Resume([&] { target_.SetDrawWidth(line.borderWidth); });
    Resume([&] {
      target_.Line(x + line.ends.x1, y + line.ends.y1, x + line.ends.x2, y + line.ends.y2,
                   line.borderColour, LineStyle::Straight);
    });
  }

  // Sizes are those of the shortest decimal text, because documents store numbers as text.
  void Paint(const Control& control, const forms::PicturePtr& picture) {
    Resume([&] {
      target_.PaintPicture(
          picture, BaseX(control) + control.place.left, BaseY(control) + control.place.top,
          foundation::DecimalOf(control.place.width), foundation::DecimalOf(control.place.height));
    });
  }

  // Prints each line of the caption below the one before.
  void DrawText(const Control& control) {
    std::string_view rest = control.caption;
    if (rest.empty()) return;
    for (bool first = true, more = true; more; first = false) {
      const std::size_t end = rest.find("\r\n");
      more = end != std::string_view::npos;
      ApplyFont(control);
      PlaceText(control, first);
      Resume([&] { target_.Print(rest.substr(0, end)); });
      if (more) rest.remove_prefix(end + 2);
    }
  }

  void ApplyFont(const Control& control) {
    const forms::Font& font = control.font;
    Resume([&] { target_.SetRightToLeft(false); });
    Resume([&] { target_.SetFont(font.name); });
    Resume([&] { target_.SetFontItalic(font.italic); });
    Resume([&] { target_.SetFontBold(font.bold); });
    Resume([&] { target_.SetFontSize(font.size + sizeDelta_); });
    Resume([&] { target_.SetForeColor(control.foreColour); });
    Resume([&] { target_.SetFontStrikethru(font.strikethrough); });
    Resume([&] { target_.SetFontUnderLine(font.underline); });
    Resume([&] {
      if (target_.FontSize() < kSmallestPrinted) target_.SetFontSize(kSmallestPrinted);
    });
  }

  void PlaceText(const Control& control, bool first) {
    Resume([&] { target_.SetCurrentX(X_ + control.place.left + DX_); });
    if (first) Resume([&] { target_.SetCurrentY(Y_ + control.place.top + DY_); });
    if (control.container == nullptr) return;
    const forms::Place& box = control.container->place;
    Resume([&] { target_.SetCurrentX(target_.CurrentX() + box.left + DX_); });
    if (first) Resume([&] { target_.SetCurrentY(target_.CurrentY() + box.top + DY_); });
  }

  DrawingTarget& target_;
  double X_, Y_;
  double sizeDelta_;
  double DX_, DY_;
};

}  // namespace

forms::PicturePtr ImageOf(const forms::Form& form) {
  return form.picture ? form.picture
                      : Background(form.backColour, form.scaleWidth, form.scaleHeight);
}

forms::PicturePtr ImageOf(const Control& box) {
  return box.picture ? box.picture : Background(box.backColour, box.place.width, box.place.height);
}

void DrawFormOnTarget(forms::Form& form, DrawingTarget& Target, double X, double Y,
                      forms::Printer* ToPrinter, std::int16_t SizeDelta, std::int16_t DX,
                      std::int16_t DY) {
  FormDrawing drawing(ToPrinter != nullptr ? *ToPrinter : Target, X, Y, SizeDelta, DX, DY);
  for (const Control& control : form.Controls()) {
    if (control.kind == Kind::Shape) drawing.DrawFill(control);
  }
  for (const Control& control : form.Controls()) drawing.Draw(control);
}

}  // namespace report
