// The single-byte code page of every file (Windows-1252), and the closest equivalents of what it lacks.
#pragma once
#include <QByteArray>
#include <QString>

namespace quillane {

/// One byte a character.  The five bytes that the code page leaves open (81 8D 8F 90 9D) are U+0081 and so
/// on.
QString FromCodePage(const QByteArray& bytes);
/// The reverse; a character that the code page lacks goes through FoldToCodePage first.
QByteArray ToCodePage(const QString& text);
/// What a file will hold of `text`: each character that the code page lacks becomes its closest equivalent (a
/// letter without its accent, straight quotes, a plain hyphen or blank) or "?".  Control characters other
/// than tab become blanks.  Combining marks that have no composed form are dropped with their accent; a pair
/// of surrogates is one "?".
QString FoldToCodePage(const QString& text);

}  // namespace quillane
