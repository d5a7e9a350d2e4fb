// Fakes of the screen's services: a host that records which forms it shows, and a target that
// records what is drawn.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "forms/screen_services.h"
#include "foundation/error.h"
#include "foundation/numbers.h"
#include "foundation/text.h"

namespace support {

// Thrown by the fake host, whose EndProgram must not return.
struct ProgramEnded {};

// Records every call as text. In any font, a letter is 100 twips wide and a line 240 high.
class RecordingTarget : public forms::Printer {
 public:
  std::vector<std::string> calls;

  // The rest of each call that begins with `start`.
  std::vector<std::string> After(std::string_view start) const {
    std::vector<std::string> rests;
    for (const std::string& call : calls) {
      if (call.starts_with(start)) rests.push_back(call.substr(start.size()));
    }
    return rests;
  }

  void SetForeColor(forms::Colour c) override { Note("ForeColor", c); }
  void SetDrawWidth(double pixels) override { Note("DrawWidth", pixels); }
  void SetFont(std::string_view name) override { Note("Font", name); }
  void SetFontSize(double points) override { Note("FontSize", size_ = points); }
  double FontSize() const override { return size_; }
  void SetFontBold(bool on) override { Note("FontBold", on); }
  void SetFontItalic(bool on) override { Note("FontItalic", on); }
  void SetFontStrikethru(bool on) override { Note("FontStrikethru", on); }
  void SetFontUnderLine(bool on) override { Note("FontUnderLine", on); }
  void SetRightToLeft(bool on) override { Note("RightToLeft", on); }
  void SetCurrentX(double x) override { Note("CurrentX", x_ = x); }
  double CurrentX() const override { return x_; }
  void SetCurrentY(double y) override { Note("CurrentY", y_ = y); }
  double CurrentY() const override { return y_; }
  void Cls() override { Note("Cls"); }
  void Line(double x1, double y1, double x2, double y2, forms::Colour c,
            forms::LineStyle style) override {
    Note("Line", x1, y1, x2, y2, c, static_cast<int>(style));
  }
  void PaintPicture(const forms::PicturePtr&, double x, double y, double width,
                    double height) override {
    Note("PaintPicture", x, y, width, height);
  }
  void Print(std::string_view text) override {
    Note("Print", x_, y_, text);
    y_ += TextHeight(text);
  }
  double TextWidth(std::string_view text) const override {
    return 100.0 * static_cast<double>(foundation::Characters(text).size());
  }
  double TextHeight(std::string_view) const override { return 240; }

  void SetDocumentName(std::string_view name) override { Note("DocumentName", name); }
  void AskUser() override {
    Note("AskUser");
    if (cancelled) throw foundation::Error(foundation::ErrorKind::Cancelled);
  }
  bool cancelled = false;
  void SetOrientation(forms::Orientation o) override { Note("Orientation", static_cast<int>(o)); }
  void NewPage() override { Note("NewPage"); }
  void EndDoc() override { Note("EndDoc"); }

 private:
  static std::string Of(std::string_view text) { return std::string(text); }
  static std::string Of(double x) { return foundation::NumberText(x); }
  static std::string Of(forms::Colour c) { return Of(c.red * 65536 + c.green * 256 + c.blue); }

  void Note(const char* member, const auto&... arguments) {
    calls.emplace_back((std::string(member) + ... + (" " + Of(arguments))));
  }

  double x_ = 0, y_ = 0, size_ = 8.25;
};

struct FakeHost : forms::FormHost {
  std::vector<std::string> calls;  // "Show frmMain"

  void Show(forms::Form& form) override { calls.push_back("Show " + form.name); }
  void ShowModal(forms::Form& form, forms::Form& owner) override {
    calls.push_back("ShowModal " + form.name + " of " + owner.name);
    if (whileModal) whileModal();
  }
  std::function<void()> whileModal;
  void Hide(forms::Form& form) override { calls.push_back("Hide " + form.name); }
  bool shown = true;
  bool IsShown(const forms::Form&) const override { return shown; }
  void Unload(forms::Form& form) override { calls.push_back("Unload " + form.name); }
  void EndProgram() override {
    calls.push_back("EndProgram");
    throw ProgramEnded();
  }

  RecordingTarget target;  // for every picture box
  forms::DrawingTarget& TargetOf(forms::Control&) override { return target; }
  void ForgetTarget(forms::Control&) override {}
};

// Renders any picture as the same pixels.
struct FakeRasteriser : forms::Rasteriser {
  forms::Raster dots = {.width = 2, .height = 1, .rgb = {255, 0, 0, 1, 2, 3}};
  forms::Raster Render(const forms::Picture&) const override { return dots; }
};

struct FakeClipboard : forms::Clipboard {
  forms::PicturePtr held;
  bool SetPicture(const forms::PicturePtr& picture) override {
    held = picture;
    return true;
  }
};

}  // namespace support
