#include "files/new_proposal.h"

#include "editing/areas.h"
#include "editing/navigation.h"
#include "editing/selection.h"
#include "editing/totals_commands.h"
#include "files/changes.h"
#include "files/event_file.h"
#include "files/format_file.h"
#include "files/property_file.h"
#include "model/frame.h"
#include "model/report.h"
#include "model/selection.h"
#include "pages/defaults.h"
#include "pages/fonts.h"
#include "pages/labels.h"
#include "pages/show_document.h"
#include "pages/titles.h"
#include "platform/files.h"
#include "ui/desk.h"

namespace quillane {

namespace {

// One step of the way to a blank proposal.  A step that fails is reported and costs itself and nothing else.
template <class Body>
void Step(Body&& body) {
  if (!Guarded("StartNewFile", std::forward<Body>(body))) editing.NewFile = false;
}

bool MayEndFormatSession() {
  if (!format.FormatSessionActive) return true;
  if (AskYesNo(QStringLiteral(
                   "Proceeding with this action will end the editing session of your file format. Continue?"),
               QStringLiteral("Ending Format Editing")))
    return true;
  Tell(QStringLiteral("Resume Editing."));
  return false;
}

QString DefaultSubTitle(const QString& kind) {
  if (!prefs.PageTitles.isEmpty()) return prefs.PageTitles;
  return prefs.CompanyName + QStringLiteral(" - ") + kind + QStringLiteral(" Proposal - ");
}

// Nothing of the last proposal reaches the next but what belongs to the run: the mode, and that Save As was
// used.
void ForgetFile() {
  ProposalState blank;
  blank.Mode = proposal.Mode;
  blank.SavingAs = proposal.SavingAs;
  blank.SubTitleText = DefaultSubTitle(QStringLiteral("Event"));
  blank.CurrentFolder = prefs.ProposalFolder;
  proposal = std::move(blank);
  EnableMenu("mnuFileDelete", false);
  EnableMenu("mnuFileRestoreFromBackup", false);
  frame()["lblDir"].SetCaption(QStringLiteral("Current Folder = ") + proposal.CurrentFolder);
}

void ForgetEditing() {
  editing.CurrentPage = 0;
  editing.CurrentArea = 0;
  editing.KeysSinceBackup = 0;
  ClearSelection();
  selection = {};
  editing.MovingContents = editing.UndoAvailable = false;
  editing.RecalcPending = editing.RecalcMarked = false;
  editing.TextOverflowing = editing.PushPending = editing.PushKeepCaret = editing.PushMoveCaret = false;
  editing.DateWarningGiven = false;
  labelEdit = {};
}

// The preferred font of the areas; a setting that is missing leaves the system's own.
void TakeUserFont() {
  UserFont font;
  if (!prefs.DefaultFont.FontName.isEmpty()) font.FontName = prefs.DefaultFont.FontName;
  if (prefs.DefaultFont.FontSize > 0) font.FontSize = prefs.DefaultFont.FontSize;
  font.FontColor = prefs.DefaultFont.FontColor;
  font.FontItalic = prefs.DefaultFont.FontItalic;
  proposal.UDP = font;
  ApplyUserFont();
  SetMyFonts(page(5));
  SetMyFonts(page(CopyOfPage6));
}

bool FormatFills(int pageIndex, int area) {
  return pageIndex < ItemPages && format.FormatTextRec[pageIndex][area].HasFormatText;
}

void Rest(Control& box, Color resting) {
  box.SetBackColor(editing.Focus == &box ? colors::Cyan : resting);
}

void BlankAreas(Page& target) {
  for (Control& area : target.txt) {
    Rest(area, colors::Grey);
    if (FormatFills(target.pageIndex, area.Index())) continue;
    area.SetText(QString());
    area.SetFontBold(false);
  }
  for (auto* columns : {&target.txtQty, &target.txtAmt})
    for (Control& box : *columns) Rest(box, colors::LightGrey);
  target.lastFocused = 0;
}

void HideMarks(Page& target) {
  for (Control& label : target.lbl) {
    Unmark(label);
    label.SetShown(!target.IsItemPage() || label.Caption() != prefs.CurrencySymbol);
  }
  for (Control& mark : target.imgNoTax) mark.SetShown(false);
}

void ResetStatus() {
  ShowRunningSubTotal();
  MarkTotalsFresh();
  frame()["lblHighestPage"].SetCaption(QStringLiteral("Available Pages = 6"));
  ShowFootnoteMark(false);
}

void TakeDefaultFormat(bool load) {
  if (!load) return;
  const QString& path = prefs.DefaultFileFormat;
  const qsizetype folderEnd =
      std::max(path.lastIndexOf(QLatin1Char('\\')), path.lastIndexOf(QLatin1Char('/'))) + 1;
  format.FormatFolder = path.left(folderEnd);
  format.FormatName = path.mid(folderEnd);
  format.FormatIsOpen = true;
}

void BlankPages() {
  Step([] {
    if (!editing.StartingUp) ShowDefaultPages();
  });
  Step(TakeUserFont);
  Step([] {
    for (int window = 0; window < PageCount; ++window) {
      BlankAreas(page(window));
      HideMarks(page(window));
    }
  });
  Step(ResetStatus);
}

void RebuildColumns() {
  if (!editing.ColumnRebuild) return;
  editing.ColumnRebuild = false;
  for (int window = 0; window < ItemPages; ++window) LoadColumns(page(window));
}

void ShowWeddingWords() {
  proposal.SubTitleText = DefaultSubTitle(QStringLiteral("Wedding"));
  Control& date = page(0).lbl[9];
  Control& time = page(0).lbl[10];
  date.SetCaption(QStringLiteral("Wedding Date"));
  time.SetCaption(QStringLiteral("Wedding Time"));
  time.SetLeft(9810);
  FindHighestPage();
  UpdatePageNumbers();
}

}  // namespace

bool StartNewFile() {
  const Scoped newFile(editing.NewFile, true);
  if (desk().WindowIsOpen(QStringLiteral("frmNotes"))) desk().CloseWindow(QStringLiteral("frmNotes"));
  if (!MayEndFormatSession()) return false;
  const bool loadFormat = DefaultFormatApplies();
  ForgetFile();
  Step([] { UpdateEventNameLabels(); });
  frame().form.caption = QStringLiteral("Quillane");
  ForgetEditing();
  // A format outlives the proposals that are written on it; without one its layer only holds what the last
  // proposal left there.
  if (!format.FormatIsOpen) ForgetFormat();
  {
    const Scoped rebuilding(editing.RebuildingPages, true);
    BlankPages();
    TakeDefaultFormat(loadFormat);
    Step([] {
      if (format.FormatIsOpen) OpenFormatFile();
    });
    Step(LoadLogo);
  }
  Step([] {
    FindHighestPage();
    UpdatePageNumbers();
  });
  proposal.Saved = ReadPages();
  format.FormatLines = FormatLinesNow();
  Step([] { UpdatePageButtons(0); });
  Step(RebuildColumns);
  SetEditMenuState();
  return true;
}

bool PromptSaveChanges() {
  TakeFocusedAmount();
  if (!ProposalHasChanged()) return true;
  const Answer answer =
      desk().MessageBox(QStringLiteral("Some text has been changed. Do you want to save the changes?"),
                        QStringLiteral("File Properties have been Changed"), Buttons::YesNoCancel);
  if (answer == Answer::No || (answer == Answer::Yes && SaveEventFile())) return true;
  editing.ActionCancelled = true;
  return false;
}

bool MayLeaveProposal() {
  PromptSaveChanges();
  const bool cancelled = editing.ActionCancelled;
  editing.ActionCancelled = false;
  return !cancelled;
}

void NewEventCommand() {
  if (!MayLeaveProposal() || !StartNewFile()) return;
  if (!DefaultFormatApplies() && !format.FormatIsOpen && !terms.FileLoaded)
    terms.FileName = QStringLiteral("Event Terms.fut");
}

void NewWeddingCommand() {
  if (!MayLeaveProposal()) return;
  proposal.Mode = QStringLiteral("Wedding");
  if (!StartNewFile()) return;
  if (!DefaultFormatApplies()) ShowWeddingWords();
  if (!terms.FileLoaded) terms.FileName = QStringLiteral("Wedding Terms.fut");
}

}  // namespace quillane
