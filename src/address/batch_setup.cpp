// The set-up panel of the batch import.
#include <algorithm>

#include "address/batch.h"
#include "address/book.h"
#include "address/book_window.h"
#include "model/report.h"
#include "ui/desk.h"

namespace quillane {

namespace {

QString BookWord(Book book) {
  return book == Book::Personal ? QStringLiteral("Personal") : QStringLiteral("Business");
}

Book OtherBook(Book book) {
  return book == Book::Personal ? Book::Company : Book::Personal;
}

Answer AskAboutImport(const QString& question) {
  return desk().MessageBox(question, QStringLiteral("Importing Batch Records"), Buttons::YesNoCancel);
}

QString Instructions() {
  return QStringLiteral(
      "Select the appropriate categories from the list below on the left, then click the type of Batch "
      "Record List that was copied to memory (a sample of the list format types is displayed in the Sample "
      "List Area). Your Batch List must be in similar order as shown... Name first, Email last (if used). "
      "Finally, click Begin Batch Process Now to begin the process. You can quit at any time by pressing End "
      "Batch Process.");
}

void EnableMenuBar(bool enabled) {
  for (const char* name : {"mnuEdit", "mnuFile", "mnuOptions", "mnuTools"})
    EnableAddressMenu(QString::fromLatin1(name), enabled);
}

void LeaveSetUp() {
  batch.SetUpShows = false;
  EnableMenuBar(true);
}

void RefreshLabelCaptions(Book book) {
  for (int i = 0; i < CategoryCount; ++i) batch.lblFormat[i] = CategoryCaption(book, i);
  addressBook.Caption = QStringLiteral("Beginning Batch Import/%1 Address Book").arg(BookWord(book));
}

void BeginSetUp(Book book) {
  batch.lblMain = Instructions();
  if (!OpenBatchBook(book)) return;
  RefreshLabelCaptions(book);
  batch.CategorySelected.fill(true);
  batch.CategoryLast = CategoryCount - 1;
  EnableMenuBar(false);
  batch.SetUpShows = true;
  ChooseListType(ListType::Lines);
}

QStringList SelectedCaptions() {
  QStringList captions;
  for (int i = 0; i < CategoryCount; ++i)
    if (batch.CategorySelected[i]) captions << batch.lblFormat[i];
  return captions;
}

}  // namespace

std::optional<Book> AskForBatchBook() {
  const Book open = CurrentBook();
  const Answer first =
      AskAboutImport(QStringLiteral("This will save the Batch Records into the %1 Address Book. Continue?")
                         .arg(BookWord(open)));
  if (first == Answer::Yes) return open;
  if (first == Answer::Cancel) return std::nullopt;
  const Answer second = AskAboutImport(
      QStringLiteral("Import the Records into the %1 Address Book instead? Click Cancel to exit.")
          .arg(BookWord(OtherBook(open))));
  if (second == Answer::Yes) return OtherBook(open);
  return std::nullopt;
}

bool OpenBatchBook(Book book) {
  ClearRecordFields();
  const bool opened = book == Book::Personal ? OpenPersonalBook() : OpenCompanyBook();
  return opened && NewRecord();
}

void ImportBatchCommand() {
  Guarded("mnuToolsImportBatch_Click", [] {
    if (!MayLeaveRecord()) return;
    if (const std::optional<Book> book = AskForBatchBook()) BeginSetUp(*book);
  });
}

void ToggleCategory(int index) {
  if (index == category::Name) return Tell(QStringLiteral("Name cannot be de-selected."));
  bool& selected = batch.CategorySelected[index];
  selected = !selected;
  batch.CategoryLast = static_cast<int>(std::ranges::count(batch.CategorySelected, true)) - 1;
}

void ChooseListType(ListType type) {
  batch.optList = type;
  if (type == ListType::MailProgram) batch.CsvMode = true;
  RefreshFormatListTypes(type);
}

void RefreshSampleCommand() {
  if (batch.optList != ListType::MailProgram) RefreshFormatListTypes(batch.optList);
}

void RefreshFormatListTypes(ListType type) {
  const QString lineBreak = QStringLiteral("\r\n");
  if (type == ListType::MailProgram) {
    const QString header =
        QStringLiteral("First Name,Last Name,Middle Name,Name,Nickname,E-mail Address,etc.");
    batch.txtSample = header + lineBreak + header;
    return;
  }
  const QString record = SelectedCaptions().join(QString::fromLatin1(FieldSeparator(type)));
  const bool lines = type == ListType::Lines;
  batch.txtSample =
      record + (lines ? lineBreak + lineBreak : lineBreak) + record + (lines ? lineBreak : QString());
}

void CancelImport() {
  if (!batch.SetUpShows) return;
  ExitImport();
  batch.CsvMode = false;
}

void ExitImport() {
  LeaveSetUp();
  ChooseListType(ListType::Lines);
}

void BeginBatchProcess() {
  LeaveSetUp();
  WalkClipboard();
}

}  // namespace quillane
