// The status labels that follow the caret.
#include "editing/area_rules.h"
#include "model/frame.h"
#include "model/proposal.h"
#include "platform/numbers.h"

namespace quillane {

namespace {

// Without a printer nobody knows the printed width, so the label does not show.
void ShowPrintedPosition(Control& area) {
  Control& label = frame()["lblTextPos"];
  const bool hasPrinter = printing.NoPrinter == 0;
  if (hasPrinter) {
    editing.PrinterTextPosition = PrinterTextWidth(area, area.Text().left(editing.CursorLocation));
    label.SetCaption(QStringLiteral("Printer Text Position = ") +
                     FormatNumber(editing.PrinterTextPosition, patterns::Position));
  }
  label.SetVisible(hasPrinter);
}

}  // namespace

float PrinterTextWidth(const Control& area, const QString& text) {
  Font font = area.GetFont();
  font.italic = font.underline = false;
  return TextWidth(font, text) / sheet::TwipsPerInch;
}

void ShowCaretPlace(const Control& area) {
  editing.CursorLocation = area.SelStart();
  frame()["lblCurPos"].SetCaption(QStringLiteral("Cursor Location = %1").arg(editing.CursorLocation));
}

void ShowCaret(Control& area) {
  ShowCaretPlace(area);
  ShowPrintedPosition(area);
}

}  // namespace quillane
