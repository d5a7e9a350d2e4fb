// Colours, fonts and pictures of the form model, drawn with the toolkit's painter.
#pragma once

#include <QColor>
#include <QFont>
#include <QIcon>
#include <QImage>
#include <QPainter>
#include <QRectF>
#include <string_view>

#include "forms/colour.h"
#include "forms/font.h"
#include "forms/picture.h"
#include "forms/text_measure.h"
#include "forms/units.h"

namespace screens::qt {

using forms::kTwipsPerPixel;
using forms::kTwipsPerPoint;

int ToPixels(double twips);
QColor ToQt(forms::Colour colour);
QString ToQt(std::string_view utf8);

// Its size follows the form's twips, not the resolution of the screen. Faces that are not free are
// shown in the program's own.
QFont ToQt(const forms::Font& font);

// The font, or as much smaller as lets the text fit, down to the smallest that can be read: on one
// line, or wrapped into a box.
QFont Fitted(QFont font, const QString& text, double width);
QFont FittedInto(QFont font, const QString& text, QSizeF box);

// By the metrics of the toolkit's fonts.
class QtTextMeasure : public forms::TextMeasure {
 public:
  double TextWidth(std::string_view text, const forms::Font& font) const override;
  double LineHeight(const forms::Font& font) const override;
  double Ascent(const forms::Font& font) const override;
  double LetterSize(const forms::Font& font) const override;
};

// The picture stretched to the rectangle.
void PaintPicture(QPainter& painter, const forms::Picture& picture, const QRectF& into);

// A small arrow of a field's own, 1 down or -1 up.
void PaintArrow(QPainter& painter, QPointF middle, int direction);

// The dots themselves, for as long as they last.
QImage ImageOf(const forms::Raster& raster);

// The picture in dots, on white.
forms::Raster Rasterise(const forms::Picture& picture, QSize size);

QIcon ToIcon(const forms::Picture& picture);

}  // namespace screens::qt
