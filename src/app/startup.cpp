#include "app/startup.h"

#include <QStringList>
#include <cstdint>
#include <utility>

#include "app/commands.h"
#include "app/preferences.h"
#include "files/event_file.h"
#include "files/file_dialog.h"
#include "files/format_file.h"
#include "files/new_proposal.h"
#include "files/property_file.h"
#include "files/small_files.h"
#include "model/focus.h"
#include "model/frame.h"
#include "model/proposal.h"
#include "model/report.h"
#include "model/upcalls.h"
#include "pages/areas.h"
#include "pages/changes.h"
#include "pages/defaults.h"
#include "pages/grid.h"
#include "pages/totals.h"
#include "print/preview.h"
#include "print/print.h"
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
  proposal.SubTitle = SubtitleAtStart();
  ConvertOldFiles();
  desk().ServeEvents();
  SetUpPages();
  ShowDefaultPages();
  StartNewFile();
}

/// A control of the frame of an array: "imgPage(3)".
Control& PageButton(int window) {
  return frame()[QStringLiteral("imgPage(%1)").arg(window)];
}

enum class ButtonFace { Plain, InFront };
void ShowPageButton(int window, ButtonFace face) {
  static const QStringList faces = {QStringLiteral("page-1"),   QStringLiteral("page-2"),
                                    QStringLiteral("page-3"),   QStringLiteral("page-4"),
                                    QStringLiteral("page-5"),   QStringLiteral("page-totals"),
                                    QStringLiteral("page-copy")};
  Picture picture;
  picture.source = QStringLiteral(":/icons/") + faces[window] +
                   QLatin1String(face == ButtonFace::InFront ? "-front.svg" : ".svg");
  PageButton(window).SetPicture(picture);
}

void ReturnScrollToTop() {
  if (frame().VScroll1.Value == 0) return;
  editing.SkipScrollChange = true;
  frame().VScroll1.Value = 0;
  // Nobody listens where there is no window; the next real change must not be the one that is skipped.
  editing.SkipScrollChange = false;
}

void TakePage(int window) {
  Page& front = page(window);
  ShowPageButton(window, ButtonFace::InFront);
  editing.FrontWindow = window;
  ReAdjustScrollBar(window);
  if (window != CopyOfPage6) {
    editing.CurrentForm = &front;
    editing.CurrentPage = window;
  }
  editing.CurrentFormName = front.form.name;
  editing.LastTextIndex = front.LastText();
  editing.LastLabelIndex = front.LastLabel();
  ShowPageControls(front);
  for (const char* entry : {"mnuEditLabelDeselectAll", "mnuEditLabelSelectAll", "mnuEditLabelProps"})
    EnableEntry(QString::fromLatin1(entry), window != CopyOfPage6);
  if (frame().pageBroughtToFront) frame().pageBroughtToFront(window);
  FocusPage(front);
}

/// Truncated as the bar's 16-bit numbers are.
int Truncated(float twips) {
  return static_cast<std::int16_t>(static_cast<int>(twips));
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

void UpdatePageButtons(int window) {
  TakeFocusedAmount();
  Guarded("UpdatePageButtons", [window] {
    if (!editing.StartingUp && InPreview()) {
      MarkPreview(Preview::Ended);
      upcalls().ResumeEditing();
    }
    for (int k = 0; k < PageCount; ++k) ShowPageButton(k, ButtonFace::Plain);
    ReturnScrollToTop();
    EnableEntry(QStringLiteral("mnuFilePrintPreview"), true);
    EnableEntry(QStringLiteral("mnuFileResume"), false);
    if (window >= 0 && window < PageCount) TakePage(window);
  });
}

void ReAdjustScrollBar(int window) {
  const float height = frame().clientHeight;
  ScrollBar& bar = frame().VScroll1;
  bar.Max = qMax(0, Truncated(sheet::Height - height + 30));
  bar.LargeChange = Truncated(height);
  bar.SmallChange = Truncated(height / 2);
  if (bar.Value > bar.Max) bar.Value = bar.Max;
  ClearGrid(page(window));
  // The sheet in front stands where the bar is; it is at the top whenever a page has just come to the front.
  if (window == editing.FrontWindow || bar.Value == 0) frame().sheetTop = static_cast<float>(-bar.Value);
  if (frame().sheetMoved) frame().sheetMoved();
}

void FrameResized(float clientHeight) {
  frame().clientHeight = clientHeight;
  editing.ScreenScale = clientHeight / sheet::Height;
  ReAdjustScrollBar(0);
}

bool ScrollChanged(int value) {
  const bool skipped = std::exchange(editing.SkipScrollChange, false);
  if (!skipped) frame().sheetTop = static_cast<float>(-value);
  if (frame().sheetMoved) frame().sheetMoved();
  return !skipped;
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
  calls.UpdatePageButtons = UpdatePageButtons;
  calls.ReAdjustScrollBar = ReAdjustScrollBar;
  calls.BackupThisFile = BackupThisFile;
  calls.SaveEventFile = [] { SaveEventFile(); };
  calls.SaveTaxRate = SaveTaxRate;
  calls.PropertyLinesNow = PropertyLinesNow;
  calls.OpenFormat = OpenFormatFile;
  calls.CommandExists = CommandExists;
  calls.ResumeEditing = ResumeEditing;
  calls.StorePreference = [](const QString& key, const QString& value) {
    return StorePreference(key, value) == Saved::Yes;
  };
  calls.StorePreferences = [](const PreferenceValues& values) {
    return StorePreferences(values) == Saved::Yes;
  };
  calls.SetEditMenuState = [](const QString&) { SetEditMenuState(); };
  frame().VScroll1.Value.changed = [](int value) { ScrollChanged(value); };
  InstallPageHandlers();
}

}  // namespace quillane
