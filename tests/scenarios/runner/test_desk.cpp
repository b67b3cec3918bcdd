#include "test_desk.h"

#include <QDir>
#include <QFile>

#include "model/proposal.h"
#include "platform/runtime_error.h"
#include "print/print.h"

namespace quillane::scenario {

namespace {

/// A document on its way to a printer; it is collected when it has ended.
class Collected : public Surface {
 public:
  Collected(std::unique_ptr<Surface> paper, std::vector<Printed>& printed, Printed document, QString written)
      : paper_(std::move(paper)),
        printed_(printed),
        document_(std::move(document)),
        written_(std::move(written)) {}

  void SetOrigin(float scaleLeft, float scaleTop) override { paper_->SetOrigin(scaleLeft, scaleTop); }
  float ScaleLeft() const override { return paper_->ScaleLeft(); }
  float ScaleTop() const override { return paper_->ScaleTop(); }
  void NewPage() override { paper_->NewPage(); }
  void SetFont(const Font& font) override { paper_->SetFont(font); }
  void SetColor(Color color) override { paper_->SetColor(color); }
  void Print(float x, float y, const QString& text) override { paper_->Print(x, y, text); }
  float Width(const QString& text) const override { return paper_->Width(text); }
  void Line(float x1, float y1, float x2, float y2, Color color, float width) override {
    paper_->Line(x1, y1, x2, y2, color, width);
  }
  void FillRect(float x, float y, float width, float height, Color color) override {
    paper_->FillRect(x, y, width, height, color);
  }
  void PaintPicture(const Picture& picture, float x, float y, float width, float height) override {
    paper_->PaintPicture(picture, x, y, width, height);
  }
  void EndDoc() override {
    paper_->EndDoc();
    // The "PDF File" device writes where its user wants it; the collection has its own copy.
    if (written_ != document_.pdf && !QFile::copy(written_, document_.pdf)) Raise(errors::Printer);
    printed_.push_back(document_);
  }
  void KillDoc() override { paper_->KillDoc(); }

 private:
  std::unique_ptr<Surface> paper_;
  std::vector<Printed>& printed_;
  Printed document_;
  QString written_;
};

/// A name that a script gives for a file lies beside the proposals.
QString BesideProposals(const QString& name) {
  return name.isEmpty() ? name : prefs.ProposalFolder + name;
}

}  // namespace

QString TestDesk::FileToOpen(const QString& title, const FileKind& kind) {
  return BesideProposals(boxes.Input(kind.name, title, {}));
}
QString TestDesk::FileToSave(const QString& title, const FileKind& kind, const QString& name) {
  return BesideProposals(boxes.Input(kind.name, title, name));
}

bool TestDesk::OpenExternally(const QString& target) {
  opened.append(target);
  return true;
}

QStringList TestDesk::PrinterNames() const {
  return printers.contains(PdfPrinter) ? printers : printers + QStringList{PdfPrinter};
}

QString TestDesk::DefaultPrinterName() const {
  for (const QString& name : printers)
    if (name != PdfPrinter) return name;
  return {};
}

std::unique_ptr<Surface> TestDesk::BeginDocument(const QString& printer, const QString& title,
                                                 const QString& pdfPath) {
  if (printer != PdfPrinter && !printers.contains(printer)) Raise(errors::Printer);
  const QString sheet = QDir(spool_).filePath(QStringLiteral("%1.pdf").arg(printed.size() + 1));
  const QString written = printer == PdfPrinter && !pdfPath.isEmpty() ? pdfPath : sheet;
  return std::make_unique<Collected>(QtDesk::BeginDocument(PdfPrinter, title, written), printed,
                                     Printed{printer, title, sheet}, written);
}

void TestDesk::ServeEvents() {
  ++serving_;
  QtDesk::ServeEvents();
  --serving_;
}

}  // namespace quillane::scenario
