// Blank pages with their columns, handlers and text menu: where a test of rows begins.
#pragma once
#include "editing/areas.h"
#include "model/frame.h"
#include "model/proposal.h"
#include "pages/defaults.h"

namespace quillane::test {

/// The entries of the text menu, in its order.
inline QStringList TextMenu() {
  QStringList entries;
  for (const QString& entry :
       QStringLiteral(
           "Columns Bold Normal SelLCase SelPCase SelUCase AddFUT EditFUT DeleteFUT Delete Undo Copy "
           "Cut Paste MoveDown MoveUp TaxExempt Taxable Deselect")
           .split(QLatin1Char(' ')))
    entries.append("mnuEditText" + entry);
  return entries;
}

inline void MakeTextMenu() {
  for (const QString& entry : TextMenu()) frame().AddMenu(entry, QString());
}

inline void MakeItemPages() {
  ResetState();
  prefs.CurrencySymbol = QStringLiteral("$");
  MakeTextMenu();
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
