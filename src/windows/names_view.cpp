#include "windows/names_view.h"

#include <QKeyEvent>
#include <QScrollBar>
#include <algorithm>

#include "address/book.h"
#include "model/proposal.h"
#include "platform/codepage.h"
#include "qt/dialog_parts.h"

namespace quillane {

namespace {

NameList& list = addressBook.lstNames;

QByteArrayView WithoutBlanksBehind(QByteArrayView text) {
  while (text.endsWith(' ')) text.chop(1);
  return text;
}

/// The keys that lead from row to row.
bool Moves(const QKeyEvent& event) {
  const int key = event.key();
  return key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_PageUp || key == Qt::Key_PageDown;
}

}  // namespace

int NameModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : rows_;
}

QVariant NameModel::data(const QModelIndex& index, int role) const {
  // Between a filling and its showing there may be fewer rows than were shown.
  if (role != Qt::DisplayRole || !index.isValid() || index.row() >= list.ListCount()) return {};
  return FromCodePage(WithoutBlanksBehind(list.rows[index.row()]).toByteArray());
}

QModelIndexList NameModel::match(const QModelIndex& start, int role, const QVariant& value, int hits,
                                 Qt::MatchFlags flags) const {
  if (role != Qt::DisplayRole || !(flags & Qt::MatchStartsWith))
    return QAbstractListModel::match(start, role, value, hits, flags);
  const int row = list.rows.RowThatBegins(ToCodePage(value.toString()), std::max(0, start.row()));
  return row < 0 ? QModelIndexList() : QModelIndexList{index(row)};
}

void NameModel::Refill() {
  beginResetModel();
  rows_ = list.ListCount();
  endResetModel();
}

NamesView::NamesView(std::function<void(int)> chosen) : chosen_(std::move(chosen)) {
  Named(this, QStringLiteral("lstNames"), QStringLiteral("Names in this address book"));
  setUniformItemSizes(true);
  setSpacing(1);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setModel(&model_);
  connect(verticalScrollBar(), &QScrollBar::valueChanged, this, [this](int row) {
    if (!showing_) list.TopIndex = row;
  });
}

void NamesView::ShowState() {
  const Scoped showing(showing_, true);
  const bool filled = revision_ != list.revision;
  if (filled) {
    revision_ = list.revision;
    model_.Refill();
    doItemsLayout();
  }
  if (currentIndex().row() != list.ListIndex || selectionModel()->hasSelection() != (list.ListIndex >= 0)) {
    setCurrentIndex(model_.index(list.ListIndex));
    if (list.ListIndex < 0) clearSelection();
  }
  if (verticalScrollBar()->value() != list.TopIndex) verticalScrollBar()->setValue(list.TopIndex);
}

void NamesView::mousePressEvent(QMouseEvent* event) {
  // Only the left button chooses.
  if (event->button() == Qt::LeftButton) QListView::mousePressEvent(event);
}

void NamesView::mouseReleaseEvent(QMouseEvent* event) {
  QListView::mouseReleaseEvent(event);
  if (event->button() == Qt::LeftButton) Choose();
}

void NamesView::keyPressEvent(QKeyEvent* event) {
  const bool begun = currentIndex().isValid();
  if (!begun && Moves(*event))
    selectionModel()->setCurrentIndex(model_.index(std::min(lastRow_, model_.rowCount() - 1)),
                                      QItemSelectionModel::NoUpdate);
  const QModelIndex before = currentIndex();
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    Choose();
  } else {
    QListView::keyPressEvent(event);
    if (currentIndex() != before) return Choose();
    if (!begun) ShowState();
  }
}

void NamesView::focusInEvent(QFocusEvent* event) {
  QListView::focusInEvent(event);
  // The toolkit makes the first row the current one; here that would look like a choice.
  ShowState();
}

void NamesView::Choose() {
  const QModelIndex current = currentIndex();
  if (!current.isValid() || !selectionModel()->isSelected(current)) return ShowState();
  lastRow_ = current.row();
  chosen_(lastRow_);
}

}  // namespace quillane
