#include "address/book_file.h"

#include <QFile>
#include <QFileInfo>
#include <cmath>

#include "platform/files.h"
#include "platform/runtime_error.h"

namespace quillane {

namespace {

constexpr qint64 LongestBook = 17 * 1048576;  // bytes; a little more than MostRecords take

qsizetype OffsetOf(int number) {
  return static_cast<qsizetype>(number - 1) * RecordSize;
}

/// Throws unless `path` is a file that can be a book.
void RequireBook(const QString& path) {
  const QFileInfo info(ResolvePath(path));
  if (!info.exists()) return;  // the reading says so
  const QString& name = info.fileName();
  if (!info.isFile())
    throw RuntimeError(errors::PathFileAccess,
                       QStringLiteral("Path/File access error: %1 is not a file. Please move it away and "
                                      "open the address book again")
                           .arg(name));
  if (info.size() > LongestBook)
    throw RuntimeError(
        errors::PathFileAccess,
        QStringLiteral("Path/File access error: %1 has %2 bytes, which is more than an address "
                       "book can have. Please put back a copy of the book, or move it away")
            .arg(name)
            .arg(info.size()));
}

/// After a write that failed: puts back what stood at `offset`, and the book's length.  The failure has its
/// own report, so that another one here has none.
void PutBack(const QString& path, qsizetype offset, const QByteArray& bytes, qsizetype length) {
  QFile file(ResolvePath(path));
  if (!file.open(QIODevice::ReadWrite | QIODevice::ExistingOnly)) return;
  if (file.seek(offset)) file.write(bytes);
  if (file.size() > length) file.resize(length);
}

}  // namespace

int CountRecords(qint64 bytes) {
  return static_cast<int>(std::nearbyint(static_cast<double>(bytes) / RecordSize));
}

QByteArray ReadBook(const QString& path) {
  RequireBook(path);
  return ReadWholeFile(path);
}

void CreateBook(const QString& path) {
  // Another kind of failure than "not there" shows itself in the attempt to make the file.
  if (!QFileInfo::exists(ResolvePath(path))) WriteAt(path, 1, QByteArray());
}

QByteArray ReadRecord(const QString& path, int number) {
  RequireBook(path);
  QFile file(ResolvePath(path));
  if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
    return RecordBytesAt(ReadBook(path), number);  // which says why, where it cannot be read either
  file.seek(OffsetOf(number));
  const QByteArray record = file.read(RecordSize);
  if (file.error() != QFileDevice::NoError) Raise(errors::PathFileAccess, path);
  return record.leftJustified(RecordSize, ' ');
}

QByteArray RecordBytesAt(const QByteArray& book, int number) {
  return book.mid(OffsetOf(number), RecordSize).leftJustified(RecordSize, ' ');
}

bool HasRecord(const QByteArray& book, int number, const QByteArray& record) {
  return number > 0 && OffsetOf(number) < book.size() && RecordBytesAt(book, number) == record;
}

int AppendRecord(const QString& path, const QByteArray& record) {
  RequireBook(path);
  const qsizetype length = QFileInfo(ResolvePath(path)).size();  // 0 where there is no file yet
  const qsizetype gap = (RecordSize - length % RecordSize) % RecordSize;
  const qsizetype number = (length + gap) / RecordSize + 1;
  if (number > MostRecords)
    Raise(errors::Overflow,
          QStringLiteral("an address book holds at most %1 records. Please delete some first")
              .arg(MostRecords));
  try {
    WriteAt(path, length + 1, QByteArray(gap, ' ') + record);
  } catch (const RuntimeError&) {
    PutBack(path, length, {}, length);
    throw;
  }
  return static_cast<int>(number);
}

bool OverwriteRecord(const QString& path, int number, const QByteArray& asRead, const QByteArray& record) {
  if (!QFileInfo::exists(ResolvePath(path))) return false;
  const QByteArray book = ReadBook(path);
  if (!HasRecord(book, number, asRead)) return false;
  try {
    WriteAt(path, OffsetOf(number) + 1, record);
  } catch (const RuntimeError&) {
    PutBack(path, OffsetOf(number), book.mid(OffsetOf(number), RecordSize), book.size());
    throw;
  }
  return true;
}

void RemoveRecord(const QString& path, const QByteArray& book, int number) {
  ReplaceFile(path, QByteArray(book).remove(OffsetOf(number), RecordSize));
}

}  // namespace quillane
