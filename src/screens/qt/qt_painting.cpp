#include "screens/qt/qt_painting.h"

#include <QApplication>
#include <QFontDatabase>
#include <QFontMetricsF>
#include <QImage>
#include <QPainterPath>
#include <QPixmap>

#include "foundation/legacy_hindi.h"
#include "screens/palette.h"

namespace screens::qt {
namespace {

QPointF ToQt(forms::Point point) {
  return {point.x, point.y};
}

QPainterPath ToQt(const forms::Path& path) {
  QPainterPath result;
  auto point = path.Points().begin();
  for (const forms::Path::Verb verb : path.Verbs()) {
    switch (verb) {
      case forms::Path::Verb::Move:
        result.moveTo(ToQt(*point++));
        break;
      case forms::Path::Verb::Line:
        result.lineTo(ToQt(*point++));
        break;
      case forms::Path::Verb::Cubic:
        result.cubicTo(ToQt(point[0]), ToQt(point[1]), ToQt(point[2]));
        point += 3;
        break;
      case forms::Path::Verb::Close:
        result.closeSubpath();
        break;
    }
  }
  return result;
}

QBrush WithStops(QGradient gradient, const std::vector<forms::GradientStop>& stops) {
  for (const forms::GradientStop& stop : stops) {
    gradient.setColorAt(stop.at, screens::qt::ToQt(stop.colour));
  }
  return gradient;
}

QBrush ToQt(const forms::Fill& fill) {
  if (const auto* linear = std::get_if<forms::LinearGradient>(&fill)) {
    return WithStops(QLinearGradient(ToQt(linear->from), ToQt(linear->to)), linear->stops);
  }
  if (const auto* radial = std::get_if<forms::RadialGradient>(&fill)) {
    return WithStops(QRadialGradient(ToQt(radial->centre), radial->radius), radial->stops);
  }
  return screens::qt::ToQt(std::get<forms::Colour>(fill));
}

// The caller draws pixels, since it knows the picture's size.
void Paint(QPainter&, const forms::Dots&) {}

void Paint(QPainter& painter, const forms::Outline& outline) {
  const QPainterPath path = ToQt(outline.path);
  painter.fillPath(path, ToQt(outline.fill));
  if (outline.stroke.width > 0) {
    painter.strokePath(path, QPen(screens::qt::ToQt(outline.stroke.colour), outline.stroke.width,
                                  Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  }
}

// Metrics of the legacy Hindi face, relative to its size. The free substitute has taller letters,
// so it must be smaller to fit, and smaller still in a page's title, between two rules.
constexpr double kLegacyLine = 1.05, kLegacyAscent = 0.775;
constexpr double kStandInScale = 0.78, kLargestStandIn = 270;  // twips

bool IsStandInForLegacyHindi(const forms::Font& font) {
  static const bool installed =
      QFontDatabase::families().contains(screens::qt::ToQt(foundation::kLegacyHindiFace));
  return font.name == foundation::kLegacyHindiFace && !installed;
}

// Without its font, text in the legacy encoding would appear as Latin letters.
QString Readable(std::string_view text, const forms::Font& font) {
  const bool legacy = IsStandInForLegacyHindi(font);
  return screens::qt::ToQt(legacy ? foundation::FromLegacyHindi(text) : std::string(text));
}

// The font at a size in picture units, which are pixels while painting.
QFont InPicture(forms::Font font, double size) {
  font.size = static_cast<float>(size * kTwipsPerPixel / kTwipsPerPoint);
  return screens::qt::ToQt(font);
}

void Paint(QPainter& painter, const forms::Lettering& lettering) {
  forms::Font face = {.bold = lettering.bold,
                      .italic = lettering.italic,
                      .underline = lettering.underline,
                      .strikethrough = lettering.strikethrough};
  if (!lettering.face.empty()) face.name = lettering.face;
  const QFont font = InPicture(face, lettering.size);
  const QString text = Readable(lettering.text, face);
  const double width = QFontMetricsF(font).horizontalAdvance(text);
  QPointF at = ToQt(lettering.at);
  if (lettering.alignment == forms::Alignment::Right) at.rx() -= width;
  if (lettering.alignment == forms::Alignment::Centre) at.rx() -= width / 2;
  painter.setFont(font);
  painter.setPen(screens::qt::ToQt(lettering.colour));
  painter.drawText(at, text);
}

void Paint(QPainter& painter, const forms::Inset& inset) {
  PaintPicture(painter, *inset.picture, QRectF(inset.at.x, inset.at.y, inset.width, inset.height));
}

// Non-free faces that forms name and the program's font replaces.
bool HasOpenStandIn(std::string_view face) {
  return face == "Arial" || face == "Tahoma";
}

}  // namespace

int ToPixels(double twips) {
  return qRound(twips / kTwipsPerPixel);
}

QColor ToQt(forms::Colour colour) {
  return QColor(colour.red, colour.green, colour.blue, colour.alpha);
}

QString ToQt(std::string_view utf8) {
  return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

QFont ToQt(const forms::Font& font) {
  QFont result = QApplication::font();
  if (IsStandInForLegacyHindi(font)) {
    result.setFamilies(QStringList{QStringLiteral("Lohit Devanagari")} + result.families());
  } else if (!HasOpenStandIn(font.name)) {
    result.setFamilies(QStringList{ToQt(font.name)} + result.families());
  }
  result.setPixelSize(qMax(1, ToPixels(font.size * kTwipsPerPoint)));
  result.setBold(font.bold);
  result.setItalic(font.italic);
  result.setUnderline(font.underline);
  result.setStrikeOut(font.strikethrough);
  return result;
}

QFont Fitted(QFont font, const QString& text, double width) {
  const double wanted = QFontMetricsF(font).horizontalAdvance(text);
  if (wanted > width) {
    const double size = qMax(forms::kSmallestText, font.pixelSize() * width / wanted);
    font.setPixelSize(qMin(font.pixelSize(), static_cast<int>(size)));
  }
  return font;
}

QFont FittedInto(QFont font, const QString& text, QSizeF box) {
  const QRectF room(QPointF(), QSizeF(box.width(), 1e6));
  while (font.pixelSize() > forms::kSmallestText) {
    const QRectF wanted = QFontMetricsF(font).boundingRect(room, Qt::TextWordWrap, text.trimmed());
    if (wanted.height() <= box.height() && wanted.width() <= box.width()) break;
    font.setPixelSize(font.pixelSize() - 1);
  }
  return font;
}

// Measures as painted, at a size not rounded to whole pixels.
double QtTextMeasure::TextWidth(std::string_view text, const forms::Font& font) const {
  const QFontMetricsF metrics(InPicture(font, LetterSize(font)));
  return metrics.horizontalAdvance(Readable(text, font));
}

double QtTextMeasure::LineHeight(const forms::Font& font) const {
  if (IsStandInForLegacyHindi(font)) return kLegacyLine * font.size * kTwipsPerPoint;
  return QFontMetricsF(ToQt(font)).height() * kTwipsPerPixel;
}

double QtTextMeasure::Ascent(const forms::Font& font) const {
  if (IsStandInForLegacyHindi(font)) return kLegacyAscent * font.size * kTwipsPerPoint;
  return QFontMetricsF(ToQt(font)).ascent() * kTwipsPerPixel;
}

double QtTextMeasure::LetterSize(const forms::Font& font) const {
  const double size = font.size * kTwipsPerPoint;
  return IsStandInForLegacyHindi(font) ? qMin(kStandInScale * size, kLargestStandIn) : size;
}

void PaintPicture(QPainter& painter, const forms::Picture& picture, const QRectF& into) {
  if (picture.width <= 0 || picture.height <= 0) return;
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.translate(into.topLeft());
  painter.scale(into.width() / picture.width, into.height() / picture.height);
  for (const auto& item : picture.items) {
    if (const auto* pixels = std::get_if<forms::Dots>(&item)) {
      painter.setRenderHint(QPainter::SmoothPixmapTransform);
      painter.drawImage(QRectF(0, 0, picture.width, picture.height), ImageOf(*pixels->raster));
    } else {
      std::visit([&](const auto& drawn) { Paint(painter, drawn); }, item);
    }
  }
  painter.restore();
}

void PaintArrow(QPainter& painter, QPointF middle, int direction) {
  const double reach = 2.0 * direction;
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(ToQt(palette::kQuiet), 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.drawPolyline(QPolygonF{middle + QPointF(-4, -reach), middle + QPointF(0, reach),
                                 middle + QPointF(4, -reach)});
}

QImage ImageOf(const forms::Raster& raster) {
  return QImage(raster.rgb.data(), raster.width, raster.height, 3 * raster.width,
                QImage::Format_RGB888);
}

forms::Raster Rasterise(const forms::Picture& picture, QSize size) {
  QImage image(size, QImage::Format_RGB888);
  image.fill(Qt::white);
  {
    QPainter painter(&image);
    PaintPicture(painter, picture, QRectF(QPointF(), QSizeF(size)));
  }
  forms::Raster raster = {.width = size.width(), .height = size.height()};
  const auto row = static_cast<std::size_t>(3 * size.width());
  raster.rgb.reserve(row * static_cast<std::size_t>(size.height()));
  for (int y = 0; y < size.height(); ++y) {
    const uchar* line = image.constScanLine(y);
    raster.rgb.insert(raster.rgb.end(), line, line + row);
  }
  return raster;
}

QIcon ToIcon(const forms::Picture& picture) {
  QIcon icon;
  for (const int size : {16, 24, 32, 48, 64, 128, 256}) {
    QPixmap pixmap(size, size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    PaintPicture(painter, picture, QRectF(0, 0, size, size));
    icon.addPixmap(pixmap);
  }
  return icon;
}

}  // namespace screens::qt
