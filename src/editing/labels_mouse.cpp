// Labels and the logo under the mouse: marks, drags, the link to the next page.
#include <algorithm>
#include <cmath>

#include "editing/navigation.h"
#include "model/upcalls.h"
#include "pages/labels.h"
#include "platform/numbers.h"

namespace quillane {

namespace {

/// The page on which a person may do something with the control; null on the copy, which is a view.
Page* HandsOn(const Control& control) {
  Page* page = PageOf(control);
  return page && page->window != CopyOfPage6 ? page : nullptr;
}

void Take(Page& page, const Control& control, float x, float y) {
  page.drag = {false, x, y, control.Left(), control.Top()};
}

/// How far the control gives way to a pointer that went `distance` back from where it took it: one snap or
/// nothing.  Without a snap there are no steps, and the control follows freely.
float StepFor(float distance) {
  const float snap = layoutAids.SnapValue;
  if (snap <= 0) return distance;
  if (distance >= snap) return snap;
  return -snap >= distance ? -snap : 0;
}

DragStep Follow(Page& page, Control& control, float x, float y) {
  if (!page.drag.Dragging) return DragStep::Rests;
  const float left = control.Left(), top = control.Top();
  control.SetLeft(left - StepFor(page.drag.DragStartX - x));
  control.SetTop(top - StepFor(page.drag.DragStartY - y));
  return control.Left() == left && control.Top() == top ? DragStep::Rests : DragStep::Moved;
}

/// Its place in inches.
void TellPlace(Control& control) {
  control.SetToolTip(QStringLiteral("Left = ") + SingleText(control.Left() / sheet::TwipsPerInch) +
                     QStringLiteral(", Top = ") + SingleText(control.Top() / sheet::TwipsPerInch));
}

LabelValues& BackupOf(const Page& page, const Control& label) {
  return proposal.LabelBackup[page.pageIndex][label.Index()];
}

}  // namespace

void lbl_Click(Control& label) {
  if (IsLinkLabel(label)) UpdatePageButtons(PageOf(label)->window + 1);
}

void lbl_DblClick(Control& label) {
  const Page* page = HandsOn(label);
  if (!page) return;
  if (label.BackStyle() == Backing::Transparent) {
    BackupOf(*page, label) = ValuesOf(label);
    Mark(label);
  } else {
    label.SetForeColor(BackupOf(*page, label).ForeColor);
    Unmark(label);
  }
}

void lbl_MouseDown(Control& label, MouseButton button, float x, float y) {
  Page* page = HandsOn(label);
  if (!page) return;
  editing.CurrentPage = labelEdit.pressedOn = page->pageIndex;
  labelEdit.CurrentLabel = label.Index();
  LoadCurrentLabel();
  Take(*page, label, x, y);
  if (button == MouseButton::Right) return upcalls().PopUpMenu(QStringLiteral("mnuEditLabel"), label);
  page->drag.Dragging = true;
}

DragStep lbl_MouseMove(Control& label, float x, float y) {
  Page* page = HandsOn(label);
  return page ? Follow(*page, label, x, y) : DragStep::Rests;
}

void lbl_MouseUp(Control& label) {
  Page* page = HandsOn(label);
  if (!page) return;
  page->drag.Dragging = false;
  if (WasDragged(label)) StoreLabel(*page, label.Index());
  TellPlace(label);
}

void pic_MouseDown(Control& logo, MouseButton button, float x, float y) {
  Page& page = *PageOf(logo);
  Take(page, logo, x, y);
  page.drag.Dragging = button == MouseButton::Left;
}

DragStep pic_MouseMove(Control& logo, float x, float y) {
  return Follow(*PageOf(logo), logo, x, y);
}

void pic_MouseUp(Control& logo) {
  PageOf(logo)->drag.Dragging = false;
  TellPlace(logo);
}

bool WasDragged(const Control& control) {
  const Page* page = PageOf(control);
  return control.Left() != page->drag.fromLeft || control.Top() != page->drag.fromTop;
}

bool IsLinkLabel(const Control& label) {
  const Page* page = PageOf(label);
  return page && page->window >= 1 && page->IsItemPage() && label.Array() == QLatin1String("lbl") &&
         label.Index() == page->LastLabel() - 1;
}

MousePointer PointerOver(const Control& control) {
  if (IsLinkLabel(control)) return MousePointer::Link;
  const bool held = control.Array() == QLatin1String("lbl") || control.Array() == QLatin1String("pic");
  return held && HandsOn(control) ? MousePointer::Moves : MousePointer::Default;
}

}  // namespace quillane
