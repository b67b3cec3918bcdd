// frmMain as plain state: its labels, buttons and images, its menu entries, its scroll bar.
#pragma once
#include <map>
#include <memory>

#include "ui/control.h"

namespace quillane {

/// VScroll1: slides the sheet under the frame.  Values are twips.
struct ScrollBar {
  int Value = 0, Max = 0, LargeChange = 0, SmallChange = 0;
};

class Frame {
 public:
  Frame();
  Form form;  ///< name "frmMain"; its caption is the window's title
  ScrollBar VScroll1;
  float clientHeight = 10000;  ///< twips of the sheet that show; the window keeps it up to date

  /// The control or menu entry of that name: "cmdReCalc", "lblTotal", "imgPage(3)", "mnuFileDelete".  A Menu control's
  /// Caption, Visible, Enabled and Checked are the entry's.  Throws 5 for a name that the frame does not have.
  Control& operator[](const QString& name);
  Control* Find(const QString& name);
  Control& AddMenu(const QString& name, const QString& caption);
  const std::map<QString, std::unique_ptr<Control>>& Controls() const { return controls_; }

 private:
  Control& Add(Kind kind, const QString& name, const QString& caption);
  std::map<QString, std::unique_ptr<Control>> controls_;
};

Frame& frame();
void CreateFrame();

/// The red of stale totals on cmdReCalc, and its end.
void MarkTotalsStale();
void MarkTotalsFresh();
bool TotalsAreStale();

}  // namespace quillane
