#include "model/document.h"

#include "platform/numbers.h"
#include "platform/runtime_error.h"

namespace quillane {

namespace {
constexpr QChar QuantitySign(0xA5);
constexpr QChar EachSign(0xA7);
const QString TitleWords = QStringLiteral("Proposal for ");
}  // namespace

QString StoredForm(const TextAreaRecord& area) {
  const QString text = area.Text.trimmed();
  if (!area.QtyBox) return text;
  return QuantitySign + area.QtyValue + QuantitySign + text + EachSign + area.AmtValue;
}

std::optional<ColumnTexts> SplitColumns(const QString& stored) {
  if (!stored.startsWith(QuantitySign)) return std::nullopt;
  const qsizetype second = stored.indexOf(QuantitySign, 1);
  if (second < 0) return std::nullopt;
  const qsizetype third = stored.indexOf(EachSign, second + 1);
  if (third < 0) return std::nullopt;
  return ColumnTexts{stored.mid(1, second - 1), stored.mid(second + 1, third - second - 1),
                     stored.mid(third + 1)};
}

bool HasStrayMark(const QString& stored) {
  return !SplitColumns(stored) && (stored.contains(QuantitySign) || stored.contains(EachSign));
}

std::optional<float> AmountIn(const QString& text) {
  if (!IsNumeric(text)) return std::nullopt;
  try {
    return ToSingle(text);
  } catch (const RuntimeError&) {
    return std::nullopt;
  }
}

QString TitleFor(const QString& client) {
  return client.isEmpty() ? QString() : TitleWords + client;
}

bool IsTitleOfName(const QString& title) {
  return title.startsWith(TitleWords);
}

}  // namespace quillane
