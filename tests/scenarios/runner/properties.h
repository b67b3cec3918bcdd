// Reading a control's properties by the names that scripts use.
#pragma once
#include <QList>
#include <QModelIndex>

#include "player.h"
#include "values.h"

class QAbstractItemView;

namespace quillane::scenario {

/// `name` in any case, "FontBold" or "Bold"; `index` is that of List(n).  An empty name is the control's
/// chief property: its text, its caption or its check mark.  Throws Failure for a property that the control
/// does not have, and for a control of the main window whose widget shows something else than its state.
Value ReadProperty(const Target& target, const QString& name, int index = -1);

/// The rows of a list or a drop-down list, a tree's rows in the order in which they show.
QStringList RowsOf(const QWidget* list);
QList<QModelIndex> RowIndexes(const QAbstractItemView& view);

}  // namespace quillane::scenario
