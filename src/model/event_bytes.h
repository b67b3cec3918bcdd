// The bytes of a proposal's own file: a fixed layout of field texts, one byte a character.
#pragma once
#include <QByteArray>

#include "model/document.h"

namespace quillane {

/// The 22000 bytes of the file.
QByteArray EventFileBytes(const Document& document);

/// The fields of a file: one text a page index and area, cut at their widths by the file's length, blanks not
/// trimmed.
struct EventFields {
  FixedArray<Array<QString>, IndexedPages> text;
};
EventFields ReadEventFields(const QByteArray& bytes);
/// What the fields of a file say: texts, columns, exemptions, amounts and the deposit.  An area whose field
/// is blank is an empty record.  Of the totals page the deposit alone counts; its text stays as it is filed.
Document ReadEventFile(const QByteArray& bytes);

}  // namespace quillane
