// The offsets that make up for a printer's margins: what frmPOffsets shows, applies and stores.
#pragma once
#include <QByteArray>
#include <QString>

namespace quillane {

/// What the window reads when it opens.
struct OffsetTexts {
  QString xLabel, yLabel, x, y;
};
/// Reads the file, so that the window shows what the next print will use.
OffsetTexts OffsetsToShow();

/// cmdOK: the offsets in inches, until the file is read again.  Throws 13 for a text that is no number and 6
/// for one that is beyond the sheet; then neither offset has changed.
void ApplyOffsets(const QString& x, const QString& y);
/// cmdSavePrinterOffsets: applies and writes the file.  False when that failed, which has been told.
bool SaveOffsets(const QString& x, const QString& y);
/// mnuHelpPrinterOffsets.
void ExplainOffsets();

/// Inches as twips.  Throws 13 and 6 as ApplyOffsets does.
float OffsetInTwips(const QString& inches);
/// The two lines of the file for offsets in twips.
QByteArray OffsetLines(float xTwips, float yTwips);
/// The characters that reach the two boxes.
inline const QString OffsetCharacters = QStringLiteral("0123456789.,-");

}  // namespace quillane
