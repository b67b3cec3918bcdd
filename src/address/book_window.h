// The commands of the address window that touch no proposal, and the states of its menus.
#pragma once
#include <QString>

#include "address/book.h"

namespace quillane {

/// mnuFileOpenAddressBook: a new record in the personal book.
void OpenAddressBookCommand();
/// False, after saying so, while the window shows the business's own details.
bool MayShowAddressBook();
/// Asks about a changed record, ends a set-up, and shows a new record in the personal book.  False for
/// Cancel.
bool ShowNewRecord();
/// Opens the window on the personal book.  False when the question about a changed record was answered with
/// Cancel.
bool ShowAddressBook();
/// Forgets all but which books this run has found; drops what was typed and not saved.
void UnloadAddressWindow();

/// The menu entries go by their names, "mnuFileDelete"; one that was never enabled is disabled.
void EnableAddressMenu(const QString& name, bool enabled);
bool AddressMenuEnabled(const QString& name);
void EnableTextChangeMenuOptions();
/// The merges that the open book allows: those into bride and groom, or those into ceremony and reception.
void EnableMerges();

/// mnuFileOpenClientele and mnuFileOpenBusiness.  What was typed and not saved is dropped without a question.
void SwitchToPersonalBookCommand();
void SwitchToCompanyBookCommand();
void NewRecordCommand();
void DeleteRecordCommand();
/// mnuFileSave and cmdSave; in the window of the business's own details, SaveCompanyInfo.
SaveResult SaveRecordCommand();
void FindCommand();
void FindAgainCommand();
/// A click on a row of lstNames, counted from 0.
void ChooseNameCommand(int row);

}  // namespace quillane
