#include "app/startup.h"

#include <QStringList>
#include <cstdint>
#include <utility>

#include "address/book_window.h"
#include "app/commands.h"
#include "editing/areas.h"
#include "editing/grid.h"
#include "editing/navigation.h"
#include "editing/totals_commands.h"
#include "files/changes.h"
#include "files/event_file.h"
#include "files/file_dialog.h"
#include "files/format_file.h"
#include "files/new_proposal.h"
#include "files/property_file.h"
#include "model/focus.h"
#include "model/frame.h"
#include "model/proposal.h"
#include "model/report.h"
#include "model/upcalls.h"
#include "pages/defaults.h"
#include "print/preview.h"
#include "print/print.h"
#include "settings/preferences.h"
#include "settings/tax_rate.h"
#include "ui/desk.h"

namespace quillane {

namespace {

constexpr int WideScreen = 1024;  // pixels; on less there is no room for the terms window beside a sheet
const QString TermsWindow = QStringLiteral("frmFUT");

void DisableAtStart() {
  for (const char* entry :
       {"mnuAdminConvert", "mnuAdminPrintAll", "mnuAdminRecalc", "mnuEditTextDeselect", "mnuEditTextMoveDown",
        "mnuEditTextMoveUp", "mnuEditTextPaste", "mnuEditTextUndo", "mnuFileRestoreFromBackup"})
    frame()[QString::fromLatin1(entry)].SetEnabled(false);
  frame()[QStringLiteral("mnuOptDoNotLockFmtTextBoxes")].SetChecked(true);
  editing.DoNotLockFormat = true;
}

QString SubtitleAtStart() {
  if (!prefs.PageTitles.isEmpty()) return prefs.PageTitles;
  return prefs.CompanyName + QStringLiteral(" - Event Proposal - ");
}

void ReadSettings() {
  if (!prefs.Read) GetUserPreferences();
  if (!printing.FontsLoaded) LoadTheFonts();
  GetTaxRate();
}

void LoadTerms() {
  if (!terms.FileLoaded) terms.FileName = QStringLiteral("Event Terms.fut");
  if (desk().ScreenWidth() < WideScreen) return;
  if (prefs.ShowFUT)
    desk().ShowWindow(TermsWindow, Modality::Modeless);
  else
    terms.AutoComplete = false;
}

void ShowFrameControls() {
  for (const char* button : {"cmdReCalc", "cmdTaxRate", "cmdClearMem"})
    frame()[QString::fromLatin1(button)].SetVisible(true);
  frame()[QStringLiteral("lblDir")].SetCaption(QStringLiteral("Current Folder = ") + prefs.ProposalFolder);
  frame()[QStringLiteral("lblTextPos")].SetVisible(printing.NoPrinter == 0);
}

void PreparePages() {
  proposal.SubTitleText = SubtitleAtStart();
  ConvertOldFiles();
  desk().ServeEvents();
  SetUpPages();
  ShowDefaultPages();
  StartNewFile();
}

}  // namespace

void LoadMainFrame() {
  const Scoped starting(editing.StartingUp, true);
  Guarded("MDIForm_Load", [] {
    ReadSettings();
    fileDialog.FileFilter = QStringLiteral("*.wwf");
    const Scoped rebuilding(editing.RebuildingPages, true);
    terms.AutoComplete = prefs.AutoCompleteWord;
    terms.AutoStart = prefs.AutoStartPosition;
    DisableAtStart();
    PreparePages();
    LoadTerms();
    SetFocus(page(0).txt[0]);
    printing.PrinterFontRatio =
        1;  // fonts scale freely here, so a printer gives the size that it was asked for
  });
  ShowFrameControls();
  for (const int window : {1, 2, 3, 4, 0}) LoadColumns(page(window));
}

bool MayExit() {
  TakeFocusedAmount();
  if (!ProposalHasChanged()) return true;
  const Answer answer =
      desk().MessageBox(QStringLiteral("The file has been changed. Do you want to save it?"),
                        QStringLiteral("Text has been Changed"), Buttons::YesNoCancel);
  // After a save the program stays open with the saved proposal; the next Exit finds nothing changed.
  if (answer == Answer::Yes) SaveEventFile();
  return answer == Answer::No;
}

void QuitApplication() {
  editing.Quitting = true;
  try {
    desk().CloseWindow(QStringLiteral("frmMain"));
  } catch (const std::exception&) {
    // The program ends whatever a closing window has to say.
  }
}

void ConnectLayers() {
  Upcalls& calls = upcalls();
  calls = {};
  calls.BackupThisFile = BackupThisFile;
  calls.ResumeEditing = ResumeEditing;
  checkedBooks = {};
  UnloadAddressWindow();
  frame().VScroll1.Value.changed = [](int value) { ScrollChanged(value); };
  InstallPageHandlers();
}

}  // namespace quillane
