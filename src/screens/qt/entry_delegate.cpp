#include "screens/qt/entry_delegate.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QToolTip>

namespace screens::qt {

bool EntryDelegate::helpEvent(QHelpEvent* event, QAbstractItemView* view,
                              const QStyleOptionViewItem& option, const QModelIndex& index) {
  if (event->type() != QEvent::ToolTip || WidthOf(option, index) <= option.rect.width()) {
    return QStyledItemDelegate::helpEvent(event, view, option, index);
  }
  QToolTip::showText(event->globalPos(), index.data().toString(), view->viewport(), option.rect);
  return true;
}

}  // namespace screens::qt
