// A report as a word processor's document.
#pragma once
#include <QByteArray>
#include <QString>

namespace quillane {

/// An OpenDocument text of letter size whose lines are those of `report`: its headings stand out, its columns
/// line up on tab stops, its rules stay on one line.  Throws 75 when it could not be made.
QByteArray WordDocument(const QString& title, const QString& report);

}  // namespace quillane
