// The two halves of the changed state.
#pragma once

namespace quillane {

bool TextHasChanged();
bool PropertiesHaveChanged();
/// Text or properties differ from what was last saved or read.
bool ProposalHasChanged();

}  // namespace quillane
