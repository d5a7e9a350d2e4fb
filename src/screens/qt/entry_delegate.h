// Draws the rows of lists and drop-downs.
#pragma once

#include <QStyledItemDelegate>

namespace screens::qt {

// Rows are as wide as their list; longer text is elided and shown in a tool tip.
class EntryDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    return {0, QStyledItemDelegate::sizeHint(option, index).height()};
  }
  bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                 const QModelIndex& index) override;

 protected:
  // The width of the text with its margins, in pixels.
  virtual int WidthOf(const QStyleOptionViewItem& option, const QModelIndex& index) const {
    return QStyledItemDelegate::sizeHint(option, index).width();
  }
};

}  // namespace screens::qt
