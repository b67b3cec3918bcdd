// What a blank proposal is, and the commands that begin one.
#pragma once

namespace quillane {

/// Turns whatever stands on the seven pages into a blank proposal.  False when the user refused to end a format
/// editing session; nothing has changed then.
bool StartNewFile();
/// Asks about unsaved changes.  False when the user cancelled, or a save that was asked for did not happen.
bool PromptSaveChanges();
void NewEventCommand();
void NewWeddingCommand();
/// Loads the logo that the format or the preferences name, or hides it.
void LoadLogo();

}  // namespace quillane
