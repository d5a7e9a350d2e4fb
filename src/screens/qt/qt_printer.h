// Pages in dots, and pages on paper.
#pragma once

#include <QPainter>
#include <QPrinter>
#include <memory>
#include <utility>

#include "forms/screen_services.h"
#include "screens/qt/qt_painting.h"

namespace screens::qt {

// With as many dots as the screen has.
class QtRasteriser : public forms::Rasteriser {
 public:
  forms::Raster Render(const forms::Picture& picture) const override;
};

// The toolkit's printer and its dialog. A page on which nothing was drawn is not printed.
class QtPrinter : public forms::Printer {
 public:
  QtPrinter() = default;
  // Into a PDF file, without asking anybody.
  explicit QtPrinter(QString pdfFile) : pdfFile_(std::move(pdfFile)) {}

  void AskUser() override;
  void SetOrientation(forms::Orientation orientation) override;
  // FileAccess where the printer takes no document.
  void Print(std::string_view text) override;
  void PaintPicture(const forms::PicturePtr& picture, double x, double y, double width,
                    double height) override;
  void NewPage() override;
  void EndDoc() override;

 private:
  QPrinter& Device();
  QPainter& Page();

  QString pdfFile_;
  std::unique_ptr<QPrinter> printer_;
  std::unique_ptr<QPainter> painter_;  // while a document is open
  bool turnPage_ = false;              // before the next drawing
};

}  // namespace screens::qt
