#include "sheet/label_input.h"

#include <algorithm>

#include "pages/labels.h"
#include "sheet/sheet_view.h"

namespace quillane {

namespace {

// More steps than a sheet is high, at any snap that a person can see; a smaller one catches up with the next
// move.
constexpr int MostSteps = 2000;

bool IsLogo(const Control& control) {
  return control.GetKind() == Kind::Picture;
}

QPointF Inside(const Control& control, QPointF twips) {
  return twips - QPointF(double{control.Left()}, double{control.Top()});
}

/// A pointer that leaves the paper, or what shows of it, does not take the label along, or it would be lost
/// there.
QPointF OnShownPaper(const SheetView& view, QPointF twips) {
  const QPointF first = view.ToTwips({0, 0}), last = view.ToTwips({view.width() - 1.0, view.height() - 1.0});
  return {std::clamp(twips.x(), std::max(0.0, first.x()), std::min(last.x(), double{sheet::Width})),
          std::clamp(twips.y(), std::max(0.0, first.y()), std::min(last.y(), double{sheet::Height}))};
}

DragStep StepTowards(Control& control, QPointF twips) {
  const QPointF at = Inside(control, twips);
  const auto x = static_cast<float>(at.x()), y = static_cast<float>(at.y());
  return IsLogo(control) ? pic_MouseMove(control, x, y) : lbl_MouseMove(control, x, y);
}

}  // namespace

void LabelInput::Handle(const PageMouseEvent& event) {
  if (!IsLogo(*event.control) && event.control->Array() != QLatin1String("lbl")) return;
  switch (event.what) {
    case PageMouseEvent::What::Press:
      return Press(event);
    case PageMouseEvent::What::Move:
      return Move(event);
    case PageMouseEvent::What::Release:
      return Release(event);
    case PageMouseEvent::What::DoubleClick:
      return DoubleClick(event);
  }
}

void LabelInput::Press(const PageMouseEvent& event) {
  if (event.button != Qt::LeftButton && event.button != Qt::RightButton) return;
  lastHeld_ = held_ = event.control;
  const QPointF at = Inside(*event.control, event.twips);
  const auto x = static_cast<float>(at.x()), y = static_cast<float>(at.y());
  const MouseButton button = event.button == Qt::RightButton ? MouseButton::Right : MouseButton::Left;
  if (IsLogo(*event.control))
    pic_MouseDown(*event.control, button, x, y);
  else
    lbl_MouseDown(*event.control, button, x, y);
}

/// The label moves under the pointer, which then has another place inside it: the move is told again until
/// the label has caught up.
void LabelInput::BringTo(QPointF twips) {
  if (!held_) return;
  const QPointF to = OnShownPaper(view_, twips);
  for (int i = 0; i < MostSteps; ++i)
    if (StepTowards(*held_, to) == DragStep::Rests) return;
}

void LabelInput::Move(const PageMouseEvent& event) {
  if (event.control != held_) return;
  BringTo(event.twips);
  if (event.buttons.testFlag(Qt::LeftButton)) pull_.PointerAt(event.twips);
}

void LabelInput::Release(const PageMouseEvent& event) {
  pull_.Stop();
  if (std::exchange(held_, nullptr) != event.control) return;
  view_.setCursor(Qt::ArrowCursor);
  if (IsLogo(*event.control)) return pic_MouseUp(*event.control);
  lbl_MouseUp(*event.control);
  const bool clicked = event.button == Qt::LeftButton && !WasDragged(*event.control) &&
                       view_.ControlAt(event.twips) == event.control;
  if (clicked) lbl_Click(*event.control);
}

/// The first click of a pair may have brought another page to the front; its second is then meant for none.
void LabelInput::DoubleClick(const PageMouseEvent& event) {
  if (event.button == Qt::LeftButton && !IsLogo(*event.control) && event.control == lastHeld_)
    lbl_DblClick(*event.control);
}

}  // namespace quillane
