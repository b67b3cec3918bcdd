#include "files/format_commands.h"

#include "editing/totals_commands.h"
#include "files/changes.h"
#include "files/file_dialog.h"
#include "files/format_file.h"
#include "files/new_proposal.h"
#include "model/proposal.h"
#include "model/report.h"
#include "platform/files.h"
#include "settings/preferences.h"
#include "ui/desk.h"

namespace quillane {

namespace {

bool AnythingToLose() {
  if (ProposalHasChanged()) return true;
  return format.FormatIsOpen && FormatLinesNow() != format.FormatLines;
}

void StartWithoutFormat() {
  ForgetFormat();
  format.DefaultSetAside = true;
  StartNewFile();
}

bool IsDefault(const QString& path) {
  if (prefs.DefaultFileFormat.isEmpty() || !prefs.LoadDefaultFormat) return false;
  return ResolvePath(prefs.DefaultFileFormat).compare(ResolvePath(path), Qt::CaseInsensitive) == 0;
}

// A cancelled question stops this command and no later one.
bool MayGoOn() {
  const Scoped keep(editing.ActionCancelled, editing.ActionCancelled);
  return PromptSaveChanges();
}

}  // namespace

void ClearFormatCommand() {
  TakeFocusedAmount();
  if (AnythingToLose() && !AskYesNo(QStringLiteral("This action will clear all current data if\n"
                                                   "the data hasn't already been saved. Continue?"),
                                    QStringLiteral("Beginning New File Format")))
    return;
  StartWithoutFormat();
}

void OpenFormatCommand() {
  PromptSaveChanges();
  fileDialog.FormatMode = true;
  ShowFileDialog(QStringLiteral("*.wft"), QStringLiteral("Opening Format File..."));
}

void SaveFormatAsCommand() {
  const Scoped saveAs(format.FormatSaveAs, true);
  SaveFileFormat();
}

void DeleteFormatCommand() {
  if (!format.FormatIsOpen) return Tell(QStringLiteral("There's no Format File open."));
  if (!MayGoOn()) return;
  if (!AskYesNo(QStringLiteral("Are you sure you want to delete the shown Format?"),
                QStringLiteral("Deleting Format FIle")))
    return;
  const QString path = format.FormatFolder + format.FormatName;
  const bool wasDefault = IsDefault(path);
  if (!Guarded("mnuFileFormatDelete", [&] { RemoveFileIfThere(path); })) return;
  // Every start would report that the default is not there.
  if (wasDefault) StorePreference(QStringLiteral("Load Default Format:"), QStringLiteral("False"));
  StartWithoutFormat();
}

void DefaultFormatCommand() {
  const Scoped asDefault(format.FormatAsDefault, true);
  if (!SaveFileFormat()) return;
  format.DefaultSetAside = false;
  StorePreference(QStringLiteral("Load Default Format:"), QStringLiteral("True"));
}

}  // namespace quillane
