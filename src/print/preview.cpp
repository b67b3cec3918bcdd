#include "print/preview.h"

#include <QStringList>

#include "editing/areas.h"
#include "model/frame.h"
#include "model/page.h"
#include "model/proposal.h"
#include "model/report.h"
#include "print/print.h"

namespace quillane {

namespace {

/// What writes into a page or needs an area to work on.  A menu that waits keeps its entries waiting.
constexpr const char* Waiting[] = {"mnuEdit",
                                   "mnuEditCtrl",
                                   "mnuFileFormat",
                                   "mnuManage",
                                   "mnuToolsSnap",
                                   "mnuToolsAlignWithSnap",
                                   "mnuToolsDrawCenterLines",
                                   "mnuToolsClearCenterLines",
                                   "imgSearch",
                                   "imgSpellCheck",
                                   "cmdClearMem"};

/// Those of them that were enabled when the preview began.
QStringList& DisabledByPreview() {
  static QStringList names;
  return names;
}

void EndEditing() {
  DisabledByPreview().clear();
  for (const char* name : Waiting) {
    Control* control = frame().Find(QString::fromLatin1(name));
    if (!control || !control->Enabled()) continue;
    DisabledByPreview().append(QString::fromLatin1(name));
    control->SetEnabled(false);
  }
}

void OfferResume(bool resume) {
  EnableMenu("mnuFilePrintPreview", !resume);
  EnableMenu("mnuFileResume", resume);
}

/// A button took the focus when it was clicked; keys belong to the page again.
void ReturnFocus() {
  if (!editing.Focus || !PageOf(*editing.Focus)) FocusPage(page(editing.FrontWindow()));
}

void BeginPreview() {
  // An amount that is being typed is taken while its area still has the editor.
  BringSheetsUpToDate();
  MarkPreview(Preview::Shows);
  OfferResume(true);
  EndEditing();
  PrepareDrawing();
}

void EndPreview() {
  MarkPreview(Preview::Ended);
  OfferResume(false);
  ResumeEditing();
}

}  // namespace

void PrintPreview() {
  InPreview() ? EndPreview() : BeginPreview();
  ReturnFocus();
}

void ResumeEditing() {
  Guarded("ResumeEditing", [] {
    for (const QString& name : DisabledByPreview())
      if (Control* control = frame().Find(name)) control->SetEnabled(true);
    DisabledByPreview().clear();
  });
}

}  // namespace quillane
