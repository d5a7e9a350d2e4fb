// Colours, fonts and pictures of the form model, drawn with the toolkit's painter.
#pragma once

#include <QColor>
#include <QFont>
#include <QIcon>
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

// By the metrics of the toolkit's fonts.
class QtTextMeasure : public forms::TextMeasure {
 public:
  double TextWidth(std::string_view text, const forms::Font& font) const override;
  double LineHeight(const forms::Font& font) const override;
  double Ascent(const forms::Font& font) const override;
};

// The picture stretched to the rectangle.
void PaintPicture(QPainter& painter, const forms::Picture& picture, const QRectF& into);

QIcon ToIcon(const forms::Picture& picture);

}  // namespace screens::qt
