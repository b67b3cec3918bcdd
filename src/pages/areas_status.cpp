// The status labels that follow the caret.
#include "model/frame.h"
#include "model/proposal.h"
#include "model/upcalls.h"
#include "pages/area_rules.h"
#include "platform/numbers.h"

namespace quillane {

namespace {

// Without a printer nobody knows the printed width, so the label does not show.
void ShowPrintedPosition(Control& area) {
  Control& label = frame()["lblTextPos"];
  const auto printerWidth = upcalls().PrinterWidth;
  if (printerWidth) {
    editing.PrinterTextPosition = printerWidth(area, area.Text().left(editing.CursorLocation));
    label.SetCaption(QStringLiteral("Printer Text Position = ") +
                     FormatNumber(editing.PrinterTextPosition, patterns::Position));
  }
  label.SetVisible(printerWidth != nullptr);
}

}  // namespace

void ShowCaretPlace(const Control& area) {
  editing.CursorLocation = area.SelStart();
  frame()["lblCurPos"].SetCaption(QStringLiteral("Cursor Location = %1").arg(editing.CursorLocation));
}

void ShowCaret(Control& area) {
  ShowCaretPlace(area);
  ShowPrintedPosition(area);
}

}  // namespace quillane
