#include "screens/qt/date_time_widget.h"

#include <QFontMetrics>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>
#include <QRegularExpression>
#include <QWheelEvent>
#include <algorithm>
#include <utility>

#include "forms/moment_picker.h"
#include "foundation/locale_names.h"
#include "screens/palette.h"
#include "screens/qt/qt_painting.h"

namespace screens::qt {
namespace {

using namespace Qt::StringLiterals;

constexpr int kButtons = 42;     // pixels for arrows and padding
constexpr int kArrowInset = 14;  // from the right edge to the middle of an arrow
constexpr double kRadius = 10;   // of the border's corners
constexpr int kLastPart = 2;     // year, or half of the day

}  // namespace

DateTimeWidget::DateTimeWidget(forms::Control& control, Dispatch dispatch, QWidget* parent)
    : QAbstractSpinBox(parent), ControlView(control, std::move(dispatch)) {
  lineEdit()->installEventFilter(this);
  connect(lineEdit(), &QLineEdit::textEdited, this, [this] { typed_ = true; });
  if (IsDate()) {
    calendar_ = new CalendarPopup(this);
    const auto choose = [this](QDate date) {
      dispatch_([&] {
        forms::SetMoment(control_,
                         foundation::DateFromParts(date.year(), date.month(), date.day()));
      });
      ShowMoment();
    };
    connect(calendar_, &QCalendarWidget::clicked, this, choose);
    connect(calendar_, &QCalendarWidget::activated, this, choose);
  }
  Mirror();
}

void DateTimeWidget::Mirror() {
  const bool moved = !shown_ || shown_->moment != control_.moment;
  if (!TakeProperties()) return;
  const forms::Properties& now = control_;
  ApplyShared(*this, control_, PlaceInPixels(control_));
  if (!now.refusal.empty()) {
    setToolTip(ToQt(now.refusal));
    setAccessibleDescription(ToQt(now.refusal));
  }
  setFont(Fitted(ToQt(now.font), Longest(), width() - kButtons));
  lineEdit()->setFont(font());
  if (moved) ShowMoment();
  update();
}

QString DateTimeWidget::Longest() const {
  if (!IsDate()) return text();
  const QFontMetrics metrics(ToQt(control_.font));
  QString longest;
  for (int month = 1; month <= 12; ++month) {
    const QString date = u"30/%1/2026"_s.arg(ToQt(foundation::MonthName(month)));
    if (metrics.horizontalAdvance(date) > metrics.horizontalAdvance(longest)) longest = date;
  }
  return longest;
}

void DateTimeWidget::ShowMoment() {
  lineEdit()->setText(ToQt(forms::MomentText(control_)));
  typed_ = false;
}

// Month names are in composed form; typed or pasted text may not be, and may contain line breaks.
bool DateTimeWidget::Commit() {
  if (!typed_) return true;
  const QString typed = text().simplified().normalized(QString::NormalizationForm_C);
  dispatch_([&] { forms::TypeMoment(control_, typed.toStdString()); });
  if (!control_.refusal.empty()) return false;
  ShowMoment();
  return true;
}

// Steps the part at the cursor or at the start of the selection.
void DateTimeWidget::stepBy(int steps) {
  const int clicked = std::exchange(clickedPart_, 0);
  const bool all = lineEdit()->selectedText() == text();
  const int part = all ? clicked : PartAtCursor();
  if (!Commit()) return;
  dispatch_([&] { forms::StepMoment(control_, part, steps); });
  SelectPart(part);
}

bool DateTimeWidget::Separates(QChar character) const {
  return IsDate() ? character == u'/' : character == u':' || character == u' ';
}

int DateTimeWidget::PartAtCursor() const {
  const int start = lineEdit()->selectionStart();
  const QString before = text().first(start < 0 ? lineEdit()->cursorPosition() : start);
  const auto part = std::ranges::count_if(before, [this](QChar c) { return Separates(c); });
  return qMin(static_cast<int>(part), kLastPart);
}

void DateTimeWidget::SelectPart(int part) {
  const QString shown = text();
  int begin = 0;
  while (part > 0) part -= Separates(shown[begin++]) ? 1 : 0;
  int end = begin;
  while (end < shown.size() && !Separates(shown[end])) ++end;
  lineEdit()->setSelection(begin, end - begin);
}

// Moves on to the next part instead of typing the separator in front of it again.
bool DateTimeWidget::PassSeparator() {
  const QString shown = text();
  const bool selected = lineEdit()->hasSelectedText();
  const int at = selected ? lineEdit()->selectionStart() - 1 : lineEdit()->cursorPosition();
  if (at < 0 || at >= shown.size() || !Separates(shown[at])) return false;
  if (!selected) SelectPart(PartAtCursor() + 1);
  return true;
}

void DateTimeWidget::DropDown() {
  Commit();
  const foundation::DateTimeFields at = foundation::FieldsOf(control_.moment);
  calendar_->DropDown(QDate(at.year, at.month, at.day));
}

// Adds the arrows, which the style sheet leaves out: one for the calendar, or two for stepping.
void DateTimeWidget::paintEvent(QPaintEvent* event) {
  QAbstractSpinBox::paintEvent(event);
  QPainter painter(this);
  const double middle = height() / 2.0, x = width() - kArrowInset;
  if (IsDate()) {
    PaintArrow(painter, {x, middle + 1}, 1);
  } else {
    PaintArrow(painter, {x, middle - 5}, -1);
    PaintArrow(painter, {x, middle + 5}, 1);
  }
  if (control_.refusal.empty()) return;
  painter.setPen(QPen(ToQt(palette::kError), 2));
  painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), kRadius, kRadius);
}

