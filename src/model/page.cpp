#include "model/page.h"

#include <memory>

namespace quillane {

namespace {

constexpr float RowStep = 360;

struct AreaPlace {
  float left, top, width;
};

AreaPlace FirstPageField(int area) {
  constexpr float NameTop[] = {4680, 5040, 5400, 6840, 7200, 7560};
  if (area == 0) return {720, 3420, 2520};
  if (area == 1) return {9000, 3420, 2520};
  if (area <= 13) {
    const int field = area - 2;  // bride left, bride right, groom left, groom right: three each
    const bool right = (field / 3) % 2 == 1;
    return {right ? 7740.0F : 2340.0F, NameTop[field / 6 * 3 + field % 3], 3600};
  }
  const float left = area % 2 == 0 ? 2340.0F : 7740.0F;
  if (area <= 15) return {left, 9000, 3600};
  if (area <= 17) return {left, 10440, 3600};
  return {left, 10800, 3600};
}

AreaPlace FirstPageArea(int area) {
  if (area < 20) return FirstPageField(area);
  if (area < 28) {
    const float top = 11655 + RowStep * static_cast<float>(area - 20);
    return {sheet::PlainLeft, top, sheet::PlainWidth};
  }
  return {10260, 11655 + RowStep * static_cast<float>(area - 28), 1260};
}

AreaPlace ItemPageArea(int area) {
  if (area < 35) {
    const float top = 1800 + RowStep * static_cast<float>(area);
    return {sheet::PlainLeft, top, sheet::PlainWidth};
  }
  return {10080, 1800 + RowStep * static_cast<float>(area - 35), 1260};
}

AreaPlace TotalsArea(int area) {
  return {area < 3 ? 3240.0F : 9900.0F, 1440 + RowStep * static_cast<float>(area % 3), 1260};
}

AreaPlace PlaceOf(int window, int area) {
  if (window == 0) return FirstPageArea(area);
  return window <= 4 ? ItemPageArea(area) : TotalsArea(area);
}

Array<Control> MakeArray(Form& form, Kind kind, const char* name, int count) {
  Array<Control> array;
  array.reserve(count);
  for (int i = 0; i < count; ++i) array.emplace_back(form, kind, QString::fromLatin1(name), i);
  return array;
}

FixedArray<std::unique_ptr<Page>, PageCount>& Pages() {
  static FixedArray<std::unique_ptr<Page>, PageCount> pages;
  return pages;
}

void PlaceArea(Control& area, const AreaPlace& place, const char* tag) {
  area.SetLeft(place.left);
  area.SetTop(place.top);
  area.SetWidth(place.width);
  area.SetHeight(sheet::AreaHeight);
  area.SetTag(QString::fromLatin1(tag));
  area.SetBackColor(colors::Grey);
}

void PlaceColumn(Control& control, const Control& row, float left, float width, bool box) {
  control.SetLeft(left);
  control.SetTop(row.Top());
  control.SetWidth(width);
  control.SetHeight(sheet::AreaHeight);
  if (box) control.SetBackColor(colors::LightGrey);
  control.SetShown(false);
}

}  // namespace

Page::Page(int windowIndex) : window(windowIndex), pageIndex(windowIndex == CopyOfPage6 ? 5 : windowIndex) {
  form.name =
      windowIndex == CopyOfPage6 ? QStringLiteral("frmP6_1") : QStringLiteral("frmP%1").arg(windowIndex + 1);
  const bool first = window == 0;
  const int areas = AreaCount(pageIndex);
  txt = MakeArray(form, Kind::TextBox, "txt", areas);
  imgNoTax = MakeArray(form, Kind::Image, "imgNoTax", IsItemPage() ? areas : 1);
  lbl = MakeArray(form, Kind::Label, "lbl", shape::LabelCount(pageIndex));
  lne = MakeArray(form, Kind::Line, "lne", first ? 20 : window <= 4 ? 0 : 16);
  if (IsItemPage()) {
    const int rows = shape::ColumnBoxCount(pageIndex);
    txtQty = MakeArray(form, Kind::TextBox, "txtQty", rows);
    txtAmt = MakeArray(form, Kind::TextBox, "txtAmt", rows);
    lblAt = MakeArray(form, Kind::Label, "lblAt", rows);
    lblEach = MakeArray(form, Kind::Label, "lblEach", rows);
  }
  if (first) pic = MakeArray(form, Kind::Picture, "pic", 1);
  if (window != CopyOfPage6) shpSelect = MakeArray(form, Kind::Shape, "shpSelect", 1);
  tag = form.name + QLatin1Char('.') + QString::number(areas - 1);

  for (int i = 0; i < areas; ++i) {
    Control& area = txt[i];
    PlaceArea(area, PlaceOf(window, i), shape::Tag(pageIndex, i));
    area.SetLocked(window == CopyOfPage6);
  }
  for (int i = 0; i < txtQty.size(); ++i) {
    PlaceColumn(txtQty[i], txt[i], 720, 495, true);
    PlaceColumn(txtAmt[i], txt[i], 8325, 975, true);
    PlaceColumn(lblAt[i], txt[i], 7890, 0, false);
    PlaceColumn(lblEach[i], txt[i], 9345, 0, false);
  }
  for (Control& mark : imgNoTax) {
    const Control& area = txt[mark.Index()];
    mark.SetLeft(area.Left() + area.Width() + 60);
    mark.SetTop(area.Top());
    mark.SetWidth(sheet::AreaHeight);
    mark.SetHeight(sheet::AreaHeight);
    mark.SetShown(false);
  }
  for (Control& label : lbl) label.SetBackColor(colors::ButtonFace);
  if (!shpSelect.empty()) shpSelect[0].SetShown(false);
  if (!pic.empty()) pic[0].SetShown(false);

  for (auto* array : {&lne, &pic, &lbl, &lblAt, &lblEach, &txt, &txtQty, &txtAmt, &imgNoTax, &shpSelect})
    for (Control& control : *array) order_.push_back(&control);
}

void CreatePages() {
  for (int i = 0; i < PageCount; ++i) Pages()[i] = std::make_unique<Page>(i);
}

Page& page(int window) {
  if (!Pages()[0]) CreatePages();
  return *Pages()[window];
}

Page* PageOf(const Control& control) {
  for (int i = 0; i < PageCount; ++i)
    if (&page(i).form == &control.Owner()) return &page(i);
  return nullptr;
}

Page* PageNamed(const QString& name) {
  for (int i = 0; i < PageCount; ++i)
    if (page(i).form.name == name) return &page(i);
  return nullptr;
}

Control* FindPageControl(const QString& fullName) {
  for (int i = 0; i < PageCount; ++i) {
    if (!fullName.startsWith(page(i).form.name + QLatin1Char('.'))) continue;
    for (Control* control : page(i).Controls())
      if (control->FullName() == fullName ||
          (fullName.endsWith(QLatin1String(".pic")) && control->Array() == QLatin1String("pic")))
        return control;
  }
  return nullptr;
}

int AreaLimit(const Control& area) {
  return area.Tag().right(3).toInt();
}
QString AreaKind(const Control& area) {
  return area.Tag().left(4);
}

}  // namespace quillane
