// ControlWidget: painting.

#include <QFontMetricsF>
#include <QPainter>
#include <QtMath>
#include <algorithm>

#include "screens/palette.h"
#include "screens/qt/control_widget.h"
#include "screens/qt/qt_painting.h"

namespace screens::qt {
namespace {

constexpr double kTileRadius = 12;
constexpr double kTileField = 56;  // of the picture on a tile 112 high
constexpr double kDisabledOpacity = 0.5;
constexpr double kFadedOpacity = 0.7;  // still readable

Qt::Alignment ToQt(forms::Alignment alignment) {
  switch (alignment) {
    case forms::Alignment::Right:
      return Qt::AlignRight;
    case forms::Alignment::Centre:
      return Qt::AlignHCenter;
    case forms::Alignment::Left:
      break;
  }
  return Qt::AlignLeft;
}

}  // namespace

QRectF ControlWidget::Body() const {
  return QRectF(rect()).adjusted(Margin(), Margin(), -Margin(), -Margin());
}

void ControlWidget::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  if (control_.kind == forms::Kind::Line) {
    PaintLine(painter);
    return;
  }
  if (control_.look == forms::Look::Card) PaintShadow(painter);
  if (control_.faded) painter.setOpacity(kFadedOpacity);
  if (!control_.enabled) painter.setOpacity(kDisabledOpacity);
  if (control_.look == forms::Look::Tile) {
    PaintTile(painter);
  } else {
    PaintBody(painter);
    if (control_.picture) PaintRendered(painter, PlaceOfPicture());
  }
  if (control_.kind == forms::Kind::Label) PaintCaption(painter);
}

// An image stretches its picture; a picture box keeps its shape.
QRectF ControlWidget::PlaceOfPicture() const {
  if (control_.kind == forms::Kind::Image) return Body();
  QSizeF size(control_.picture->width, control_.picture->height);
  size.scale(Body().size(), Qt::KeepAspectRatio);
  QRectF place(QPointF(), size);
  place.moveCenter(Body().center());
  return place;
}

// Draws through the centres of the end pixels.
void ControlWidget::PaintLine(QPainter& painter) {
  const forms::LineEnds& e = control_.ends;
  const QPointF corner = QPointF(pos()) - QPointF(0.5, 0.5);
  painter.setPen(QPen(screens::qt::ToQt(control_.borderColour), control_.borderWidth, Qt::SolidLine,
                      Qt::FlatCap));
  painter.drawLine(QPointF(ToPixels(e.x1), ToPixels(e.y1)) - corner,
                   QPointF(ToPixels(e.x2), ToPixels(e.y2)) - corner);
}

void ControlWidget::PaintBody(QPainter& painter) {
  const bool border = control_.borderColour.alpha > 0;
  if (!border && control_.backColour.alpha == 0) return;
  painter.setPen(border ? QPen(screens::qt::ToQt(control_.borderColour), control_.borderWidth)
                        : QPen(Qt::NoPen));
  painter.setBrush(screens::qt::ToQt(control_.backColour));
  const double inset = border ? control_.borderWidth / 2 : 0;
  const double radius = control_.cornerRadius / kTwipsPerPixel;
  painter.drawRoundedRect(Body().adjusted(inset, inset, -inset, -inset), radius, radius);
}

void ControlWidget::PaintShadow(QPainter& painter) {
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(0, 0, 0, 7));
  const double radius = control_.cornerRadius / kTwipsPerPixel;
  for (int spread = kShadow - 4; spread > 0; spread -= 2) {
    painter.drawRoundedRect(Body().adjusted(-spread, 4 - spread, spread, 4 + spread),
                            radius + spread, radius + spread);
  }
}

void ControlWidget::PaintTile(QPainter& painter) {
  const bool lit = control_.enabled && control_.hot;
  const double light = !control_.enabled ? 0.05 : control_.pressed ? 0.22 : lit ? 0.14 : 0.07;
  const bool focus = hasFocus();
  QPen edge(Qt::NoPen);
  if (focus) {
    edge = QPen(screens::qt::ToQt(palette::kGold), 2);
  } else if (lit) {
    edge = QPen(screens::qt::ToQt(palette::kDawn), 1);
  }
  painter.setPen(edge);
  painter.setBrush(screens::qt::ToQt(palette::kWhite.WithOpacity(light)));
  painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), kTileRadius, kTileRadius);

  if (!control_.picture) return;
  const double field = std::min({kTileField * height() / 112, width() * 0.8, height() * 0.55});
  const QPointF middle(width() / 2.0, height() * 0.34);
  PaintRendered(painter, QRectF(middle.x() - field / 2, middle.y() - field / 2, field, field));
}

// Pictures rarely change but are painted often, so each is rendered once per size.
void ControlWidget::PaintRendered(QPainter& painter, const QRectF& into) {
  const double ratio = devicePixelRatioF();
  const QSize size(qCeil(into.width() * ratio), qCeil(into.height() * ratio));
  if (rendered_.size() != size || rendered_.devicePixelRatio() != ratio) {
    rendered_ = QPixmap(size);
    rendered_.setDevicePixelRatio(ratio);
    rendered_.fill(Qt::transparent);
    QPainter onto(&rendered_);
    PaintPicture(onto, *control_.picture, QRectF(QPointF(), into.size()));
  }
  painter.drawPixmap(into.topLeft(), rendered_);
}

QFont ControlWidget::CaptionFont() const {
  const QString text = screens::qt::ToQt(control_.caption);
  const QFont font = screens::qt::ToQt(control_.font);
  return control_.wordWrap ? FittedInto(font, text, Body().size())
                           : Fitted(font, text, Body().width());
}

// Elides a line that is too long even in the smallest font.
QString ControlWidget::ShownCaption() const {
  const QString text = screens::qt::ToQt(control_.caption);
  return control_.wordWrap
             ? text
             : QFontMetrics(CaptionFont()).elidedText(text, Qt::ElideRight, qFloor(Body().width()));
}

void ControlWidget::PaintCaption(QPainter& painter) {
  painter.setFont(CaptionFont());
  painter.setPen(screens::qt::ToQt(control_.foreColour));
  const Qt::Alignment alignment = ToQt(control_.alignment);
  if (control_.wordWrap) {
    painter.drawText(Body(), int(alignment | Qt::AlignTop) | Qt::TextWordWrap, ShownCaption());
  } else {
    painter.drawText(Body(), int(alignment | Qt::AlignVCenter) | Qt::TextSingleLine,
                     ShownCaption());
  }
}

}  // namespace screens::qt
