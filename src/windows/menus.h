// The menu bar of a window, drawn from its table of commands.
#pragma once
#include <QAction>
#include <QHash>
#include <QMenu>
#include <QMenuBar>
#include <functional>
#include <vector>

#include "app/commands.h"

namespace quillane {

/// What shows of an entry.
struct EntryState {
  QString caption;
  bool visible = true, enabled = true, checked = false;
};

class Menus {
 public:
  /// `stateOf` says what shows of an entry, `run` runs it.
  struct Owner {
    std::function<EntryState(const Command&)> stateOf;
    std::function<void(const Command&)> run;
  };
  /// Fills the bar from the table, which must outlive it.  Every action and every menu has the name of its
  /// entry as its object name.
  Menus(QMenuBar& bar, const std::vector<Command>& table, Owner owner);
  /// An entry's state may have changed; nothing for a name that the table does not have.
  void Follow(const QString& name);
  /// The same for all of them.
  void FollowAll();
  /// The sub-menu of that name; null for none.
  QMenu* Menu(const QString& name) const { return menus_.value(name); }
  /// True when a key belongs to an entry that can run now.
  bool Owns(const QKeySequence& key) const;

 private:
  struct Entry {
    const Command* command = nullptr;
    QAction* action = nullptr;
  };
  void AddMenu(QMenuBar& bar, const Command& command);
  void AddEntry(const Command& command);
  void Show(const Entry& entry) const;

  Owner owner_;
  // All owned by the bar and its menus.
  QHash<QString, QMenu*> menus_;
  QHash<QString, Entry> entries_;
  QHash<QKeySequence, QAction*> keys_;
};

}  // namespace quillane
