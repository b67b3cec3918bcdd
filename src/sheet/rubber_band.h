// The rectangle that a drag on the empty page draws, and the rows that it selects.
#pragma once
#include <QObject>
#include <QPointF>

#include "sheet/edge_pull.h"

namespace quillane {

class SheetView;
struct PageMouseEvent;

/// A drag counts from the desktop's drag distance on; a pointer that leaves the view pulls the sheet along.
class RubberBand : public QObject {
  Q_OBJECT

 public:
  explicit RubberBand(SheetView& view);
  /// Takes a press, move or release that did not begin on a control.
  void Handle(const PageMouseEvent& event);
  /// One step of the sheet under a drag that stands outside, with the band stretched after it.
  void Pull();

 private:
  void Press(const PageMouseEvent& event);
  void Stretch();
  void Release(const PageMouseEvent& event);

  SheetView& view_;
  EdgePull pull_;
  QPointF from_, to_;  ///< twips
  bool pressed_ = false, dragging_ = false;
};

}  // namespace quillane
