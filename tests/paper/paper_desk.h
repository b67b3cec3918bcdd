// The desk of these tests: no box waits for an answer, and the only printer is the PDF file.
#pragma once
#include <QFile>
#include <QList>
#include <QTemporaryDir>

#include "editing/areas.h"
#include "model/frame.h"
#include "model/proposal.h"
#include "pages/defaults.h"
#include "pages/titles.h"
#include "qt/pictures.h"
#include "qt/printers.h"
#include "qt/qt_desk.h"
#include "unit/cases.h"

namespace quillane::test {

class PaperDesk : public QtDesk {
 public:
  PaperDesk() { SetDesk(this); }

  QStringList said, shown, documents;
  QString clipboard;
  Answer answer = Answer::Cancel;  ///< to every question
  std::function<void()> onServe;   ///< what a person does while the program serves events

  Answer MessageBox(const QString& text, const QString&, Buttons) override {
    said.append(text);
    return answer;
  }
  void ShowWindow(const QString& name, Modality) override { shown.append(name); }
  void CloseWindow(const QString&) override {}
  QString ClipboardText() const override { return clipboard; }
  void SetClipboardText(const QString& text) override { clipboard = text; }
  QStringList PrinterNames() const override { return {QStringLiteral("PDF File")}; }
  QString DefaultPrinterName() const override { return {}; }
  std::unique_ptr<Surface> BeginDocument(const QString& printer, const QString& title,
                                         const QString& path) override {
    documents.append(path);
    return printers::BeginDocument(printer, title, path);
  }
  Picture LoadPicture(const QString& path) override { return ReadPicture(path); }
  void ServeEvents() override {
    if (onServe) onServe();
  }
  void Beep() override {}
};

/// Puts a text into an area as a file does: no handler runs.
inline void PutText(Control& area, const QString& text) {
  const Scoped building(editing.RebuildingPages, true);
  area.SetText(text);
}

/// Every kind of content that a sheet can have but a logo, in every area and on every page.
inline void FillPages() {
  const Scoped building(editing.RebuildingPages, true);
  editing.UnderlineMainCategories = true;
  for (int window = 0; window < PageCount; ++window) {
    Page& filled = page(window);
    for (Control& area : filled.txt)
      area.SetText(IsNumericArea(area) ? QStringLiteral("1,2%1.50").arg(area.Index() + 10)
                                       : QString::fromUtf8("Wágy roses – “½ dozen” n°%1").arg(area.Index()));
    Control& moved = filled.lbl[2];
    moved.SetLeft(moved.Left() + 333);
    moved.SetTop(moved.Top() + 17);
    moved.SetForeColor(colors::Red);
    moved.SetFontItalic(true);
    if (!filled.IsItemPage()) continue;
    const int row = filled.FirstRow();
    ShowRowColumns(filled, row + 3, true);
    filled.txtQty[row + 3].SetText(QStringLiteral("12"));
    filled.txtAmt[row + 3].SetText(QStringLiteral("104.50"));
    filled.txt[row + 1].SetFontBold(true);
    filled.txt[row + 2].SetForeColor(0xFF00FF);
    filled.imgNoTax[row + filled.AmountOffset()].SetShown(true);
  }
}

/// A fresh program with default pages and a folder of its own.
struct FreshPages {
  PaperDesk desk;
  QTemporaryDir folder;

  FreshPages() {
    ResetState();
    prefs.ProposalFolder = folder.path() + QLatin1Char('/');
    prefs.ProgramFolder = prefs.ProposalFolder;
    prefs.CompanyName = QStringLiteral("Alder Events");
    prefs.CurrencySymbol = QStringLiteral("$");
    prefs.DefaultPrinter = QStringLiteral("PDF File");
    proposal.SubTitleText = QStringLiteral("Alder Events - Event Proposal - ");
    const Scoped building(editing.RebuildingPages, true);
    SetUpPages();
    ShowDefaultPages();
    for (int i = 0; i < PageCount; ++i) {
      LoadColumns(page(i));
      ShowPageControls(page(i));
    }
    UpdateEventNameLabels();
    InstallPageHandlers();
  }
};

}  // namespace quillane::test
