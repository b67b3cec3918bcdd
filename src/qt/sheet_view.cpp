#include "qt/sheet_view.h"

#include <QLineEdit>

namespace quillane {

class LiveEditor : public QLineEdit {
 public:
  explicit LiveEditor(QWidget* parent) : QLineEdit(parent) {}
};

SheetView::SheetView(QWidget* parent) : QWidget(parent), editor_(new LiveEditor(this)) {
  editor_->hide();
}
SheetView::~SheetView() = default;
void SheetView::ShowPage(int window) {
  window_ = window;
}
void SheetView::SetScroll(int twips) {
  scroll_ = twips;
}
void SheetView::SetZoom(double zoom) {
  zoom_ = zoom;
}
void SheetView::SetDrawMode(DrawMode mode) {
  mode_ = mode;
}
QPoint SheetView::ToPixels(QPointF twips) const {
  return (twips / TwipsPerPixel()).toPoint();
}
QPointF SheetView::ToTwips(QPointF pixels) const {
  return pixels * TwipsPerPixel();
}
QRect SheetView::PixelRect(const Control&) const {
  return {};
}
QWidget* SheetView::Editor() const {
  return editor_;
}
void SheetView::FocusControl(Control* control) {
  focused_ = control;
}
Control* SheetView::ControlAt(QPointF) const {
  return nullptr;
}
bool SheetView::event(QEvent* event) {
  return QWidget::event(event);
}
void SheetView::paintEvent(QPaintEvent*) {}
void SheetView::resizeEvent(QResizeEvent*) {}
void SheetView::keyPressEvent(QKeyEvent*) {}
void SheetView::keyReleaseEvent(QKeyEvent*) {}
void SheetView::mousePressEvent(QMouseEvent*) {}
void SheetView::mouseMoveEvent(QMouseEvent*) {}
void SheetView::mouseReleaseEvent(QMouseEvent*) {}
void SheetView::mouseDoubleClickEvent(QMouseEvent*) {}
void SheetView::contextMenuEvent(QContextMenuEvent*) {}
void SheetView::wheelEvent(QWheelEvent*) {}
void SheetView::dragEnterEvent(QDragEnterEvent*) {}
void SheetView::dragMoveEvent(QDragMoveEvent*) {}
void SheetView::dropEvent(QDropEvent*) {}
bool SheetView::focusNextPrevChild(bool) {
  return false;
}
void SheetView::BeforeChange(Control&, Aspect) {}
void SheetView::AfterChange(Control&, Aspect) {}

SheetView* TheSheetView() {
  return nullptr;
}

}  // namespace quillane
