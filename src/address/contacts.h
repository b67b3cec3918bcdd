// Records of a book as contacts of other programs, and the way back.
#pragma once
#include "address/batch.h"
#include "address/record.h"
#include "address/vcard.h"

namespace quillane {

/// What a card gives the fields of a record.  A text may be longer than its field.  Telephones and mail
/// addresses that no field is left for go into the notes.
FieldTexts FieldsOfContact(const VCard& card, Book book);
/// A card of the fields; FieldsOfContact gives the same fields back.  Nothing for a record without any text.
QByteArray ContactOf(const FieldTexts& texts, Book book);

/// The records of a contact file for a book.  Throws 75 with a sentence where the file is none.
ReadyRecords ReadContacts(const QString& path, Book book);
/// Walks the records of a contact file, after the questions of a batch import.
void ImportContactsCommand(const QString& path);
/// Writes the open book as one contact file, and says in the status bar how many contacts it has.
void ExportContactsCommand(const QString& path);

}  // namespace quillane
