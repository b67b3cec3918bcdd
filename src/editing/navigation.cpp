#include "editing/navigation.h"

#include <QStringList>
#include <cstdint>
#include <utility>

#include "editing/areas.h"
#include "editing/grid.h"
#include "editing/totals_commands.h"
#include "model/frame.h"
#include "model/proposal.h"
#include "model/report.h"
#include "model/upcalls.h"
#include "pages/defaults.h"

namespace quillane {

namespace {

/// A control of the frame of an array: "imgPage(3)".
Control& PageButton(int window) {
  return frame()[QStringLiteral("imgPage(%1)").arg(window)];
}

enum class ButtonFace { Plain, InFront };
void ShowPageButton(int window, ButtonFace face) {
  static const QStringList faces = {QStringLiteral("page-1"),   QStringLiteral("page-2"),
                                    QStringLiteral("page-3"),   QStringLiteral("page-4"),
                                    QStringLiteral("page-5"),   QStringLiteral("page-totals"),
                                    QStringLiteral("page-copy")};
  Picture picture;
  picture.source = QStringLiteral(":/icons/") + faces[window] +
                   QLatin1String(face == ButtonFace::InFront ? "-front.svg" : ".svg");
  PageButton(window).SetPicture(picture);
}

void ReturnScrollToTop() {
  if (frame().VScroll1.Value == 0) return;
  editing.SkipScrollChange = true;
  frame().VScroll1.Value = 0;
  // Nobody listens where there is no window; the next real change must not be the one that is skipped.
  editing.SkipScrollChange = false;
}

void TakePage(int window) {
  Page& front = page(window);
  ShowPageButton(window, ButtonFace::InFront);
  editing.CopyInFront = window == CopyOfPage6;
  if (!editing.CopyInFront) editing.CurrentPage = window;
  ReAdjustScrollBar(window);
  editing.LastTextIndex = front.LastText();
  editing.LastLabelIndex = front.LastLabel();
  ShowPageControls(front);
  for (const char* entry : {"mnuEditLabelDeselectAll", "mnuEditLabelSelectAll", "mnuEditLabelProps"})
    EnableMenu(QString::fromLatin1(entry), window != CopyOfPage6);
  if (frame().pageBroughtToFront) frame().pageBroughtToFront(window);
  FocusPage(front);
}

/// Truncated as the bar's 16-bit numbers are.
int Truncated(float twips) {
  return static_cast<std::int16_t>(static_cast<int>(twips));
}

}  // namespace

void UpdatePageButtons(int window) {
  TakeFocusedAmount();
  Guarded("UpdatePageButtons", [window] {
    if (!editing.StartingUp && InPreview()) {
      MarkPreview(Preview::Ended);
      upcalls().ResumeEditing();
    }
    for (int k = 0; k < PageCount; ++k) ShowPageButton(k, ButtonFace::Plain);
    ReturnScrollToTop();
    EnableMenu("mnuFilePrintPreview", true);
    EnableMenu("mnuFileResume", false);
    if (window >= 0 && window < PageCount) TakePage(window);
  });
}

void ReAdjustScrollBar(int window) {
  const float height = frame().clientHeight;
  ScrollBar& bar = frame().VScroll1;
  bar.Max = qMax(0, Truncated(sheet::Height - height + 30));
  bar.LargeChange = Truncated(height);
  bar.SmallChange = Truncated(height / 2);
  if (bar.Value > bar.Max) bar.Value = bar.Max;
  ClearGrid(page(window));
  // The sheet in front stands where the bar is; it is at the top whenever a page has just come to the front.
  if (window == editing.FrontWindow() || bar.Value == 0) frame().sheetTop = static_cast<float>(-bar.Value);
  if (frame().sheetMoved) frame().sheetMoved();
}

void FrameResized(float clientHeight) {
  frame().clientHeight = clientHeight;
  editing.ScreenScale = clientHeight / sheet::Height;
  ReAdjustScrollBar(0);
}

bool ScrollChanged(int value) {
  const bool skipped = std::exchange(editing.SkipScrollChange, false);
  if (!skipped) frame().sheetTop = static_cast<float>(-value);
  if (frame().sheetMoved) frame().sheetMoved();
  return !skipped;
}

}  // namespace quillane
