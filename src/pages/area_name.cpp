#include "pages/area_name.h"

#include <cmath>

namespace quillane {

namespace {

constexpr float SameLine = 60;       // labels stand a few twips above or below the text that they name
constexpr float CaptionAbove = 480;  // a field's own caption stands no higher above it than this
constexpr float BlockHeight = 1500;  // a block's heading stands no higher above its fields than this

bool IsName(const Control& label) {
  return label.Caption().size() > 2 && !label.Hidden();
}

QString Spoken(const Control* label) {
  QString caption = label ? label->Caption().trimmed() : QString();
  if (caption.endsWith(QLatin1Char(':'))) caption.chop(1);
  return caption;
}

const Control* LabelBeside(const Page& page, const Control& area) {
  const Control* best = nullptr;
  for (const Control& label : page.lbl)
    if (IsName(label) && std::abs(label.Top() - area.Top()) <= SameLine && label.Left() < area.Left() &&
        (!best || label.Left() > best->Left()))
      best = &label;
  return best;
}

/// The lowest label above `top` that begins between two places.
const Control* LabelAbove(const Page& page, float top, float reach, float from, float to) {
  const Control* best = nullptr;
  for (const Control& label : page.lbl)
    if (IsName(label) && label.Top() < top - SameLine && label.Top() >= top - reach && label.Left() >= from &&
        label.Left() <= to && (!best || label.Top() > best->Top()))
      best = &label;
  return best;
}

QString FieldName(const Page& page, const Control& area) {
  const Control* beside = LabelBeside(page, area);
  if (!beside)
    return Spoken(
        LabelAbove(page, area.Top(), CaptionAbove, area.Left() - SameLine, area.Left() + area.Width()));
  const bool block = page.window == 0;
  const QString heading = block ? Spoken(LabelAbove(page, area.Top(), BlockHeight,
                                                    sheet::PlainLeft - SameLine, sheet::PlainLeft + SameLine))
                                : QString();
  return heading.isEmpty() ? Spoken(beside) : heading + QStringLiteral(", ") + Spoken(beside);
}

QString RowPart(const Page& page, const Control& area) {
  if (area.Array() == QLatin1String("txtQty")) return QStringLiteral("quantity");
  if (area.Array() == QLatin1String("txtAmt")) return QStringLiteral("each price");
  return page.IsAmount(area.Index()) ? QStringLiteral("amount") : QStringLiteral("description");
}

}  // namespace

QString AreaName(const Page& page, const Control& area) {
  QString name = QStringLiteral("Page %1").arg(page.pageIndex + 1);
  if (page.window == CopyOfPage6) name += QStringLiteral(" copy");
  const bool amount = area.Array() == QLatin1String("txt") && page.IsAmount(area.Index());
  const int row = amount ? area.Index() - page.AmountOffset() : area.Index();
  if (page.IsRow(row))
    return name + QStringLiteral(", row %1, %2").arg(row - page.FirstRow() + 1).arg(RowPart(page, area));
  const QString field = FieldName(page, area);
  return name + QStringLiteral(", ") +
         (field.isEmpty() ? QStringLiteral("area %1").arg(area.Index() + 1) : field);
}

QString AreaRemark(const Page& page, const Control& area) {
  const bool amount = area.Array() == QLatin1String("txt") && page.IsAmount(area.Index());
  const bool exempt = amount && page.imgNoTax[area.Index()].Visible();
  return exempt ? QStringLiteral("exempt from sales tax") : QString();
}

}  // namespace quillane
