// The mouse on labels and on the logo of the page in front.
#pragma once
#include "sheet/edge_pull.h"
#include "ui/control.h"

namespace quillane {

class SheetView;
struct PageMouseEvent;

/// Turns presses, moves and releases into the handlers of pages/labels.h.
class LabelInput {
 public:
  explicit LabelInput(SheetView& view)
      : view_(view), pull_(view, [this](QPointF twips) { BringTo(twips); }) {}
  /// Takes an event on any control; those that are no label of the page or its logo are passed over.
  void Handle(const PageMouseEvent& event);

 private:
  void Press(const PageMouseEvent& event);
  void Move(const PageMouseEvent& event);
  void Release(const PageMouseEvent& event);
  void DoubleClick(const PageMouseEvent& event);

  void BringTo(QPointF twips);

  SheetView& view_;
  EdgePull pull_;
  Control* held_ = nullptr;            ///< a button went down on it and is still down
  const Control* lastHeld_ = nullptr;  ///< the one before, for the second click of a pair
};

}  // namespace quillane
