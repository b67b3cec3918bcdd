#include "paper.h"

#include <QStringList>

#include "failure.h"
#include "pdf_text.h"
#include "values.h"

namespace quillane::scenario {

namespace {

constexpr float Tolerance = 2;

QString Place(double left, double top) {
  return QStringLiteral("%1 %2").arg(left, 0, 'f', 1).arg(top, 0, 'f', 1);
}

QString Places(const std::vector<test::PdfWord>& found) {
  if (found.empty()) return QStringLiteral("the sheet does not have that text");
  QStringList places;
  for (const test::PdfWord& word : found)
    places.append(Place(static_cast<double>(word.left), static_cast<double>(word.top)));
  return QStringLiteral("at ") + places.join(QStringLiteral(", "));
}

test::PdfPage FirstPage(const QString& file) {
  const std::vector<test::PdfPage> pages = test::ReadPdf(file);
  if (pages.empty()) throw Failure(QStringLiteral("a sheet"), QStringLiteral("an empty document"));
  return pages.front();
}

/// Texts that end at their area's right edge on paper: the time on page 1, the amounts, and all of the totals
/// page.
bool StandsRight(const Page& page, const Control& box) {
  if (box.Array() != QLatin1String("txt")) return false;
  if (page.IsTotalsPage()) return true;
  return page.window == 0 ? box.Index() == 1 || box.Index() >= 28 : box.Index() >= 35;
}

/// What a control prints; empty for what does not print text.
QString PrintedText(const Control& control) {
  if (control.Tag() == QLatin1String("Hide")) return {};
  const bool box = control.GetKind() == Kind::TextBox;
  const bool label = control.GetKind() == Kind::Label;
  return box ? control.Text().trimmed() : label ? control.Caption().trimmed() : QString();
}

bool StandsAtItsPlace(const test::PdfPage& sheet, const Page& page, const Control& control,
                      const QString& text) {
  if (StandsRight(page, control))
    return test::HasTextEndingAt(sheet, text, control.Left() + control.Width(), control.Top(), Tolerance);
  return test::HasTextAt(sheet, text, control.Left(), control.Top(), Tolerance);
}

}  // namespace

void Paper::Look() {
  if (desk_.printed.size() > looked_) batch_ = looked_;
  looked_ = desk_.printed.size();
}

size_t Paper::Count() {
  Look();
  const size_t count = desk_.printed.size() - counted_;
  counted_ = desk_.printed.size();
  return count;
}

QString Paper::SheetFile(int sheet) {
  Look();
  const size_t sheets = desk_.printed.size() - batch_;
  if (sheet < 1 || static_cast<size_t>(sheet) > sheets)
    throw Failure(QStringLiteral("a printed sheet %1").arg(sheet), QStringLiteral("%1 sheets").arg(sheets));
  return desk_.printed[batch_ + static_cast<size_t>(sheet) - 1].pdf;
}

void Paper::ExpectText(int sheet, const QString& text, double left, double top) {
  const test::PdfPage page = FirstPage(SheetFile(sheet));
  if (!test::HasTextAt(page, text, static_cast<float>(left), static_cast<float>(top), Tolerance))
    throw Failure(QStringLiteral("%1 at %2").arg(InQuotes(text), Place(left, top)),
                  Places(test::FindText(page, text)));
}

void Paper::ExpectText(int sheet, const QString& text) {
  const test::PdfPage page = FirstPage(SheetFile(sheet));
  if (test::FindText(page, text).empty())
    throw Failure(InQuotes(text) + QStringLiteral(" on it"), Places({}));
}

void Paper::ExpectPage(int sheet, const Page& page) {
  const test::PdfPage there = FirstPage(SheetFile(sheet));
  QStringList missing, found;
  for (const Control* control : page.Controls()) {
    const QString text = PrintedText(*control);
    if (text.isEmpty() || StandsAtItsPlace(there, page, *control, text)) continue;
    const float left = StandsRight(page, *control) ? control->Left() + control->Width() : control->Left();
    missing.append(QStringLiteral("%1 %2 at %3")
                       .arg(control->FullName(), InQuotes(text),
                            Place(static_cast<double>(left), static_cast<double>(control->Top()))));
    found.append(control->FullName() + QLatin1Char(' ') + Places(test::FindText(there, text)));
  }
  const QString separator = QStringLiteral("\n            ");
  if (!missing.isEmpty()) throw Failure(missing.join(separator), found.join(separator));
}

}  // namespace quillane::scenario
