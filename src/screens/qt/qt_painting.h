// Colours, fonts and pictures of the form model, drawn with QPainter.
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

// The size follows the form's twips, not the screen resolution. Non-free faces are replaced by
// the program's own.
QFont ToQt(const forms::Font& font);

// The font, reduced until the text fits a line or, wrapped, a box; never below the smallest
// readable size.
QFont Fitted(QFont font, const QString& text, double width);
QFont FittedInto(QFont font, const QString& text, QSizeF box);

// Measures with Qt's font metrics.
class QtTextMeasure : public forms::TextMeasure {
 public:
  double TextWidth(std::string_view text, const forms::Font& font) const override;
  double LineHeight(const forms::Font& font) const override;
  double Ascent(const forms::Font& font) const override;
  double LetterSize(const forms::Font& font) const override;
};

// Draws the picture stretched to the rectangle.
void PaintPicture(QPainter& painter, const forms::Picture& picture, const QRectF& into);

// Draws a field's small arrow; direction is 1 for down, -1 for up.
void PaintArrow(QPainter& painter, QPointF middle, int direction);

// Shares the raster's pixels, which must outlive the image.
QImage ImageOf(const forms::Raster& raster);

// Renders the picture on white.
forms::Raster Rasterise(const forms::Picture& picture, QSize size);

QIcon ToIcon(const forms::Picture& picture);

}  // namespace screens::qt
