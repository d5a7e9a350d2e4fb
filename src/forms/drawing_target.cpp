#include "forms/drawing_target.h"

#include "foundation/error.h"

namespace forms {
namespace {

[[noreturn]] void Lacking() {
  throw foundation::Error(foundation::ErrorKind::NoSuchMember);
}

}  // namespace

void DrawingTarget::SetForeColor(Colour) {
  Lacking();
}
void DrawingTarget::SetDrawWidth(double) {
  Lacking();
}
void DrawingTarget::SetFont(std::string_view) {
  Lacking();
}
void DrawingTarget::SetFontSize(double) {
  Lacking();
}
double DrawingTarget::FontSize() const {
  Lacking();
}
void DrawingTarget::SetFontBold(bool) {
  Lacking();
}
void DrawingTarget::SetFontItalic(bool) {
  Lacking();
}
void DrawingTarget::SetFontStrikethru(bool) {
  Lacking();
}
void DrawingTarget::SetFontUnderLine(bool) {
  Lacking();
}
void DrawingTarget::SetRightToLeft(bool) {
  Lacking();
}
void DrawingTarget::SetCurrentX(double) {
  Lacking();
}
double DrawingTarget::CurrentX() const {
  Lacking();
}
void DrawingTarget::SetCurrentY(double) {
  Lacking();
}
double DrawingTarget::CurrentY() const {
  Lacking();
}
void DrawingTarget::Cls() {
  Lacking();
}
void DrawingTarget::Line(double, double, double, double, Colour, LineStyle) {
  Lacking();
}
void DrawingTarget::PaintPicture(const PicturePtr&, double, double, double, double) {
  Lacking();
}
void DrawingTarget::Print(std::string_view) {
  Lacking();
}
double DrawingTarget::TextWidth(std::string_view) const {
  Lacking();
}
double DrawingTarget::TextHeight(std::string_view) const {
  Lacking();
}

}  // namespace forms
