#include "paper.h"

#include <QStringList>
#include <algorithm>
#include <cmath>
#include <utility>

#include "pdf_text.h"
#include "script.h"
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

test::PdfPage SheetOf(const QString& file, const QString& sheet) {
  const std::vector<test::PdfPage> pages = test::ReadPdf(file);
  const size_t at = sheet.contains(QLatin1Char('.')) ? sheet.section(QLatin1Char('.'), 1).toULong() : 1;
  if (at < 1 || at > pages.size())
    throw Failure(QStringLiteral("a printed sheet ") + sheet,
                  QStringLiteral("a document of %1 sheets").arg(pages.size()));
  return pages[at - 1];
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

int Paper::Count() {
  Look();
  return static_cast<int>(desk_.printed.size() - std::exchange(counted_, desk_.printed.size()));
}

QString Paper::FileOf(const QString& sheet) {
  Look();
  const size_t documents = desk_.printed.size() - batch_;
  const size_t document = sheet.section(QLatin1Char('.'), 0, 0).toULong();
  if (document < 1 || document > documents)
    throw Failure(QStringLiteral("a printed sheet ") + sheet, QStringLiteral("%1 documents").arg(documents));
  return desk_.printed[batch_ + document - 1].pdf;
}

void Paper::ExpectText(const QString& sheet, const QString& text, std::optional<QPointF> place) {
  const test::PdfPage there = SheetOf(FileOf(sheet), sheet);
  const auto fits = [&](const test::PdfWord& word) {
    return !place || (std::abs(static_cast<double>(word.left) - place->x()) <= double{Tolerance} &&
                      std::abs(static_cast<double>(word.top) - place->y()) <= double{Tolerance});
  };
  const std::vector<test::PdfWord> found = test::FindText(there, text);
  if (std::none_of(found.begin(), found.end(), fits))
    throw Failure(InQuotes(text) + QStringLiteral(" at ") +
                      (place ? Place(place->x(), place->y()) : QStringLiteral("any place")),
                  Places(found));
}

void Paper::ExpectPage(const QString& sheet, const Page& page) {
  const test::PdfPage there = SheetOf(FileOf(sheet), sheet);
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
