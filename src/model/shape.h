// What the areas and labels of a page are, by page index and number: rows, amounts, widths of fields.
#pragma once
#include <QString>
#include <string_view>

namespace quillane {

inline constexpr int IndexedPages = 6;  ///< pages that have an index in the arrays
inline constexpr int ItemPages = 5;
inline constexpr int AreasPerPage = 70;
inline constexpr int LabelsPerPage = 65;

/// How many areas a page has, by page index 0 to 5.
constexpr int AreaCount(int pageIndex) {
  return pageIndex == 0 ? 36 : pageIndex == 5 ? 6 : 70;
}

namespace shape {

inline constexpr int Totals = 5;      ///< the page index of frmP6
inline constexpr int ClientName = 2;  ///< the area of page 0 that names the file
inline constexpr int Deposit = 4;     ///< the area of frmP6 that is typed and not worked out

constexpr bool IsItemPage(int pageIndex) {
  return pageIndex < ItemPages;
}
/// The description rows that may have columns: 20 to 27 on frmP1, 0 to 34 on frmP2 to frmP5.
constexpr int FirstRow(int pageIndex) {
  return pageIndex == 0 ? 20 : 0;
}
constexpr int LastRow(int pageIndex) {
  return pageIndex == 0 ? 27 : 34;
}
constexpr bool IsRow(int pageIndex, int area) {
  return IsItemPage(pageIndex) && area >= FirstRow(pageIndex) && area <= LastRow(pageIndex);
}
/// From a row to its amount area: 8 on frmP1, 35 on the item pages.
constexpr int AmountOffset(int pageIndex) {
  return pageIndex == 0 ? 8 : 35;
}
constexpr bool IsAmount(int pageIndex, int area) {
  return IsRow(pageIndex, area - AmountOffset(pageIndex));
}
/// How many quantities, and each-prices, a page has; on frmP1 the first twenty are never shown.
constexpr int ColumnBoxCount(int pageIndex) {
  return pageIndex == 0 ? 28 : IsItemPage(pageIndex) ? 35 : 0;
}

constexpr int LabelCount(int pageIndex) {
  return pageIndex == 0 ? 46 : IsItemPage(pageIndex) ? 39 : 65;
}
/// The label that says whom the proposal is for.
constexpr int TitleLabel(int pageIndex) {
  return LabelCount(pageIndex) - 1;
}
/// The label that says "Page 2 of 4".
constexpr int PageNumberLabel(int pageIndex) {
  return LabelCount(pageIndex) - (IsItemPage(pageIndex) ? 3 : 2);
}

/// The Tag of an area: its kind, a full stop, and three digits that say how many characters it may hold.
constexpr const char* Tag(int pageIndex, int area) {
  constexpr const char* totals[] = {"SubTotal.020", "AllTaxable.020", "Tax.020",
                                    "Total.020",    "Deposit.020",    "Balance.020"};
  if (pageIndex == Totals) return totals[area];
  if (IsRow(pageIndex, area)) return area == LastRow(pageIndex) ? "Stop.120" : "Push.120";
  if (IsAmount(pageIndex, area)) return "Amount.020";
  return area <= 1 || area >= 18 ? "Date.025" : "Name.060";
}
/// The width of the area's field in a file, in characters.
constexpr int FieldWidth(int pageIndex, int area) {
  const std::string_view tag = Tag(pageIndex, area);
  int width = 0;
  for (const char digit : tag.substr(tag.size() - 3)) width = 10 * width + (digit - '0');
  return width;
}
constexpr bool IsNumeric(int pageIndex, int area) {
  return FieldWidth(pageIndex, area) == 20;
}

/// "frmP1" to "frmP6".
inline QString PageName(int pageIndex) {
  return QStringLiteral("frmP%1").arg(pageIndex + 1);
}

}  // namespace shape
}  // namespace quillane
