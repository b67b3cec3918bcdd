// What a PDF file says of itself beside its sheets.
#pragma once
#include <QByteArray>
#include <QString>

namespace quillane {

/// The file with its author named.  The writer of PDF files does not know authors, so the record of title,
/// creator and date is written once more behind the old one, as the format provides for changes.  A file that
/// is not built as expected comes back unchanged.
QByteArray WithAuthor(const QByteArray& pdf, const QString& author);

}  // namespace quillane
