#include "windows/menus.h"

#include "app/commands.h"
#include "editing/areas.h"
#include "model/frame.h"

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

Menus::Menus(QMenuBar& bar) {
  for (const Command& command : Commands()) {
    if (command.isMenu)
      AddMenu(bar, command);
    else if (!*command.name)
      Menu(QString::fromLatin1(command.parent))->addSeparator();
    else
      AddEntry(command);
  }
  // What the text menu offers depends on the area and on what is selected in it at this moment.
  if (QMenu* text = Menu(QStringLiteral("mnuEditTextBox")))
    QObject::connect(text, &QMenu::aboutToShow, text, [] { SetEditMenuState(); });
}

void Menus::AddMenu(QMenuBar& bar, const Command& command) {
  const QString name = QString::fromLatin1(command.name), caption = QString::fromLatin1(command.caption);
  QMenu* parent = Menu(QString::fromLatin1(command.parent));
  QMenu* menu = parent ? parent->addMenu(caption) : bar.addMenu(caption);
  menu->setObjectName(name);
  menu->menuAction()->setObjectName(name);
  menus_.insert(name, menu);
  actions_.insert(name, menu->menuAction());
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
  QObject::connect(action, &QAction::triggered, action, [action, name] {
    // The check mark is the rule's to set, not the click's.
    if (action->isCheckable()) action->setChecked(frame()[name].Checked());
    RunCommand(name);
  });
  actions_.insert(name, action);
  Follow(frame()[name]);
}

void Menus::Follow(const Control& entry) {
  QAction* action = actions_.value(entry.Array());
  if (!action) return;
  action->setText(WithOneAccessKey(entry.Caption()));
  action->setVisible(entry.Visible());
  action->setEnabled(entry.Enabled() && (action->menu() || CommandExists(entry.Array())));
  if (action->isCheckable()) action->setChecked(entry.Checked());
}

bool Menus::Owns(const QKeySequence& key) const {
  const QAction* action = keys_.value(key);
  return action && action->isEnabled() && action->isVisible();
}

}  // namespace quillane
