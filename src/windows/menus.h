// The menu bar, drawn from the command table; what shows of an entry follows the frame's plain state.
#pragma once
#include <QAction>
#include <QHash>
#include <QMenu>
#include <QMenuBar>

#include "ui/control.h"

namespace quillane {

struct Command;

class Menus {
 public:
  /// Fills the bar.  Every action and every menu has the name of its entry as its object name.
  explicit Menus(QMenuBar& bar);
  /// An entry has changed.
  void Follow(const Control& entry);
  /// The sub-menu of that name; null for none.
  QMenu* Menu(const QString& name) const { return menus_.value(name); }
  /// True when a key belongs to an entry that can run now.
  bool Owns(const QKeySequence& key) const;

 private:
  void AddMenu(QMenuBar& bar, const Command& command);
  void AddEntry(const Command& command);

  // All owned by the bar and its menus.
  QHash<QString, QMenu*> menus_;
  QHash<QString, QAction*> actions_;
  QHash<QKeySequence, QAction*> keys_;
};

}  // namespace quillane
