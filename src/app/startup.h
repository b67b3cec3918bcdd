// From the double click to a blank proposal, page navigation, and the end.
#pragma once
#include <QString>

namespace quillane {

/// Fills `folder` (the program's folder) from the installed `data` on first start; never touches a file that
/// is there, but for the help, which is put in place again when another version starts.
void FillProgramFolder(const QString& folder, const QString& data);
/// The entry point's questions: the first-instance message, the font test.  False when the user chose to
/// leave.
bool Main();
/// The twenty steps of the main window's load; once a run.
void LoadMainFrame();
void QuitApplication();
/// True when a screen font of that name exists or one of the same metrics stands in for it.
bool FontInstalled(const QString& name);
/// The close box and mnuFileExit: asks about unsaved changes.  True when the program may end.
bool MayExit();
/// Wires upcalls() and the focus handlers; once after ResetState.
void ConnectLayers();

}  // namespace quillane
