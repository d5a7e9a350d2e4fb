// A list box for any number of entries; draws only visible rows.
#pragma once

#include <QAbstractListModel>
#include <QListView>
#include <QTimer>

#include "screens/qt/control_view.h"

namespace screens::qt {

// Knows only the number of entries at the last count; reads texts when they are drawn.
class EntriesModel : public QAbstractListModel {
  Q_OBJECT

 public:
  explicit EntriesModel(const forms::ItemList& items, QObject* parent)
      : QAbstractListModel(parent), items_(items) {}

  void Recount();
  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;

 private:
  const forms::ItemList& items_;
  int rows_ = 0;
};

class ListBoxWidget : public QListView, public ControlView {
  Q_OBJECT

 public:
  ListBoxWidget(forms::Control& control, Dispatch dispatch, QWidget* parent);

  QWidget& Widget() override { return *this; }
  void Mirror() override;

 protected:
  void showEvent(QShowEvent*) override;
  void paintEvent(QPaintEvent*) override;
  void focusInEvent(QFocusEvent*) override;
  void mouseMoveEvent(QMouseEvent*) override;
  void mousePressEvent(QMouseEvent*) override;
  QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                       const QEvent* event) const override;
  void selectionChanged(const QItemSelection& selected, const QItemSelection& former) override;

 private:
  void ScheduleMirror();
  void MirrorEntries();
  void MirrorSelection();
  void MirrorLook();

  EntriesModel model_;
  QTimer refresh_;         // batches entries that arrive one by one
  int chosenBefore_ = -1;  // before the last press
  bool entriesChanged_ = true;
  bool mirroring_ = false;
};

}  // namespace screens::qt
