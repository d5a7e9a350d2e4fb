// Pages as pixels and on paper.
#pragma once

#include <QPainter>
#include <QPrinter>
#include <memory>
#include <utility>

#include "forms/picture_page.h"
#include "forms/screen_services.h"
#include "foundation/error.h"
#include "screens/qt/qt_painting.h"

namespace screens::qt {

// Renders at the screen's resolution.
class QtRasteriser : public forms::Rasteriser {
 public:
  forms::Raster Render(const forms::Picture& picture) const override;
};

// Qt's printer and print dialog. Records each page as a picture and prints it when complete, unless
// it is empty.
class QtPrinter : public forms::Printer {
 public:
  QtPrinter() = default;
  // Prints to a PDF file without a dialog.
  explicit QtPrinter(QString pdfFile) : pdfFile_(std::move(pdfFile)) {}

  void SetDocumentName(std::string_view name) override;
  void AskUser() override;
  void SetOrientation(forms::Orientation orientation) override;
  // Both print the page; FileAccess if the printer rejects it.
  void NewPage() override;
  void EndDoc() override;

  void SetForeColor(forms::Colour colour) override { page_.SetForeColor(colour); }
  void SetDrawWidth(double pixels) override { page_.SetDrawWidth(pixels); }
  void SetFont(std::string_view name) override { page_.SetFont(name); }
  void SetFontSize(double points) override { page_.SetFontSize(points); }
  double FontSize() const override { return page_.FontSize(); }
  void SetFontBold(bool on) override { page_.SetFontBold(on); }
  void SetFontItalic(bool on) override { page_.SetFontItalic(on); }
  void SetFontStrikethru(bool on) override { page_.SetFontStrikethru(on); }
  void SetFontUnderLine(bool on) override { page_.SetFontUnderLine(on); }
  void SetRightToLeft(bool on) override { page_.SetRightToLeft(on); }
  void SetCurrentX(double x) override { page_.SetCurrentX(x); }
  double CurrentX() const override { return page_.CurrentX(); }
  void SetCurrentY(double y) override { page_.SetCurrentY(y); }
  double CurrentY() const override { return page_.CurrentY(); }
  void Line(double x1, double y1, double x2, double y2, forms::Colour colour,
            forms::LineStyle style) override {
    page_.Line(x1, y1, x2, y2, colour, style);
  }
  void PaintPicture(const forms::PicturePtr& picture, double x, double y, double width,
                    double height) override {
    page_.PaintPicture(picture, x, y, width, height);
  }
  // Opens the document. FileAccess if the printer rejects it.
  void Print(std::string_view text) override;
  double TextWidth(std::string_view text) const override { return page_.TextWidth(text); }
  double TextHeight(std::string_view text) const override { return page_.TextHeight(text); }

 private:
  QPrinter& Device();
  foundation::Error Refusal();  // names the file or the printer
  void Open();
  void FlushPage();

  QString pdfFile_;
  QString documentName_;
  QtTextMeasure measure_;
  forms::Control paper_ = Paper();
  forms::PicturePage page_{paper_, measure_};
  std::unique_ptr<QPrinter> printer_;  // until the document ends, even with an error
  std::unique_ptr<QPainter> painter_;  // while a document is open
  bool begun_ = false;                 // a page has been printed

  static forms::Control Paper();
};

}  // namespace screens::qt
