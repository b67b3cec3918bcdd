#include "app/commands.h"

#include <QHash>

#include "editing/navigation.h"
#include "model/focus.h"
#include "model/frame.h"
#include "model/report.h"
#include "model/strip.h"

namespace quillane {

namespace {

const QHash<QString, const Command*>& ByName() {
  static const QHash<QString, const Command*> table = [] {
    QHash<QString, const Command*> built;
    for (const Command& command : Commands())
      if (*command.name) built.insert(QString::fromLatin1(command.name), &command);
    return built;
  }();
  return table;
}

/// The menu entry behind each button and image of the tool bar.
struct Shortcut {
  const char *control, *entry;
};
constexpr Shortcut ToolBar[] = {
    {"imgNew", "mnuFileNewEvent"},
    {"imgOpen", "mnuFileOpenEvent"},
    {"imgFootNotes", "mnuFileOpenFootnotes"},
    {"imgSave", "mnuFileSaveEvent"},
    {"imgSaveAs", "mnuFileSaveAs"},
    {"imgPrint", "mnuFilePrintAll"},
    {"imgSearch", "mnuEditFind"},
    {"imgSpellCheck", "mnuEditSpellCheck"},
    {"cmdTaxRate", "mnuOptSalesTax"},
    {"cmdReCalc", "mnuToolsRecalculate"},
    {"cmdPreview", "mnuFilePrintPreview"},
    {"cmdClearMem", "mnuEditTextDeselect"},
};

QString EntryBehind(const QString& control) {
  if (control == QLatin1String("cmdPreview") && InPreview()) return QStringLiteral("mnuFileResume");
  for (const Shortcut& shortcut : ToolBar)
    if (control == QLatin1String(shortcut.control)) return QString::fromLatin1(shortcut.entry);
  return {};
}

/// An entry is disabled with the menu that it stands in, whichever way it is asked for.
bool IsEnabled(const Command& command) {
  if (!frame()[QString::fromLatin1(command.name)].Enabled()) return false;
  const Command* menu = ByName().value(QString::fromLatin1(command.parent));
  return !menu || IsEnabled(*menu);
}

}  // namespace

bool CommandExists(const QString& name) {
  const Command* command = ByName().value(name);
  return command && command->run;
}

void BuildMenus() {
  for (const Command& command : Commands()) {
    if (!*command.name) continue;
    const auto kind =
        command.run || command.isMenu ? Frame::Entry::WithCommand : Frame::Entry::WithoutCommand;
    Control& entry =
        frame().AddMenu(QString::fromLatin1(command.name), QString::fromLatin1(command.caption), kind);
    entry.SetVisible(command.visible);
    entry.SetEnabled(command.enabled);
    entry.SetChecked(command.checked);
  }
  // A button whose command is not there yet must not look as if it worked.
  for (const Shortcut& shortcut : ToolBar)
    if (!CommandExists(QString::fromLatin1(shortcut.entry)))
      frame()[QString::fromLatin1(shortcut.control)].SetEnabled(false);
}

void RunCommand(const QString& name) {
  const Command* command = ByName().value(name);
  if (!command || !command->run || !IsEnabled(*command)) return;
  Guarded(command->name, command->run);
}

void FrameClicked(const QString& control) {
  Control& clicked = frame()[control];
  if (!clicked.Visible() || !clicked.Enabled()) return;
  if (control.startsWith(QLatin1String("imgPage("))) {
    UpdatePageButtons(control.mid(8, 1).toInt());
    return;
  }
  if (control.startsWith(QLatin1String("cmdStrip("))) {
    const int button = control.mid(9, 1).toInt();
    Guarded("cmdStrip_Click", [button] { PressStripButton(button); });
    return;
  }
  // Buttons take the focus as buttons do, so the area that had it is left; images do not.
  if (clicked.GetKind() == Kind::Button) Guarded("cmd_Click", [&] { SetFocus(clicked); });
  RunCommand(EntryBehind(control));
}

}  // namespace quillane
