#include "model/proposal.h"

#include "model/focus.h"
#include "model/frame.h"
#include "model/selection.h"
#include "model/strip.h"

namespace quillane {

QString BlankSlot() {
  return QString(120, QLatin1Char(' '));
}

namespace {
void BlankTexts(PageTexts& texts) {
  for (int p = 0; p < IndexedPages; ++p) texts[p] = Array<QString>(AreaCount(p), BlankSlot());
}
}  // namespace

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
  BlankTexts(proposal.PageText);
  BlankTexts(proposal.SavedText);
  CreatePages();
  CreateFrame();
  ResetStrip();
  editing.CurrentForm = &page(0);
}

}  // namespace quillane
