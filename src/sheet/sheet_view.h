// Shows the page in front and turns what a person does into the page's handlers.
#pragma once
#include <QPointF>
#include <QTransform>
#include <QWidget>
#include <functional>

#include "editing/areas.h"
#include "model/page.h"
#include "print/draw.h"

namespace quillane {

class LiveEditor;

/// A press, a move or a release on the empty page, on a label or on the logo.
struct PageMouseEvent {
  enum class What { Press, Move, Release, DoubleClick } what;
  Page& page;
  Control* control;  ///< the label or the logo under the pointer; null for the empty page
  QPointF twips;
  Qt::MouseButton button;
  Qt::MouseButtons buttons;
  Qt::KeyboardModifiers modifiers;
};

/// A page as a person sees it.  It paints the page with the drawing procedure that prints, keeps one live
/// editor over the text box that has the focus, and passes keys, clicks and drops to the handlers of
/// pages/areas.h.
class SheetView : public QWidget, private FormObserver {
  Q_OBJECT

 public:
  explicit SheetView(QWidget* parent = nullptr);
  ~SheetView() override;

  /// Shows the page of a window index, 0 to 6; the editor goes over the control that has the focus, if it is
  /// there.
  void ShowPage(int window);
  int CurrentWindow() const { return window_; }

  /// The sheet's top edge stands `twips` above the view's.
  void SetScroll(int twips);
  int Scroll() const { return scroll_; }
  void SetZoom(double zoom);  ///< 1 shows an inch on 96 pixels
  double TwipsPerPixel() const { return 15.0 / zoom_; }
  void SetDrawMode(DrawMode mode);  ///< Printing shows the preview; there is no editor then

  /// From twips on the sheet to the view's pixels.
  QTransform PageTransform() const;
  QPoint ToPixels(QPointF twips) const;
  QPointF ToTwips(QPointF pixels) const;
  QRect PixelRect(const Control& control) const;  ///< what the control covers on the screen

  /// The live editor, hidden while no text box of this page has the focus.  It has the keyboard focus
  /// otherwise.
  QWidget* Editor() const;
  /// The text box under the live editor; null for none.
  Control* Focused() const { return focused_; }
  /// Brings the live editor over a control; null takes it away.  The model calls it through
  /// focusHandlers().moved.
  void FocusControl(Control* control);
  /// The topmost visible control at a place: a text box, a mark, a label or the logo; null for the empty
  /// page.
  Control* ControlAt(QPointF twips) const;
  /// What the mouse takes hold of at a place: with Ctrl the topmost label or the logo, also one that lies
  /// under a text box, where nobody could reach it otherwise.
  Control* ControlAt(QPointF twips, Qt::KeyboardModifiers modifiers) const;

  /// The wheel asks for a new value of VScroll1; without it the view scrolls itself.
  std::function<void(int value)> scrollTo;
  /// Presses, moves and releases on the empty page and on labels.
  std::function<void(const PageMouseEvent&)> pageMouse;

  // For the live editor: keys and committed texts, wherever they arrive.
  void KeyDownEvent(QKeyEvent* event);
  void KeyUpEvent(QKeyEvent* event);
  void TypeText(const QString& text);

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dragMoveEvent(QDragMoveEvent* event) override;
  void dropEvent(QDropEvent* event) override;
  bool focusNextPrevChild(bool next) override;

 private:
  friend class LiveEditor;
  enum class Step { Goes, Stopped };  ///< Stopped: a handler took the key, or the focus has moved

  void BeforeChange(Control& control, Aspect aspect) override;
  void AfterChange(Control& control, Aspect aspect) override;
  void MarkStale(const Control& control);

  Page& CurrentPage() const { return page(window_); }
  double SheetLeft() const;
  /// The topmost visible control of the wanted kinds; a label without words counts as `emptyLabel` twips
  /// wide.
  Control* TopmostAt(QPointF twips, bool (*wanted)(Kind kind), double emptyLabel) const;
  void PaintGround(QPainter& painter, const QRect& stale) const;
  void PaintControls(QPainter& painter, const QRect& stale) const;
  void PaintControl(QPainter& painter, Surface& surface, const Control& control) const;
  void PaintBand(QPainter& painter) const;

  enum class Arrival { Comes, Stays };
  void ShowEditor(Arrival arrival);
  void PlaceEditor();
  void Reveal(const Control& control);
  bool Shows(const Control& control) const;
  void CaretToControl();
  void TextToControl();
  void UpdateFromControl();

  template <class Body>
  Step RunHandler(const char* name, Body&& body);
  Step RunKeyDown(const KeyEvent& key);
  void RunKeyUp(const KeyEvent& key);
  bool Edit(QKeyEvent* event, const KeyEvent& key);
  bool EditClipboard(const QKeyEvent& event);
  void Insert(const QString& text);
  void Paste();
  void PressArea(Control& area, const QMouseEvent& event);
  float EditorX(const QMouseEvent& event) const;
  void TellPage(PageMouseEvent::What what, const QMouseEvent& event);
  Control* DropTarget(const QDropEvent& event) const;

  int window_ = 0;
  int scroll_ = 0;
  double zoom_ = 1;
  double pan_ = 0;  ///< pixels by which a view narrower than the sheet has moved to the right
  DrawMode mode_ = DrawMode::Editing;
  LiveEditor* editor_;          ///< a child, owned by the widget tree
  Control* focused_ = nullptr;  ///< the text box under the editor
  Control* pressed_ = nullptr;  ///< what a button went down on
  bool syncing_ = false;        ///< the control is being told what the editor has
  int staleRects_ = 0;          ///< asked for since the last paint
};

/// The view of this process; null before it is made.
SheetView* TheSheetView();

}  // namespace quillane
