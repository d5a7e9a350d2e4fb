#include "screens/qt/combo_box_widget.h"

#include <QPainter>
#include <QPointer>
#include <QWheelEvent>
#include <utility>

#include "screens/qt/entry_delegate.h"
#include "screens/qt/qt_painting.h"

namespace screens::qt {
namespace {

constexpr int kEntriesShown = 14;
constexpr int kArrowInset = 14;          // pixels from the right edge to the arrow's middle
constexpr double kLeastLines = 4.0 / 3;  // minimum height in line heights

}  // namespace

ComboBoxWidget::ComboBoxWidget(forms::Control& control, Dispatch dispatch, QWidget* parent)
    : QComboBox(parent), ControlView(control, std::move(dispatch)), name_(new QLabel(parent)) {
  setMaxVisibleItems(kEntriesShown);
  setItemDelegate(new EntryDelegate(this));  // applies the style sheet's row height
  control_.items->onEntriesChanged = [self = QPointer(this)] {
    if (self) self->entriesChanged_ = true;
  };
  connect(this, &QComboBox::activated, this,
          [this](int index) { dispatch_([this, index] { forms::Choose(control_, index); }); });
  name_->setBuddy(this);
  name_->hide();
  Mirror();
}

void ComboBoxWidget::Mirror() {
  if (std::exchange(entriesChanged_, false)) {
    clear();
    for (int i = 0; i < control_.items->ListCount(); ++i) addItem(ToQt(control_.items->List(i)));
  }
  if (currentIndex() != control_.items->ListIndex()) setCurrentIndex(control_.items->ListIndex());
  if (TakeProperties()) MirrorLook();
  setToolTip(ToQt(control_.toolTip));
  QStyleOptionComboBox option;
  initStyleOption(&option);
  const QRect room =
      style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this);
  if (fontMetrics().horizontalAdvance(currentText()) > room.width()) setToolTip(currentText());
}

void ComboBoxWidget::MirrorLook() {
  const forms::Properties& now = control_;
  setFont(ToQt(now.font));
  // Resizing a form enlarges a drop-down's font, but not its height.
  QRect place = PlaceInPixels(control_);
  place.setHeight(qMax(place.height(), qRound(kLeastLines * fontMetrics().height())));
  ApplyShared(*this, control_, place);
  name_->setText(accessibleName());
}

// The style sheet has no arrow.
void ComboBoxWidget::paintEvent(QPaintEvent* event) {
  QComboBox::paintEvent(event);
  QPainter painter(this);
  PaintArrow(painter, {width() - static_cast<double>(kArrowInset), height() / 2.0 + 1}, 1);
}

// Scrolling past the field must not change it.
void ComboBoxWidget::wheelEvent(QWheelEvent* event) {
  event->ignore();
}

}  // namespace screens::qt
