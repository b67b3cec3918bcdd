// What a blank proposal is, and the commands that begin one.
#pragma once

namespace quillane {

/// Turns whatever stands on the seven pages into a blank proposal.  False when the user refused to end a
/// format editing session; nothing has changed then.
bool StartNewFile();
/// Asks about unsaved changes.  False when the user cancelled, or a save that was asked for did not happen;
/// then editing.ActionCancelled is set as well.
bool PromptSaveChanges();
/// PromptSaveChanges as the commands ask it: also false, once, when an earlier command was cancelled and left
/// the mark.
bool MayLeaveProposal();
void NewEventCommand();
void NewWeddingCommand();
/// Loads the logo that the format or the preferences name, or hides it.  Throws 53 or 481; the logo is hidden
/// then.
void LoadLogo();

}  // namespace quillane
