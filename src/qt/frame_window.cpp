#include "qt/frame_window.h"

namespace quillane {

FrameWindow::FrameWindow() {
  setObjectName(QStringLiteral("frmMain"));
}
FrameWindow::~FrameWindow() = default;

}  // namespace quillane
