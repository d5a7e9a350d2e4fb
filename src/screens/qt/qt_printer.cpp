#include "screens/qt/qt_printer.h"

#include <QGuiApplication>
#include <QPageLayout>
#include <QPrintDialog>
#include <QtMath>

#include "foundation/error.h"

namespace screens::qt {
namespace {

constexpr double kTwipsPerInch = 1440;

}  // namespace

forms::Raster QtRasteriser::Render(const forms::Picture& picture) const {
  const double ratio = qGuiApp->devicePixelRatio();
  const QSize size(qRound(picture.width / kTwipsPerPixel * ratio),
                   qRound(picture.height / kTwipsPerPixel * ratio));
  forms::Raster dots = Rasterise(picture, size);
  dots.dotsPerInch *= ratio;
  return dots;
}

QPrinter& QtPrinter::Device() {
  if (!printer_) {
    printer_ = std::make_unique<QPrinter>(QPrinter::HighResolution);
    printer_->setFullPage(true);
    if (!pdfFile_.isEmpty()) printer_->setOutputFileName(pdfFile_);
  }
  return *printer_;
}

void QtPrinter::AskUser() {
  if (!pdfFile_.isEmpty()) return;
  QPrintDialog dialog(&Device());
  if (dialog.exec() != QDialog::Accepted) {
    throw foundation::Error(foundation::ErrorKind::Cancelled);
  }
}

void QtPrinter::SetOrientation(forms::Orientation orientation) {
  Device().setPageOrientation(orientation == forms::Orientation::Landscape ? QPageLayout::Landscape
                                                                           : QPageLayout::Portrait);
}

// Opens the document at its first drawing; twips from the paper's corner.
QPainter& QtPrinter::Page() {
  if (!painter_) {
    painter_ = std::make_unique<QPainter>();
    if (!painter_->begin(&Device())) {
      painter_.reset();
      throw foundation::Error(foundation::ErrorKind::FileAccess);
    }
    const double scale = Device().resolution() / kTwipsPerInch;
    painter_->scale(scale, scale);
  } else if (turnPage_ && !Device().newPage()) {
    throw foundation::Error(foundation::ErrorKind::FileAccess);
  }
  turnPage_ = false;
  return *painter_;
}

// An empty text opens the document, and draws nothing.
void QtPrinter::Print(std::string_view text) {
  if (text.empty()) {
    if (!painter_) Page();
    return;
  }
  Page().drawText(QPointF(CurrentX(), CurrentY()), ToQt(text));
}

void QtPrinter::PaintPicture(const forms::PicturePtr& picture, double x, double y, double width,
                             double height) {
  screens::qt::PaintPicture(Page(), *picture, QRectF(x, y, width, height));
}

void QtPrinter::NewPage() {
  turnPage_ = true;
}

void QtPrinter::EndDoc() {
  if (painter_) painter_->end();
  painter_.reset();
  printer_.reset();
  turnPage_ = false;
}

}  // namespace screens::qt
