#include "screens/qt/text_box_widget.h"

#include <QFocusEvent>
#include <QFontMetrics>
#include <QPainter>
#include <algorithm>
#include <utility>

#include "screens/palette.h"
#include "screens/qt/qt_painting.h"

namespace screens::qt {
namespace {

constexpr int kRemarkMargin = 8;  // pixels on each side of a remark

}  // namespace

TextBoxWidget::TextBoxWidget(forms::Control& control, Dispatch dispatch, QWidget* parent)
    : QLineEdit(parent), ControlView(control, std::move(dispatch)) {
  connect(this, &QLineEdit::textEdited, this, [this](const QString& edited) {
    dispatch_([this, text = edited.toStdString()] { forms::SetText(control_, text); });
  });
  Mirror();
}

void TextBoxWidget::Mirror() {
  if (!TakeProperties()) return;
  const forms::Properties& now = control_;
  ApplyShared(*this, control_, PlaceInPixels(control_));
  setFont(ToQt(now.font));
  setPlaceholderText(ToQt(now.whenEmpty));
  if (const QString text = ToQt(now.caption); text != this->text()) setText(text);
  const QString remark = ToQt(now.trailing);
  const int room = remark.isEmpty()
                       ? 0
                       : QFontMetrics(RemarkFont()).horizontalAdvance(remark) + 2 * kRemarkMargin;
  setTextMargins(0, 0, room, 0);
  update();
}

QFont TextBoxWidget::RemarkFont() const {
  forms::Font font = control_.font;
  font.size = std::max(static_cast<float>(forms::kSmallestFont), font.size * 0.8F);
  return ToQt(font);
}

// The style sheet, which applies at the first show, makes the hint too faint to read.
void TextBoxWidget::showEvent(QShowEvent* event) {
  QLineEdit::showEvent(event);
  QPalette colours = palette();
  colours.setColor(QPalette::PlaceholderText, ToQt(palette::kQuiet));
  setPalette(colours);
}

void TextBoxWidget::paintEvent(QPaintEvent* event) {
  QLineEdit::paintEvent(event);
  QPainter painter(this);
  painter.setFont(RemarkFont());
  painter.setPen(ToQt(palette::kQuiet));
  painter.drawText(rect().adjusted(0, 0, -kRemarkMargin, 0), Qt::AlignRight | Qt::AlignVCenter,
                   ToQt(control_.trailing));
}

// Selects all text when it gets the focus. A click then places the cursor, so its release selects
// again.
void TextBoxWidget::focusInEvent(QFocusEvent* event) {
  QLineEdit::focusInEvent(event);
  clickedInto_ = event->reason() == Qt::MouseFocusReason;
  if (event->reason() != Qt::PopupFocusReason) selectAll();
}

void TextBoxWidget::mouseReleaseEvent(QMouseEvent* event) {
  QLineEdit::mouseReleaseEvent(event);
  if (std::exchange(clickedInto_, false) && !hasSelectedText()) selectAll();
}

}  // namespace screens::qt
