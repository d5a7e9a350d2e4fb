#include "screens/qt/qt_printer.h"

#include <QApplication>
#include <QDir>
#include <QLineEdit>
#include <QPageLayout>
#include <QPrintDialog>
#include <QScopeGuard>
#include <QtMath>

#include "foundation/files.h"
#include "screens/qt/dialog_owner.h"

namespace screens::qt {
namespace {

constexpr double kTwipsPerInch = 72 * kTwipsPerPoint;
constexpr float kLargestPaper = 48 * static_cast<float>(kTwipsPerInch);  // never clips

// Documents print complete and in order. The widgets are found by name: the dialog has no option
// for the order and shows a range even without PrintPageRange.
void OfferOnlyAllPages(const QPrintDialog& dialog) {
  for (const char* choice : {"gbPrintRange", "reverse"}) {
    if (auto* widget = dialog.findChild<QWidget*>(QLatin1String(choice))) widget->setEnabled(false);
  }
}

// On some platforms the dialog proposes no file itself.
void ProposeFile(const QPrintDialog& dialog, const QString& name) {
  auto* file = dialog.findChild<QLineEdit*>(QStringLiteral("filename"));
  if (file != nullptr) file->setText(QDir::home().filePath(name + QStringLiteral(".pdf")));
}

// QPrinter does not notice a short write.
bool IsComplete(const QString& pdf) {
  QFile file(pdf);
  constexpr qint64 kEnd = 8;  // bytes, with line ends
  return file.open(QIODevice::ReadOnly) && file.seek(file.size() - kEnd) &&
         file.readAll().contains("%%EOF");
}

}  // namespace

forms::Raster QtRasteriser::Render(const forms::Picture& picture) const {
  const double ratio = qGuiApp->devicePixelRatio();
  const QSize size(qRound(picture.width / kTwipsPerPixel * ratio),
                   qRound(picture.height / kTwipsPerPixel * ratio));
  forms::Raster pixels = Rasterise(picture, size);
  pixels.dotsPerInch *= ratio;
  return pixels;
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
    printer_->setCreator(QApplication::applicationName());
    printer_->setDocName(documentName_);
    if (!pdfFile_.isEmpty()) printer_->setOutputFileName(pdfFile_);
  }
  return *printer_;
}

void QtPrinter::SetDocumentName(std::string_view name) {
  documentName_ = ToQt(name).replace(u'/', u'-');
}

void QtPrinter::AskUser() {
  if (!pdfFile_.isEmpty()) return;
  QPrintDialog dialog(&Device());
  OfferOnlyAllPages(dialog);
  ProposeFile(dialog, documentName_);
  GiveOwner(dialog);
  if (dialog.exec() != QDialog::Accepted) {
    throw foundation::Error(foundation::ErrorKind::Cancelled);
  }
}

void QtPrinter::SetOrientation(forms::Orientation orientation) {
  Device().setPageOrientation(orientation == forms::Orientation::Landscape ? QPageLayout::Landscape
                                                                           : QPageLayout::Portrait);
}

foundation::Error QtPrinter::Refusal() {
  const std::string file = Device().outputFileName().toStdString();
  const std::string name = Device().printerName().toStdString();
  const auto kind = foundation::ErrorKind::FileAccess;
  if (!file.empty()) return foundation::FileError(kind, file, "cannot be written");
  return foundation::Error(kind, name.empty()
                                     ? "There is no printer"
                                     : "The printer " + name + " does not accept the document");
}

void QtPrinter::Open() {
  if (painter_) return;
  auto painter = std::make_unique<QPainter>();
  if (!painter->begin(&Device())) throw Refusal();
  painter_ = std::move(painter);
  const double scale = Device().resolution() / kTwipsPerInch;
  painter_->scale(scale, scale);
  begun_ = false;
}

void QtPrinter::Print(std::string_view text) {
  Open();
  if (!text.empty()) page_.Print(text);
}

void QtPrinter::FlushPage() {
  const forms::PicturePtr drawn = paper_.picture;
  page_.Cls();
  if (!drawn || drawn->items.empty()) return;
  Open();
  if (begun_ && !Device().newPage()) throw Refusal();
  screens::qt::PaintPicture(*painter_, *drawn, QRectF(0, 0, drawn->width, drawn->height));
  begun_ = true;
}

void QtPrinter::NewPage() {
  FlushPage();
}

void QtPrinter::EndDoc() {
  const auto cleanup = qScopeGuard([this] {
    painter_.reset();
    printer_.reset();
  });
  FlushPage();
  if (!painter_) return;
  painter_->end();
  const QString file = Device().outputFileName();
  if (!file.isEmpty() && !IsComplete(file)) throw Refusal();
}

}  // namespace screens::qt
