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

}  // namespace quillane::scenario
