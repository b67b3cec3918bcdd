#include "address/contacts.h"

#include <QFileInfo>

#include "address/book.h"
#include "address/book_file.h"
#include "model/report.h"
#include "model/strip.h"
#include "platform/files.h"

namespace quillane {

namespace {

constexpr qint64 LongestFile = 64 * 1048576;

[[noreturn]] void RefuseFile(const QString& path, const QString& why) {
  throw RuntimeError(errors::PathFileAccess,
                     QStringLiteral("%1 %2. Please choose a file of contacts, which ends in .vcf")
                         .arg(QFileInfo(path).fileName(), why));
}

}  // namespace

ReadyRecords ReadContacts(const QString& path, Book book) {
  const QFileInfo info(ResolvePath(path));
  if (info.exists() && !info.isFile()) RefuseFile(path, QStringLiteral("is not a file"));
  if (info.size() > LongestFile) RefuseFile(path, QStringLiteral("is longer than 64 MB"));
  ReadyRecords records;
  for (const VCard& card : ReadVCards(ReadWholeFile(path))) records.push_back(FieldsOfContact(card, book));
  if (records.empty()) RefuseFile(path, QStringLiteral("has no contacts in it"));
  return records;
}

void ImportContactsCommand(const QString& path) {
  Guarded("ImportContacts", [&path] {
    if (!MayLeaveRecord()) return;
    const std::optional<Book> book = AskForBatchBook();
    if (!book) return;
    ReadyRecords records = ReadContacts(path, *book);
    if (OpenBatchBook(*book)) WalkRecords(std::move(records));
  });
}

void ExportContactsCommand(const QString& path) {
  Guarded("ExportContacts", [&path] {
    const QByteArray bytes = ReadBook(BookPath());
    QByteArray cards;
    int contacts = 0;
    for (int number = 1; number <= CountRecords(bytes.size()); ++number) {
      const FieldTexts texts = TextsOf(RecordFromBytes(RecordBytesAt(bytes, number)));
      const QByteArray card = ContactOf(texts, CurrentBook());
      cards += card;
      if (!card.isEmpty()) ++contacts;
    }
    ReplaceFile(path, cards);
    TellInStatusBar(QStringLiteral("%1 contacts were written to ").arg(contacts) +
                    QFileInfo(path).fileName());
  });
}

}  // namespace quillane
