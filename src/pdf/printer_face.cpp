// A document as a drawing target, as far as it supports one.

#include <cmath>

#include "bitmap/cDIBSection.h"
#include "bitmap/mIntelJPEGLibrary.h"
#include "foundation/error.h"
#include "foundation/folders.h"
#include "foundation/numbers.h"
#include "pdf/PDFPrinter.h"

namespace pdf {
namespace {

namespace fs = std::filesystem;

using foundation::DecimalOf;
using foundation::RoundToInt16;

constexpr int kBlue = 16711680, kRed = 255;
constexpr std::int32_t kJpegQuality = 90;

// A file in the temp folder that is deleted with this object.
struct TemporaryFile {
  explicit TemporaryFile(std::string_view name) : path(foundation::TempFolder() / name) {
    std::error_code failure;
    fs::create_directories(path.parent_path(), failure);
  }
  ~TemporaryFile() {
    std::error_code failure;
    fs::remove(path, failure);
  }
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;

  const fs::path path;
};

}  // namespace

void PDFPrinter::ForeColor(const Argument&) {
  PDFSetTextColor(kBlue);
}

void PDFPrinter::FontSize(std::int16_t points) {
  font_.size = RoundToInt16(points + 2);
}

void PDFPrinter::Print1(std::string_view text) {
  PDFTextOut(text, x_, y_);
}

void PDFPrinter::DrawLINE(double x1, double y1, double x2, double y2, const Argument&) {
  PDFSetLineColor(kRed);
  if (x1 == x2) {
    PDFDrawLineVer(x1, y1, std::abs(y1 - y2));
  } else {
    PDFDrawLineHor(x1, y1, std::abs(x1 - x2));
  }
}

void PDFPrinter::PaintPicture(const forms::PicturePtr& Picture, double x, double y, double Width1,
                              double Height1) {
  if (!Picture || !means_) throw foundation::Error(foundation::ErrorKind::ObjectNotSet);
  const TemporaryFile file("temp.jpg");
  PictureToJpegFile(*Picture, file.path);
  PDFImage(file.path.string(), DecimalOf(static_cast<float>(x)), DecimalOf(static_cast<float>(y)),
           Width1, Height1, "");
}

// Passes even an empty picture to the library, whose refusal the user sees.
void PDFPrinter::PictureToJpegFile(const forms::Picture& Picture, const fs::path& path) {
  bitmap::cDIBSection dib;
  dib.CreateFromPicture(Picture, means_->rasteriser);
  bitmap::SaveJPG(dib, path, kJpegQuality, means_->library, boxes_);
}

void PDFPrinter::SetCurrentX(double x) {
  CurrentX(x);
}
void PDFPrinter::SetCurrentY(double y) {
  CurrentY(y);
}
void PDFPrinter::SetForeColor(forms::Colour) {
  ForeColor(kBlue);
}
void PDFPrinter::SetFont(std::string_view name) {
  Font(name);
}
void PDFPrinter::SetFontSize(double points) {
  FontSize(RoundToInt16(points));
}
void PDFPrinter::SetFontBold(bool on) {
  FontBold(on);
}
void PDFPrinter::SetFontItalic(bool on) {
  FontItalic(on);
}
void PDFPrinter::SetFontStrikethru(bool on) {
  FontStrikethru(on);
}
void PDFPrinter::SetFontUnderLine(bool on) {
  FontUnderLine(on);
}
void PDFPrinter::SetRightToLeft(bool on) {
  RightToLeft(on);
}
void PDFPrinter::Print(std::string_view text) {
  Print1(text);
}
void PDFPrinter::Line(double x1, double y1, double x2, double y2, forms::Colour, forms::LineStyle) {
  DrawLINE(x1, y1, x2, y2, kRed);
}

}  // namespace pdf
