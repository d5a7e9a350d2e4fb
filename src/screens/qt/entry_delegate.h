// The rows of lists and drop-downs.
#pragma once

#include <QStyledItemDelegate>

namespace screens::qt {

// A row is as wide as its list. A text that is too long for it is cut short, and shown in a tool
// tip.
class EntryDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    return {0, QStyledItemDelegate::sizeHint(option, index).height()};
  }
  bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                 const QModelIndex& index) override;

 protected:
  // Of the text with its margins, in pixels.
  virtual int WidthOf(const QStyleOptionViewItem& option, const QModelIndex& index) const {
    return QStyledItemDelegate::sizeHint(option, index).width();
  }
};

}  // namespace screens::qt
