#include "print/offsets.h"

#include <cmath>

#include "model/page.h"
#include "model/proposal.h"
#include "model/report.h"
#include "platform/files.h"
#include "platform/numbers.h"
#include "print/print.h"
#include "ui/desk.h"

namespace quillane {

namespace {

const QString FileName = QStringLiteral("PrinterOffsets.txt");
const QString XKey = QStringLiteral("Printer X Offset:"), YKey = QStringLiteral("Printer Y Offset:");

/// What stands behind `key`, up to the end of its line.
QString ValueOf(const QString& text, const QString& key) {
  const qsizetype from = text.indexOf(key) + key.size();
  const qsizetype end = text.indexOf(QLatin1Char('\n'), from);
  return (end < 0 ? text.mid(from) : text.mid(from, end - from)).trimmed();
}

float TwipsOf(const QString& value) {
  return value.isEmpty() ? 0 : OffsetInTwips(value);
}

/// As many decimals as anybody types, where they give these twips back: through the twips 7.82 inches come
/// back as 7.8199997.
float InchesOf(float twips) {
  constexpr double hundredThousand = 100000;
  const double exact = double{twips} / double{sheet::TwipsPerInch};
  const auto typed = static_cast<float>(std::round(exact * hundredThousand) / hundredThousand);
  return typed * sheet::TwipsPerInch == twips ? typed : static_cast<float>(exact);
}

QString Shown(float twips) {
  return FormatNumber(InchesOf(twips), patterns::Inches);
}

QByteArray Line(const QString& key, float twips) {
  return (key + StrText(InchesOf(twips))).toLatin1() + "\r\n";
}

void ReadOffsets() {
  printing.PrinterXOffset = printing.PrinterYOffset = 0;
  if (!FileExists(prefs.ProposalFolder, FileName)) return;
  const QString text = QString::fromLatin1(ReadWholeFile(prefs.ProposalFolder + FileName));
  if (!text.contains(XKey)) return;
  printing.PrinterXOffset = TwipsOf(ValueOf(text, XKey));
  if (!text.contains(YKey)) return;
  printing.PrinterYOffset = TwipsOf(ValueOf(text, YKey));
}

}  // namespace

float OffsetInTwips(const QString& inches) {
  const float twips = ToSingle(inches) * sheet::TwipsPerInch;
  // A comma groups digits, so that "1,5" is fifteen; nothing of a page that is shifted as far would be
  // printed.
  if (std::abs(twips) >= sheet::Width) Raise(errors::Overflow, inches);
  return twips;
}

QByteArray OffsetLines(float xTwips, float yTwips) {
  return Line(XKey, xTwips) + Line(YKey, yTwips);
}

void ReadPrinterOffsets() {
  Guarded("ReadPrinterOffsets", ReadOffsets);
}

OffsetTexts OffsetsToShow() {
  ReadPrinterOffsets();
  const QString x = Shown(printing.PrinterXOffset), y = Shown(printing.PrinterYOffset);
  const QString label = QStringLiteral("Printer %1 Offset (Horizontal) - Current Value = %2\"");
  return {label.arg(QStringLiteral("X"), x), label.arg(QStringLiteral("Y"), y), x, y};
}

void ApplyOffsets(const QString& x, const QString& y) {
  const float xTwips = OffsetInTwips(x), yTwips = OffsetInTwips(y);
  printing.PrinterXOffset = xTwips;
  printing.PrinterYOffset = yTwips;
}

bool SaveOffsets(const QString& x, const QString& y) {
  return Guarded("cmdSavePrinterOffsets", [&] {
    ApplyOffsets(x, y);
    ReplaceFile(prefs.ProposalFolder + FileName,
                OffsetLines(printing.PrinterXOffset, printing.PrinterYOffset));
  });
}

void ExplainOffsets() {
  Tell(QStringLiteral(
      "If your documents are not printing on center, you need to adjust your offsets.\n"
      "The X offset controls the left to right centering and the Y offset controls\n"
      "the up and down centering. Enter all values in inches. Negative values are permitted."));
}

}  // namespace quillane
