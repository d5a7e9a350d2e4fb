#include "screens/qt/qt_painting.h"

#include <QApplication>
#include <QFontMetricsF>
#include <QPainterPath>
#include <QPixmap>

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

void Paint(QPainter& painter, const forms::Outline& outline) {
  const QPainterPath path = ToQt(outline.path);
  painter.fillPath(path, ToQt(outline.fill));
  if (outline.stroke.width > 0) {
    painter.strokePath(path, QPen(screens::qt::ToQt(outline.stroke.colour), outline.stroke.width,
                                  Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  }
}

void Paint(QPainter& painter, const forms::Lettering& lettering) {
  const float points = static_cast<float>(lettering.size * kTwipsPerPixel / kTwipsPerPoint);
  const QFont font = screens::qt::ToQt(forms::Font{.size = points, .bold = lettering.bold});
  const QString text = screens::qt::ToQt(lettering.text);
  const double width = QFontMetricsF(font).horizontalAdvance(text);
  QPointF at = ToQt(lettering.at);
  if (lettering.alignment == forms::Alignment::Right) at.rx() -= width;
  if (lettering.alignment == forms::Alignment::Centre) at.rx() -= width / 2;
  painter.setFont(font);
  painter.setPen(screens::qt::ToQt(lettering.colour));
  painter.drawText(at, text);
}

// Faces that forms name and the program's own stands in for.
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
  if (!HasOpenStandIn(font.name)) {
    result.setFamilies(QStringList{ToQt(font.name)} + result.families());
  }
  result.setPixelSize(qMax(1, qRound(font.size * kTwipsPerPoint / kTwipsPerPixel)));
  result.setBold(font.bold);
  result.setItalic(font.italic);
  result.setUnderline(font.underline);
  result.setStrikeOut(font.strikethrough);
  return result;
}

double QtTextMeasure::TextWidth(std::string_view text, const forms::Font& font) const {
  return QFontMetricsF(ToQt(font)).horizontalAdvance(ToQt(text)) * kTwipsPerPixel;
}

double QtTextMeasure::LineHeight(const forms::Font& font) const {
  return QFontMetricsF(ToQt(font)).height() * kTwipsPerPixel;
}

double QtTextMeasure::Ascent(const forms::Font& font) const {
  return QFontMetricsF(ToQt(font)).ascent() * kTwipsPerPixel;
}

void PaintPicture(QPainter& painter, const forms::Picture& picture, const QRectF& into) {
  if (picture.width <= 0 || picture.height <= 0) return;
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.translate(into.topLeft());
  painter.scale(into.width() / picture.width, into.height() / picture.height);
  for (const auto& item : picture.items) {
    std::visit([&](const auto& drawn) { Paint(painter, drawn); }, item);
  }
  painter.restore();
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
