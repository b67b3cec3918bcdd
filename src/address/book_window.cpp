#include "address/book_window.h"

#include <initializer_list>

#include "address/batch.h"
#include "address/book.h"
#include "address/company_info.h"
#include "model/report.h"
#include "model/upcalls.h"
#include "ui/desk.h"

namespace quillane {

namespace {

AddressBook& book = addressBook;

void Enable(std::initializer_list<const char*> names, bool enabled) {
  for (const char* name : names) EnableAddressMenu(QString::fromLatin1(name), enabled);
}

void EnableLoadMenuOptions() {
  Enable({"mnuFile", "mnuFileOpen", "mnuFileNew", "mnuFileOpenBusiness", "mnuFileOpenClientele", "mnuEdit",
          "mnuEditFind", "mnuOptions", "mnuTools", "mnuToolsImportBatch", "mnuToolsImportContacts",
          "mnuToolsExportContacts"},
         true);
}

void LoadAddressWindow() {
  book.Caption = QStringLiteral("Address Book/") + book.AddressFileName;
  ClearRecordFields();
  SetBookLabels();
  book.EnabledMenus.clear();
  EnableLoadMenuOptions();
}

template <class Open>
void SwitchTo(const char* command, Open&& open) {
  Guarded(command, [&open] {
    ClearRecordFields();
    open();
    NewRecord();
    EnableMerges();
  });
}

}  // namespace

void OpenAddressBookCommand() {
  if (!MayShowAddressBook()) return;
  Guarded("mnuFileOpenAddressBook_Click", [] {
    if (ShowNewRecord()) upcalls().ShowAddresses();
  });
}

bool MayShowAddressBook() {
  if (!book.CompanyInfoMode) return true;
  Tell(QStringLiteral("The Company Information Window must be closed before you open the Address Book."));
  return false;
}

bool ShowNewRecord() {
  if (!MayLeaveRecord()) return false;
  CancelImport();
  return ShowAddressBook() && NewRecord();
}

bool ShowAddressBook() {
  if (!book.AddressBookOpen) LoadAddressWindow();
  if (!OpenPersonalBook()) return false;
  book.AddressBookOpen = true;
  desk().ShowWindow(QStringLiteral("frmAddress"), Modality::Modeless);
  return true;
}

void UnloadAddressWindow() {
  addressBook = AddressBook();
  batch = BatchImport();
}

void EnableAddressMenu(const QString& name, bool enabled) {
  if (enabled) {
    book.EnabledMenus.insert(name);
  } else {
    book.EnabledMenus.remove(name);
  }
}
bool AddressMenuEnabled(const QString& name) {
  return book.EnabledMenus.contains(name);
}

void EnableTextChangeMenuOptions() {
  Enable({"mnuFileSave", "mnuFileOpen", "mnuFilePrint", "mnuOptCopyAll", "mnuOptCopyNameAddress"}, true);
}

void EnableMerges() {
  const bool person = CurrentBook() == Book::Personal;
  Enable({"mnuOptMerge", "mnuOptMergeGroom", "mnuOptMergeExit", "mnuOptMergeGroomExit"}, person);
  Enable({"mnuOptMergeCeremony", "mnuOptMergeReception"}, !person);
}

void SwitchToPersonalBookCommand() {
  SwitchTo("mnuFileOpenClientele_Click", OpenPersonalBook);
}
void SwitchToCompanyBookCommand() {
  SwitchTo("mnuFileOpenBusiness_Click", OpenCompanyBook);
}

void NewRecordCommand() {
  NewRecord();
}

void DeleteRecordCommand() {
  if (book.lstNames.ListIndex == -1) return Tell(QStringLiteral("No Record Selected"));
  DeleteRecord();
}

SaveResult SaveRecordCommand() {
  if (book.CompanyInfoMode) return SaveCompanyInfo() ? SaveResult::Saved : SaveResult::Failed;
  for (AddressField& txt : book.txt) txt.SelLength = 0;
  return SaveRecord();
}

void FindCommand() {
  book.FindAgainFlag = false;
  FindInBook();
}
void FindAgainCommand() {
  book.FindAgainFlag = true;
  FindInBook();
}

void ChooseNameCommand(int row) {
  book.lstNames.ListIndex = row;
  ActivateCurrentRecord();
}

}  // namespace quillane
