// The main window: three bars, the menu bar and the sheet, all drawn from the frame's plain state.
#pragma once
#include <QMainWindow>

#include "model/frame.h"

namespace quillane {

class SheetView;

/// Shows frame() and sends what a person does to FrameClicked and RunCommand.  Every widget's object name is
/// the name of its control, every action's that of its menu entry.
class FrameWindow : public QMainWindow {
  Q_OBJECT
 public:
  FrameWindow();
  ~FrameWindow() override;

  SheetView* Sheet() const { return sheet_; }

 private:
  SheetView* sheet_ = nullptr;
};

}  // namespace quillane
