#include "screens/qt/list_box_widget.h"

#include <QFocusEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QScrollBar>
#include <algorithm>
#include <array>
#include <cstdlib>
#include <utility>

#include "foundation/text.h"
#include "screens/palette.h"
#include "screens/qt/entry_delegate.h"
#include "screens/qt/qt_painting.h"

namespace screens::qt {
namespace {

constexpr int kRowHeight = 28;  // pixels, or more if the font needs it
constexpr int kRowMargin = 8;
constexpr double kChosenOpacity = 0.3;
constexpr double kHoverOpacity = 0.4;
constexpr int kRefreshInterval = 50;  // milliseconds

// Draws rows: the matching prefix bold, the selected row gold.
class RowDelegate : public EntryDelegate {
 public:
  RowDelegate(const forms::Control& control, QObject* parent)
      : EntryDelegate(parent), control_(control) {}

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const override {
    return {0, std::max(kRowHeight, option.fontMetrics.height() + kRowMargin)};
  }

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override {
    if (option.state & QStyle::State_Selected) {
      painter->fillRect(option.rect, ToQt(palette::kGold.WithOpacity(kChosenOpacity)));
    } else if (option.state & QStyle::State_MouseOver) {
      painter->fillRect(option.rect, ToQt(palette::kRule.WithOpacity(kHoverOpacity)));
    }
    painter->setPen(ToQt(control_.foreColour));
    QRect room = option.rect.adjusted(kRowMargin, 0, -kRowMargin, 0);
    for (const auto& [text, font] : PartsOf(option, index)) {
      const QFontMetrics metrics(font);
      painter->setFont(font);
      painter->drawText(room, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                        metrics.elidedText(text, Qt::ElideRight, room.width()));
      room.setLeft(room.left() + metrics.horizontalAdvance(text));
    }
  }

 protected:
  int WidthOf(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    int width = 2 * kRowMargin;
    for (const auto& [text, font] : PartsOf(option, index)) {
      width += QFontMetrics(font).horizontalAdvance(text);
    }
    return width;
  }

 private:
  struct Part {
    QString text;
    QFont font;
  };

  std::array<Part, 2> PartsOf(const QStyleOptionViewItem& option, const QModelIndex& index) const {
    const std::string text = index.data().toString().toStdString();
    const std::string_view bold = Emphasised(text);
    QFont boldFont = option.font;
    boldFont.setBold(true);
    return {Part{ToQt(bold), boldFont},
            Part{ToQt(std::string_view(text).substr(bold.size())), option.font}};
  }

  std::string_view Emphasised(std::string_view text) const {
    if (!foundation::BeginsWith(text, control_.emphasis)) return {};
    const auto count = foundation::Characters(control_.emphasis).size();
    return foundation::FirstCharacters(text, static_cast<int>(count));
  }

  const forms::Control& control_;
};

}  // namespace

void EntriesModel::Recount() {
  beginResetModel();
  rows_ = items_.ListCount();
  endResetModel();
}

int EntriesModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : rows_;
}

QVariant EntriesModel::data(const QModelIndex& index, int role) const {
  // Entries may have been removed since they were counted.
  if (role != Qt::DisplayRole || index.row() >= items_.ListCount()) return {};
  return ToQt(items_.List(index.row()));
}

ListBoxWidget::ListBoxWidget(forms::Control& control, Dispatch dispatch, QWidget* parent)
    : QListView(parent), ControlView(control, std::move(dispatch)), model_(*control.items, this) {
  setModel(&model_);
  setItemDelegate(new RowDelegate(control_, this));
  setUniformItemSizes(true);
  setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setMouseTracking(true);
  setFrameShape(QFrame::NoFrame);

  refresh_.setSingleShot(true);
  connect(&refresh_, &QTimer::timeout, this, [this] { dispatch_([] {}); });
  control_.items->onEntriesChanged = [self = QPointer(this)] {
    if (self) self->ScheduleMirror();
  };
  // A click on the selected entry counts as well.
  connect(this, &QListView::clicked, this, [this](const QModelIndex& index) {
    if (index.row() != chosenBefore_) return;
    dispatch_([this, row = index.row()] { forms::Choose(control_, row); });
  });
  connect(this, &QListView::doubleClicked, this, [this] { dispatch_(control_.onDoubleClick); });
  Mirror();
}

