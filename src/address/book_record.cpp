// The record on the screen: shown, changed, saved, begun anew.
#include <algorithm>
#include <functional>
#include <utility>

#include "address/book.h"
#include "address/book_file.h"
#include "address/book_window.h"
#include "model/proposal.h"
#include "model/report.h"
#include "ui/desk.h"

namespace quillane {

namespace {

AddressBook& book = addressBook;

/// txt_Change.
void TextChanged(int index) {
  if (book.FieldsClearing) return;
  if (book.CompanyInfoMode) {
    book.CompanyInfoChanged = true;
    return;
  }
  if (!TrimBlanks(book.txt[field::Name].Text).isEmpty()) {
    EnableTextChangeMenuOptions();
    EnableMerges();
  }
  const QString& text = book.txt[index].Text;
  if (book.RecordLoading) {
    book.FieldOriginal[index] = text;
    return;
  }
  book.FieldChanged[index] = text != book.FieldOriginal[index];
  UpdateFieldFlags();
}

/// Writing an equal text changes nothing.
void WriteText(int index, const QString& text) {
  AddressField& txt = book.txt[index];
  if (txt.Text == text) return;
  txt.Text = text;
  txt.SelStart = txt.SelLength = 0;
  TextChanged(index);
}

void ShowField(int index) {
  AddressField& txt = book.txt[index];
  if (!book.FieldChanged[index]) {
    txt.BackColor = colors::White;
    txt.ToolTipText.clear();
    return;
  }
  const int limit = FieldWidth(index);
  const bool tooLong = txt.Text.size() > limit;
  txt.BackColor = tooLong ? colors::Red : colors::Cyan;
  txt.ToolTipText = tooLong
                        ? QStringLiteral("Maximum characters for this field = %1. Please adjust.").arg(limit)
                        : QStringLiteral("Text in this field has been Changed");
}

void LoadFields() {
  const Scoped loading(book.RecordLoading, true);
  const FieldTexts texts = TextsOf(RecordFromBytes(book.RecordAsRead));
  for (int i = 0; i < field::Count; ++i) WriteText(i, texts[i]);
}

void ClearChangeMarks() {
  book.FieldChanged.fill(false);
  UpdateFieldFlags();
  book.NewRecordFlag = book.NameChanged = false;
}

/// The number under which the record now stands in the file.
int WriteRecord(const QByteArray& bytes) {
  const bool asNew = book.NewRecordFlag || book.NameChanged;
  if (!asNew && OverwriteRecord(BookPath(), book.CurrentRecord, book.RecordAsRead, bytes))
    return book.CurrentRecord;
  return AppendRecord(BookPath(), bytes);
}

void ReopenBook() {
  if (CurrentBook() == Book::Company) {
    OpenCompanyBook();
  } else {
    OpenPersonalBook();
  }
}

QString TitleOf(Book which) {
  return which == Book::Personal ? QStringLiteral(" Personal Address Book/")
                                 : QStringLiteral(" Company Address Book/");
}

}  // namespace

void UpdateFieldFlags() {
  book.NameChanged = book.FieldChanged[field::Name];
  book.RecordChanged = std::ranges::any_of(book.FieldChanged, std::identity());
  book.cmdSaveBackColor = book.RecordChanged ? colors::Cyan : colors::ButtonFace;
  for (int i = 0; i < field::Count; ++i) {
    if (!book.RecordChanged) book.FieldOriginal[i] = book.txt[i].Text;
    ShowField(i);
  }
}

void SetField(int index, const QString& text) {
  WriteText(index, FieldInput(index, text));
}

AddressRecord RecordToSave(const FieldTexts& texts) {
  AddressRecord record = RecordOf(texts);
  QByteArray& name = record.Field[field::Name];
  name = TrimmedBytes(name).toByteArray().leftJustified(FieldWidth(field::Name), ' ');
  return record;
}

bool HasName(const AddressRecord& record) {
  return !TrimmedBytes(record.Field[field::Name]).isEmpty();
}

FieldTexts TextsOnScreen() {
  FieldTexts texts;
  for (int i = 0; i < field::Count; ++i) texts[i] = book.txt[i].Text;
  return texts;
}

void ShowRecord() {
  try {
    book.RecordAsRead = ReadRecord(BookPath(), book.CurrentRecord);
    book.WalkRecordShows = false;
    LoadFields();
    ClearChangeMarks();
    book.Caption = book.BookTitle + book.txt[field::Name].Text +
                   QStringLiteral("/Record %1 of %2 Displayed").arg(book.CurrentRecord).arg(book.RecordCount);
    if (CurrentBook() == Book::Personal && !book.txt[field::Name].Text.isEmpty()) EnableMerges();
    EnableAddressMenu(QStringLiteral("mnuFileDelete"), true);
  } catch (const RuntimeError& error) {
    Tell(QString::number(error.Number()) + QStringLiteral(": ") + error.Description());
  }
}

SaveResult SaveRecord() {
  const AddressRecord record = RecordToSave(TextsOnScreen());
  if (!HasName(record)) {
    Tell(QStringLiteral("Cannot save record... no name given."));
    return SaveResult::Refused;
  }
  int number = 0;
  if (!Guarded("SaveRecord", [&] { number = WriteRecord(BytesOf(record)); })) return SaveResult::Failed;
  book.CurrentRecord = number;
  ClearChangeMarks();
  const bool walkRecord = book.WalkRecordShows;
  Guarded("SaveRecord", ReopenBook);
  ShowRecord();
  book.WalkRecordShows = walkRecord;
  return SaveResult::Saved;
}

void ClearRecordFields() {
  const Scoped clearing(book.FieldsClearing, true);
  for (int i = 0; i < field::Count; ++i) WriteText(i, QString());
  book.FieldChanged.fill(false);
  UpdateFieldFlags();
}

bool NewRecord() {
  if (!MayLeaveRecord()) return false;
  book.BookTitle = TitleOf(CurrentBook());
  book.NewRecordFlag = true;
  book.WalkRecordShows = false;
  EnableAddressMenu(QStringLiteral("mnuFileDelete"), false);
  ClearRecordFields();
  book.Caption =
      book.BookTitle + QStringLiteral("Beginning New Record: ") + QString::number(book.RecordCount) +
      (book.RecordCount == 1 ? QStringLiteral(" Record Exists") : QStringLiteral(" Records Exist"));
  book.FocusField = field::Name;
  book.FocusCaret = 0;
  book.FocusWanted = true;
  return true;
}

void PromptSaveRecord() {
  const Answer answer = desk().MessageBox(
      QStringLiteral("The current Record has been changed. Do you want to save the changes?"),
      QStringLiteral("Record Has Changed"), Buttons::YesNoCancel);
  book.SaveCancelled = answer == Answer::Cancel;
  if (answer == Answer::Yes) book.SaveCancelled = SaveRecord() != SaveResult::Saved;
  if (answer != Answer::No) return;
  book.FieldChanged.fill(false);
  UpdateFieldFlags();
}

bool MayLeaveRecord() {
  if (!book.RecordChanged) return true;
  PromptSaveRecord();
  return !std::exchange(book.SaveCancelled, false);
}

}  // namespace quillane
