// Blank pages with their columns, handlers and text menu: where a test of rows begins.
#pragma once
#include "model/frame.h"
#include "model/proposal.h"
#include "pages/areas.h"
#include "pages/defaults.h"

namespace quillane::test {

inline void MakeItemPages() {
  ResetState();
  prefs.CurrencySymbol = QStringLiteral("$");
  for (const char* entry :
       {"mnuEditTextColumns", "mnuEditTextBold", "mnuEditTextNormal", "mnuEditTextSelLCase",
        "mnuEditTextSelPCase", "mnuEditTextSelUCase", "mnuEditTextAddFUT", "mnuEditTextEditFUT",
        "mnuEditTextDeleteFUT", "mnuEditTextDelete", "mnuEditTextUndo", "mnuEditTextCopy", "mnuEditTextCut",
        "mnuEditTextPaste", "mnuEditTextMoveDown", "mnuEditTextMoveUp", "mnuEditTextTaxExempt",
        "mnuEditTextTaxable", "mnuEditTextDeselect"})
    frame().AddMenu(QString::fromLatin1(entry), QString());
  {
    Scoped building(editing.RebuildingPages, true);
    SetUpPages();
    ShowDefaultPages();
    for (int window = 0; window < ItemPages; ++window) {
      LoadColumns(page(window));
      for (Control& area : page(window).txt) {
        area.SetVisible(true);
        if (page(window).IsAmount(area.Index())) page(window).CurrencyLabel(area.Index()).SetShown(false);
      }
    }
  }
  InstallPageHandlers();
}

}  // namespace quillane::test
