// An address book on disk: records one behind the other from byte 0, with nothing before, between or behind.
#pragma once
#include <QByteArray>
#include <QString>

#include "address/record.h"

namespace quillane {

inline constexpr int MostRecords = 32767;  ///< that a book can have

/// What a book of `bytes` counts: half a record or more is one, with ties to even.
int CountRecords(qint64 bytes);

/// The whole book.  Throws 53 when it is not there, and 75 for what is no plain file or longer than a book
/// can be.
QByteArray ReadBook(const QString& path);
/// Makes the file where there is none.
void CreateBook(const QString& path);

/// One record of it, as RecordBytesAt gives it.  Throws as ReadBook does.
QByteArray ReadRecord(const QString& path, int number);
/// Record `number`, counted from 1, as 520 bytes; blanks where the book has none.
QByteArray RecordBytesAt(const QByteArray& book, int number);
/// True when any byte of that record is in the book, and they are `record` with blanks behind.
bool HasRecord(const QByteArray& book, int number, const QByteArray& record);

/// Writes a record behind the last one and gives its number.  A part of a record at the end is filled up with
/// blanks first and stays.  Throws 6 when the book is full.  After a failure the book is as it was.
int AppendRecord(const QString& path, const QByteArray& record);
/// Writes record `number` over the one that is there; false where that one is not `asRead` any more.  After a
/// failure the book is as it was.
bool OverwriteRecord(const QString& path, int number, const QByteArray& asRead, const QByteArray& record);
/// Replaces the book by itself without record `number`.
void RemoveRecord(const QString& path, const QByteArray& book, int number);

}  // namespace quillane
