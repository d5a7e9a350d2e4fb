#include "screens/qt/qt_printer.h"

#include <QApplication>
#include <QPageLayout>
#include <QPrintDialog>
#include <QtMath>

#include "foundation/error.h"

namespace screens::qt {
namespace {

constexpr double kTwipsPerInch = 72 * kTwipsPerPoint;
constexpr float kLargestPaper = 48 * static_cast<float>(kTwipsPerInch);  // nothing is cut before

}  // namespace

forms::Raster QtRasteriser::Render(const forms::Picture& picture) const {
  const double ratio = qGuiApp->devicePixelRatio();
  const QSize size(qRound(picture.width / kTwipsPerPixel * ratio),
                   qRound(picture.height / kTwipsPerPixel * ratio));
  forms::Raster dots = Rasterise(picture, size);
  dots.dotsPerInch *= ratio;
  return dots;
}

forms::Control QtPrinter::Paper() {
  forms::Control paper;
  paper.kind = forms::Kind::PictureBox;
  paper.place.width = paper.place.height = kLargestPaper;
  return paper;
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
  QPrintDialog dialog(&Device(), QApplication::activeWindow());
  if (dialog.exec() != QDialog::Accepted) {
    throw foundation::Error(foundation::ErrorKind::Cancelled);
  }
}

void QtPrinter::SetOrientation(forms::Orientation orientation) {
  if (painter_) EndDoc();
  Device().setPageOrientation(orientation == forms::Orientation::Landscape ? QPageLayout::Landscape
                                                                           : QPageLayout::Portrait);
}

void QtPrinter::Open() {
  if (painter_) return;
  painter_ = std::make_unique<QPainter>();
  if (!painter_->begin(&Device())) {
    painter_.reset();
    throw foundation::Error(foundation::ErrorKind::FileAccess);
  }
  const double scale = Device().resolution() / kTwipsPerInch;
  painter_->scale(scale, scale);
  begun_ = false;
}

void QtPrinter::Print(std::string_view text) {
  Open();
  if (!text.empty()) page_.Print(text);
}

void QtPrinter::Release() {
  const forms::PicturePtr drawn = paper_.picture;
  page_.Cls();
  if (!drawn || drawn->items.empty()) return;
  Open();
  if (begun_ && !Device().newPage()) throw foundation::Error(foundation::ErrorKind::FileAccess);
  screens::qt::PaintPicture(*painter_, *drawn, QRectF(0, 0, drawn->width, drawn->height));
  begun_ = true;
}

void QtPrinter::NewPage() {
  Release();
}

void QtPrinter::EndDoc() {
  Release();
  if (!painter_) return;
  painter_->end();
  painter_.reset();
  printer_.reset();
}

}  // namespace screens::qt
