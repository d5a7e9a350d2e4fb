#include "screens/qt/qt_clipboard.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QImage>
#include <QMimeData>

#include "screens/qt/qt_painting.h"
#include "screens/qt/qt_printer.h"

namespace screens::qt {

bool QtClipboard::SetPicture(const forms::PicturePtr& picture) {
  if (!picture) return false;
  const forms::RasterPtr own = forms::DotsOf(*picture);
  const QImage image = ImageOf(own ? *own : QtRasteriser().Render(*picture)).copy();
  if (image.isNull()) return false;
  QClipboard& clipboard = *QGuiApplication::clipboard();
  auto* const data = new QMimeData;  // owned by the clipboard even if it refuses
  data->setImageData(image);
  clipboard.setMimeData(data);
  return clipboard.mimeData() == data;
}

}  // namespace screens::qt
