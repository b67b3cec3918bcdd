#include "files/new_proposal.h"

namespace quillane {
bool StartNewFile() { return true; }
bool PromptSaveChanges() { return true; }
void NewEventCommand() {}
void NewWeddingCommand() {}
void LoadLogo() {}
}  // namespace quillane
