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

/// A text that a control prints, and where its first letter stands, or its last.
struct Print {
  QString text;
  float left = 0, right = 0;
  bool toTheRight = false;
};

/// What a control prints; the text is empty for what does not print any.
Print PrintOf(const Page& page, const Control& control) {
  const bool box = control.GetKind() == Kind::TextBox, label = control.GetKind() == Kind::Label;
  if (control.Tag() == QLatin1String("Hide") || (!box && !label)) return {};
  const QString whole = box ? control.Text() : control.Caption();
  qsizetype blanks = 0;
  while (blanks < whole.size() && whole[blanks].isSpace()) ++blanks;
  // Blanks before the first letter are printed too, but a sheet's words do not show them.
  return {whole.trimmed(), control.Left() + TextWidth(control.GetFont(), whole.left(blanks)),
          control.Left() + control.Width(), StandsRight(page, control)};
}

bool StandsAtItsPlace(const test::PdfPage& sheet, const Print& print, float top) {
  return print.toTheRight ? test::HasTextEndingAt(sheet, print.text, print.right, top, Tolerance)
                          : test::HasTextAt(sheet, print.text, print.left, top, Tolerance);
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
    const Print print = PrintOf(page, *control);
    if (print.text.isEmpty() || StandsAtItsPlace(there, print, control->Top())) continue;
    const float edge = print.toTheRight ? print.right : print.left;
    missing.append(QStringLiteral("%1 %2 at %3")
                       .arg(control->FullName(), InQuotes(print.text),
                            Place(static_cast<double>(edge), static_cast<double>(control->Top()))));
    found.append(control->FullName() + QLatin1Char(' ') + Places(test::FindText(there, print.text)));
  }
  const QString separator = QStringLiteral("\n            ");
  if (!missing.isEmpty()) throw Failure(missing.join(separator), found.join(separator));
}

}  // namespace quillane::scenario