void DateTimeWidget::keyPressEvent(QKeyEvent* event) {
  const bool drop = event->key() == Qt::Key_F4 ||
                    (event->key() == Qt::Key_Down && event->modifiers() & Qt::AltModifier);
  if (drop && IsDate()) {
    DropDown();
    return;
  }
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) Commit();
  const QChar typed = event->text().isEmpty() ? QChar() : event->text().front();
  if (Separates(typed) && PassSeparator()) return;
  QAbstractSpinBox::keyPressEvent(event);
  // Two digits fill a part.
  static const QRegularExpression kFilled(u"(^|[/: ])[0-9][0-9]$"_s);
  const QString before = text().first(lineEdit()->cursorPosition());
  if (typed.isDigit() && before.contains(kFilled)) PassSeparator();
}

// Only presses outside the text arrive here.
void DateTimeWidget::mousePressEvent(QMouseEvent* event) {
  if (IsDate()) {
    DropDown();
  } else {
    QAbstractSpinBox::mousePressEvent(event);
  }
}

// Selects the text, so that typing replaces it, unless it is half typed. A click then places the
// cursor, so its release selects again.
void DateTimeWidget::focusInEvent(QFocusEvent* event) {
  QAbstractSpinBox::focusInEvent(event);
  if (event->reason() == Qt::PopupFocusReason || typed_) return;
  clickedInto_ = event->reason() == Qt::MouseFocusReason;
  clickedPart_ = 0;
  selectAll();
}

// The part under the mouse is still the one to step. Waits until the clipboard has the selection of
// the mouse, if any.
bool DateTimeWidget::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::MouseButtonRelease && std::exchange(clickedInto_, false)) {
    const auto selectUnlessDragged = [this] {
      if (lineEdit()->hasSelectedText()) return;
      clickedPart_ = PartAtCursor();
      selectAll();
    };
    QMetaObject::invokeMethod(this, selectUnlessDragged, Qt::QueuedConnection);
  }
  return QAbstractSpinBox::eventFilter(watched, event);
}

// A menu or another window only borrows the focus.
void DateTimeWidget::focusOutEvent(QFocusEvent* event) {
  QAbstractSpinBox::focusOutEvent(event);
  if (event->reason() == Qt::PopupFocusReason || event->reason() == Qt::ActiveWindowFocusReason) {
    return;
  }
  Commit();
}

// Reacts to the wheel only while it has the focus.
void DateTimeWidget::wheelEvent(QWheelEvent* event) {
  if (hasFocus()) {
    QAbstractSpinBox::wheelEvent(event);
  } else {
    event->ignore();
  }
}

}  // namespace screens::qt
