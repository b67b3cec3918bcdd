// What a person does with mouse and keyboard, as real events to the windows.
#pragma once
#include <QPoint>
#include <QString>

#include "stage.h"

namespace quillane::scenario {

enum class Clicks { Single, Double };

class Hands {
 public:
  explicit Hands(const Stage& stage) : stage_(stage) {}

  /// A click in the middle of a control; a page's control is brought to the front and scrolled to first.
  /// Throws Failure for what does not show, is disabled or lies under another window.
  void Click(const Target& target, Qt::MouseButton button, Clicks clicks = Clicks::Single) const;
  /// A click that gives the focus and does nothing else: a button takes the focus without being pressed.
  void Focus(const Target& target) const;
  void Hover(const Target& target) const;
  /// Press, move in steps, release, in twips of the page.
  void Drag(Page& page, QPointF from, QPointF to) const;
  /// Drops a text on a control, as a drag from a list does.
  void Drop(QWidget* source, const QString& row, const Target& target) const;
  /// A click on a list's row, or the row of a drop-down list.  `row` counts from 0.
  void Choose(const Target& target, int row, Clicks clicks = Clicks::Single) const;

  void Type(const QString& text) const;
  /// "Shift+Down", "Ctrl+S", "Enter": modifiers stay down over all `times`.
  void Key(const QString& combination, int times) const;
  /// Selects the text of the control that has the focus.
  void SelectAll(const Target& target) const;

  void BringToFront(const Page& page) const;

 private:
  struct Spot {
    QWidget* widget;
    QPoint place;  ///< in the widget
  };
  Spot SpotOf(const Target& target) const;
  Spot SpotOn(const Page& page, QPointF twips) const;
  void Reveal(const Page& page, double top, double bottom) const;
  void ClickAt(Spot spot, Qt::MouseButton button, Clicks clicks) const;
  QWindow* KeyWindow() const;

  const Stage& stage_;
};

}  // namespace quillane::scenario
