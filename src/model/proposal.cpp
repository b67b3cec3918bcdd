#include "model/proposal.h"

#include "model/focus.h"
#include "model/frame.h"
#include "model/selection.h"
#include "model/strip.h"

namespace quillane {

void NameProposal(const QString& baseName) {
  const bool named = !baseName.isEmpty();
  proposal.BaseName = baseName;
  proposal.EventFileName = named ? baseName + QStringLiteral(".wwf") : QString();
  proposal.TextFileName = named ? baseName + QStringLiteral(".txt") : QString();
}

void ResetState() {
  editing = {};
  proposal = {};
  format = {};
  labelEdit = {};
  layoutAids = {};
  printing = {};
  tax = {};
  fileDialog = {};
  terms = {};
  selection = {};
  const QString programFolder = prefs.ProgramFolder;  // the run's, not the proposal's
  prefs = {};
  prefs.ProgramFolder = programFolder;
  CreatePages();
  CreateFrame();
  ResetStrip();
}

}  // namespace quillane
