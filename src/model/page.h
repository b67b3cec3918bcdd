// The seven pages: objects with numbered areas, labels, marks, lines and a logo.
#pragma once
#include "model/shape.h"
#include "platform/array.h"
#include "ui/control.h"

namespace quillane {

/// The window index of each page: 0 frmP1 to 5 frmP6, and 6 for frmP6_1, the client's copy of frmP6.
inline constexpr int PageCount = 7;
inline constexpr int CopyOfPage6 = 6;

namespace sheet {
inline constexpr float TwipsPerInch = 1440;
inline constexpr float Width = 12240;   ///< twips
inline constexpr float Height = 15840;  ///< twips
inline constexpr float Centre = 6120;
inline constexpr float AreaHeight = 255;
inline constexpr float PlainLeft = 720, PlainWidth = 9000;       ///< a row without columns
inline constexpr float ColumnsLeft = 1260, ColumnsWidth = 6630;  ///< a row with columns
}  // namespace sheet

/// A label or the logo in a person's hand, from the press of a button to its release.
struct Drag {
  bool Dragging = false;                 ///< the left button holds it
  float DragStartX = 0, DragStartY = 0;  ///< where it was taken, twips inside the control
  float fromLeft = 0, fromTop = 0;       ///< its place at the press
};

class Page {
 public:
  explicit Page(int window);
  Page(const Page&) = delete;
  Page& operator=(const Page&) = delete;

  Form form;
  int window;     ///< 0 to 6
  int pageIndex;  ///< 0 to 5: the index in every array; frmP6_1 has that of frmP6
  QString tag;    ///< "frmP2.69"

  // Control arrays, indexed as their names are.  On pages without columns the four column arrays are empty;
  // on frmP1 their elements 0 to 19 exist and are never shown.
  Array<Control> txt, imgNoTax, lbl, lne, txtQty, txtAmt, lblAt, lblEach;
  Array<Control> pic;        ///< one element on frmP1, none elsewhere
  Array<Control> shpSelect;  ///< one element on pages with a selection

  Drag drag;
  bool ColumnsLoaded = false;
  int lastFocused = 0;  ///< the txt index that takes the focus when the page comes to the front

  /// All controls in the page's own order: the order in which they print and are added up.
  const Array<Control*>& Controls() const { return order_; }

  bool IsItemPage() const { return shape::IsItemPage(pageIndex); }
  bool IsTotalsPage() const { return !IsItemPage(); }
  int LastText() const { return txt.size() - 1; }
  int LastLabel() const { return lbl.size() - 1; }
  // See model/shape.h.
  int FirstRow() const { return shape::FirstRow(pageIndex); }
  int LastRow() const { return shape::LastRow(pageIndex); }
  bool IsRow(int area) const { return shape::IsRow(pageIndex, area); }
  int AmountOffset() const { return shape::AmountOffset(pageIndex); }
  bool IsAmount(int area) const { return shape::IsAmount(pageIndex, area); }
  /// The currency label of an amount area: lbl(a + 7) on frmP1, lbl(a - 34) on the item pages.
  Control& CurrencyLabel(int amountArea) { return lbl[window == 0 ? amountArea + 7 : amountArea - 34]; }
  /// Whether an area is a row whose quantity and each-price stand beside it.
  bool HasColumns(int area) const { return IsRow(area) && txtQty[area].Visible(); }
  /// Whether an area's tax mark shows: its amount is exempt.
  bool IsExempt(int area) const { return IsItemPage() && imgNoTax[area].Visible(); }

 private:
  Array<Control*> order_;
};

/// The page of a window index, 0 to 6.
Page& page(int window);
/// The page that owns a control; null for a control of the frame or of another window.
Page* PageOf(const Control& control);
/// The page "frmP2"; null when there is none of that name.
Page* PageNamed(const QString& name);
/// The control "frmP2.txt(35)" or "frmP2.txtQty(3)"; null when there is none.
Control* FindPageControl(const QString& fullName);

/// The limit and the kind that an area's Tag carries: "Push.120" gives 120 and "Push".
int AreaLimit(const Control& area);
QString AreaKind(const Control& area);
inline bool IsNumericArea(const Control& area) {
  return area.Tag().endsWith(QLatin1String("020"));
}

/// Builds the seven pages anew (a test's fresh start); controls stand at their places with their Tags.
void CreatePages();

}  // namespace quillane
