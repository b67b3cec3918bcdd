// The rectangle that a drag on the empty page draws, and the rows that it selects.
#pragma once
#include <QBasicTimer>
#include <QObject>
#include <QPoint>
#include <QPointF>

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
  /// Slides the sheet one step towards a pointer that is outside, the farther the faster, and stretches the
  /// band after it.  A timer calls it for as long as the drag stays there.
  void Pull();

 protected:
  void timerEvent(QTimerEvent* event) override;

 private:
  void Press(const PageMouseEvent& event);
  void Stretch();
  void Release(const PageMouseEvent& event);
  void FollowPointer();

  SheetView& view_;
  QBasicTimer pull_;
  QPointF from_, to_;  ///< twips
  QPoint pointer_;     ///< pixels of the view; the sheet slides under a pointer that rests
  bool pressed_ = false, dragging_ = false;
};

}  // namespace quillane
