// A drag that leaves the view pulls the sheet along.
#pragma once
#include <QBasicTimer>
#include <QObject>
#include <QPoint>
#include <QPointF>
#include <functional>

namespace quillane {

class SheetView;

/// While the pointer of a drag stands above or below the view, the sheet slides towards it, the farther the
/// faster.
class EdgePull : public QObject {
 public:
  /// `follow` is told where on the sheet the pointer has come to, in twips.
  EdgePull(SheetView& view, std::function<void(QPointF)> follow) : view_(view), follow_(std::move(follow)) {}
  /// The drag's pointer has moved there, in twips.
  void PointerAt(QPointF twips);
  void Stop() { timer_.stop(); }
  /// Slides the sheet one step.  A timer calls it for as long as the pointer stays outside.
  void Step();

 protected:
  void timerEvent(QTimerEvent* event) override;

 private:
  int Beyond() const;

  SheetView& view_;
  std::function<void(QPointF)> follow_;
  QBasicTimer timer_;
  QPoint pointer_;  ///< pixels of the view; the sheet slides under a pointer that rests
};

}  // namespace quillane
