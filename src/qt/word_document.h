// A report as a word processor's document.
#pragma once
#include <QByteArray>
#include <QString>

namespace quillane {

/// An OpenDocument text whose lines are those of `report`: its headings stand out and its values line up. The
/// sheet's size is the word processor's own.  Throws 75 when it could not be made.
QByteArray MakeWordDocument(const QString& title, const QString& report);

}  // namespace quillane