void ListBoxWidget::ScheduleMirror() {
  entriesChanged_ = true;
  if (!refresh_.isActive()) refresh_.start(kRefreshInterval);
}

void ListBoxWidget::Mirror() {
  mirroring_ = true;
  if (std::exchange(entriesChanged_, false)) MirrorEntries();
  MirrorSelection();
  mirroring_ = false;
  const std::string searched = shown_ ? shown_->emphasis : "";
  if (!TakeProperties()) return;
  MirrorLook();
  // A search that finds the same entry again scrolls back to it.
  if (control_.emphasis != searched) scrollTo(currentIndex(), PositionAtTop);
}

// A new size keeps the same row on top and the selection in view.
void ListBoxWidget::MirrorLook() {
  const auto measures = [this] { return std::pair(size(), font().pixelSize()); };
  const auto before = measures();
  const QModelIndex first = indexAt({0, 0}), chosen = currentIndex();
  const bool inView = viewport()->rect().contains(visualRect(chosen).center());
  ApplyShared(*this, control_, PlaceInPixels(control_));
  setFont(ToQt(control_.font));
  viewport()->update();
  if (measures() == before) return;
  doItemsLayout();
  scrollTo(first, PositionAtTop);
  if (inView) scrollTo(chosen);
}

// Keeps the scroll position: the user may scroll while entries arrive.
void ListBoxWidget::MirrorEntries() {
  refresh_.stop();
  const int before = model_.rowCount(), scrolled = verticalScrollBar()->value();
  const bool chosen = currentIndex().isValid();
  model_.Recount();
  if (model_.rowCount() < before) return;
  if (chosen && control_.items->ListIndex() >= 0) {
    setCurrentIndex(model_.index(control_.items->ListIndex()));
  }
  verticalScrollBar()->setValue(scrolled);
}

// Scrolls by one row to a neighbour; puts any other entry at the top.
void ListBoxWidget::MirrorSelection() {
  const int before = currentIndex().row(), now = control_.items->ListIndex();
  if (before == now) return;
  const QModelIndex index = model_.index(now);
  setCurrentIndex(index);
  if (!index.isValid()) return;
  const bool neighbour = before >= 0 && std::abs(now - before) == 1;
  scrollTo(index, neighbour ? EnsureVisible : PositionAtTop);
}

void ListBoxWidget::showEvent(QShowEvent* event) {
  QListView::showEvent(event);
  scrollTo(currentIndex());
}

void ListBoxWidget::paintEvent(QPaintEvent* event) {
  QListView::paintEvent(event);
  if (model_.rowCount() > 0) return;
  QPainter painter(viewport());
  painter.setPen(ToQt(palette::kQuiet));
  painter.drawText(viewport()->rect(), Qt::AlignCenter | Qt::TextWordWrap,
                   ToQt(control_.whenEmpty));
}

// Without a current entry, QListView would make the first one current.
void ListBoxWidget::focusInEvent(QFocusEvent* event) {
  if (currentIndex().isValid()) {
    QListView::focusInEvent(event);
  } else {
    QAbstractScrollArea::focusInEvent(event);
  }
}

void ListBoxWidget::mousePressEvent(QMouseEvent* event) {
  chosenBefore_ = currentIndex().row();
  QListView::mousePressEvent(event);
}

void ListBoxWidget::mouseMoveEvent(QMouseEvent* event) {
  QListView::mouseMoveEvent(event);
  if (!control_.onHover) return;
  const int row = indexAt(event->position().toPoint()).row();
  dispatch_([this, row] { control_.onHover(row); });
}

// A selection stays until another entry is selected.
QItemSelectionModel::SelectionFlags ListBoxWidget::selectionCommand(const QModelIndex& index,
                                                                    const QEvent*) const {
  return index.isValid() ? QItemSelectionModel::ClearAndSelect : QItemSelectionModel::NoUpdate;
}

void ListBoxWidget::selectionChanged(const QItemSelection& selected, const QItemSelection& former) {
  QListView::selectionChanged(selected, former);
  if (mirroring_ || selected.isEmpty()) return;
  const int row = selected.indexes().first().row();
  if (row < control_.items->ListCount()) dispatch_([this, row] { forms::Select(control_, row); });
}

}  // namespace screens::qt
