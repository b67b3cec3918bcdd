#include "app/startup.h"

namespace quillane {
void FillProgramFolder(const QString&, const QString&) {}
bool Main() { return true; }
void LoadMainFrame() {}
void QuitApplication() {}
void UpdatePageButtons(int) {}
void ReAdjustScrollBar(int) {}
void FrameResized(float) {}
bool ScrollChanged(int) { return true; }
bool FontInstalled(const QString&) { return true; }
bool MayExit() { return true; }
void ConnectLayers() {}
}  // namespace quillane
