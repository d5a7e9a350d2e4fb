// The screen as tests want it: forms that are only said to be shown, and targets that write down
// what is drawn.
#pragma once

#include <string>
#include <vector>

#include "forms/screen_services.h"
#include "foundation/error.h"
#include "foundation/numbers.h"
#include "foundation/text.h"

namespace support {

// Thrown by a fake host where a real one would not come back.
struct ProgramEnded {};

// Writes every call down as text. A letter is 100 twips wide, a line 240 high, in every font.
class RecordingTarget : public forms::Printer {
 public:
  std::vector<std::string> calls;

  void SetForeColor(forms::Colour c) override { Note("ForeColor", {Of(c)}); }
  void SetDrawWidth(double pixels) override { Note("DrawWidth", {Of(pixels)}); }
  void SetFont(std::string_view name) override { Note("Font", {std::string(name)}); }
  void SetFontSize(double points) override { Note("FontSize", {Of(size_ = points)}); }
  double FontSize() const override { return size_; }
  void SetFontBold(bool on) override { Note("FontBold", {Of(on)}); }
  void SetFontItalic(bool on) override { Note("FontItalic", {Of(on)}); }
  void SetFontStrikethru(bool on) override { Note("FontStrikethru", {Of(on)}); }
  void SetFontUnderLine(bool on) override { Note("FontUnderLine", {Of(on)}); }
  void SetRightToLeft(bool on) override { Note("RightToLeft", {Of(on)}); }
  void SetCurrentX(double x) override { Note("CurrentX", {Of(x_ = x)}); }
  double CurrentX() const override { return x_; }
  void SetCurrentY(double y) override { Note("CurrentY", {Of(y_ = y)}); }
  double CurrentY() const override { return y_; }
  void Cls() override { Note("Cls", {}); }
  void Line(double x1, double y1, double x2, double y2, forms::Colour c,
            forms::LineStyle style) override {
    Note("Line", {Of(x1), Of(y1), Of(x2), Of(y2), Of(c), Of(static_cast<int>(style))});
  }
  void PaintPicture(const forms::PicturePtr&, double x, double y, double width,
                    double height) override {
    Note("PaintPicture", {Of(x), Of(y), Of(width), Of(height)});
  }
  void Print(std::string_view text) override {
    Note("Print", {Of(x_), Of(y_), std::string(text)});
    y_ += TextHeight(text);
  }
  double TextWidth(std::string_view text) const override {
    return 100.0 * static_cast<double>(foundation::Characters(text).size());
  }
  double TextHeight(std::string_view) const override { return 240; }

  void AskUser() override {
    Note("AskUser", {});
    if (cancelled) throw foundation::Error(foundation::ErrorKind::Cancelled);
  }
  bool cancelled = false;
  void SetOrientation(forms::Orientation o) override {
    Note("Orientation", {Of(static_cast<int>(o))});
  }
  void NewPage() override { Note("NewPage", {}); }
  void EndDoc() override { Note("EndDoc", {}); }

 private:
  static std::string Of(double x) { return foundation::NumberText(x); }
  static std::string Of(forms::Colour c) { return Of(c.red * 65536 + c.green * 256 + c.blue); }

  void Note(const std::string& member, const std::vector<std::string>& arguments) {
    std::string call = member;
    for (const std::string& argument : arguments) call += " " + argument;
    calls.push_back(call);
  }

  double x_ = 0, y_ = 0, size_ = 8.25;
};

struct FakeHost : forms::FormHost {
  std::vector<std::string> calls;  // "Show frmMain"

  void Show(forms::Form& form) override { calls.push_back("Show " + form.name); }
  void ShowModal(forms::Form& form, forms::Form& owner) override {
    calls.push_back("ShowModal " + form.name + " of " + owner.name);
  }
  void Hide(forms::Form& form) override { calls.push_back("Hide " + form.name); }
  bool shown = true;
  bool IsShown(const forms::Form&) const override { return shown; }
  void Unload(forms::Form& form) override { calls.push_back("Unload " + form.name); }
  void EndProgram() override {
    calls.push_back("EndProgram");
    throw ProgramEnded();
  }

  RecordingTarget target;  // of every picture box
  forms::DrawingTarget& TargetOf(forms::Control&) override { return target; }
  void ForgetTarget(forms::Control&) override {}
};

// Any picture comes out as the same dots.
struct FakeRasteriser : forms::Rasteriser {
  forms::Raster dots = {.width = 2, .height = 1, .rgb = {255, 0, 0, 1, 2, 3}};
  mutable int rendered = 0;
  forms::Raster Render(const forms::Picture&) const override {
    ++rendered;
    return dots;
  }
};

struct FakeClipboard : forms::Clipboard {
  forms::PicturePtr held;
  bool SetPicture(const forms::PicturePtr& picture) override {
    held = picture;
    return true;
  }
};

}  // namespace support
