#include "windows/menus.h"

namespace quillane {

namespace {

/// An entry answers to its first access key; a second mark would be shown and read out as a letter.
QString WithOneAccessKey(QString caption) {
  const qsizetype first = caption.indexOf(QLatin1Char('&'));
  for (qsizetype next = caption.lastIndexOf(QLatin1Char('&')); next > first;
       next = caption.lastIndexOf(QLatin1Char('&')))
    caption.remove(next, 1);
  return caption;
}

}  // namespace

Menus::Menus(QMenuBar& bar, const std::vector<Command>& table, Owner owner) : owner_(std::move(owner)) {
  for (const Command& command : table) {
    if (command.isMenu)
      AddMenu(bar, command);
    else if (!*command.name)
      Menu(QString::fromLatin1(command.parent))->addSeparator();
    else
      AddEntry(command);
  }
}

void Menus::AddMenu(QMenuBar& bar, const Command& command) {
  const QString name = QString::fromLatin1(command.name), caption = QString::fromLatin1(command.caption);
  QMenu* parent = Menu(QString::fromLatin1(command.parent));
  QMenu* menu = parent ? parent->addMenu(caption) : bar.addMenu(caption);
  menu->setObjectName(name);
  menu->menuAction()->setObjectName(name);
  menus_.insert(name, menu);
  entries_.insert(name, {&command, menu->menuAction()});
}

void Menus::AddEntry(const Command& command) {
  const QString name = QString::fromLatin1(command.name);
  QAction* action =
      Menu(QString::fromLatin1(command.parent))->addAction(QString::fromLatin1(command.caption));
  action->setObjectName(name);
  action->setMenuRole(QAction::NoRole);
  action->setCheckable(command.checkable);
  if (*command.key) {
    const QKeySequence key(QString::fromLatin1(command.key));
    action->setShortcut(key);
    // Holding a key down must not print the proposal again and again.
    action->setAutoRepeat(false);
    keys_.insert(key, action);
  }
  const Entry entry{&command, action};
  QObject::connect(action, &QAction::triggered, action, [this, entry] {
    // The check mark is the rule's to set, not the click's.
    Show(entry);
    owner_.run(*entry.command);
  });
  entries_.insert(name, entry);
  Show(entry);
}

void Menus::Show(const Entry& entry) const {
  const EntryState state = owner_.stateOf(*entry.command);
  entry.action->setText(WithOneAccessKey(state.caption));
  entry.action->setVisible(state.visible);
  entry.action->setEnabled(state.enabled && (entry.action->menu() || entry.command->run));
  if (entry.action->isCheckable()) entry.action->setChecked(state.checked);
}

void Menus::Follow(const QString& name) {
  if (const Entry entry = entries_.value(name); entry.action) Show(entry);
}

void Menus::FollowAll() {
  for (const Entry& entry : entries_) Show(entry);
}

bool Menus::Owns(const QKeySequence& key) const {
  const QAction* action = keys_.value(key);
  return action && action->isEnabled() && action->isVisible();
}

}  // namespace quillane
