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

// The picture stretched to the rectangle.
void PaintPicture(QPainter& painter, const forms::Picture& picture, const QRectF& into);

QIcon ToIcon(const forms::Picture& picture);

}  // namespace screens::qt
