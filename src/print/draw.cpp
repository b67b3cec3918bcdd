#include "print/draw.h"

#include <algorithm>

#include "model/frame.h"
#include "model/proposal.h"

namespace quillane {

namespace {

constexpr float HairLine = 10;  // half a point: crisp on paper, one pixel on a screen
constexpr float CategoryLeft = 720, CategoryRight = 11520;
constexpr Color BorderColor = 0xA0A0A0;

bool PrintsRightAligned(const Page& page, const Control& box) {
  if (page.IsTotalsPage()) return true;
  if (box.Array() != QLatin1String("txt")) return false;
  return page.IsAmount(box.Index()) || (page.window == 0 && box.Index() == 1);
}

void PrintText(Surface& surface, const Font& font, Color color, float left, float top, const QString& text) {
  if (text.isEmpty()) return;
  surface.SetFont(font);
  surface.SetColor(color);
  surface.Print(left, top, text);
}

// Paper has neither the blue of a selection nor the white text on it.
Color RestingTextColor(const Control& box) {
  return box.BackColor() == colors::Blue ? proposal.UDP.FontColor : box.ForeColor();
}

void PrintTextBox(Surface& surface, const Page& page, const Control& box) {
  Font font = box.GetFont();
  font.italic = font.underline = false;
  surface.SetFont(font);
  const float left = PrintedLeft(page, box, surface.Width(box.Text()));
  PrintText(surface, font, RestingTextColor(box), left, box.Top(), box.Text());
  // A bold area of full width heads a main category.
  if (editing.UnderlineMainCategories && font.bold && box.Width() == sheet::PlainWidth) {
    const float y = box.Top() + box.Height();
    surface.Line(CategoryLeft, y, CategoryRight, y, colors::Black, HairLine);
  }
}

void EditTextBox(Surface& surface, const Control& box) {
  const Box area = EditingBox(box);
  surface.FillRect(area.left, area.top, area.width, area.height, box.BackColor());
  PrintText(surface, box.GetFont(), box.ForeColor(), box.Left(), box.Top(), box.Text());
}

void Outline(Surface& surface, const Box& box, Color color) {
  const float right = box.left + box.width, bottom = box.top + box.height;
  surface.Line(box.left, box.top, right, box.top, color, HairLine);
  surface.Line(right, box.top, right, bottom, color, HairLine);
  surface.Line(right, bottom, box.left, bottom, color, HairLine);
  surface.Line(box.left, bottom, box.left, box.top, color, HairLine);
}

void DrawLogo(Surface& surface, const Control& logo, DrawMode mode) {
  const Picture& picture = logo.GetPicture();
  if (picture.source.isEmpty()) return;
  // The printer's offsets do not move the logo: what the origin takes away is added again.
  surface.PaintPicture(picture, logo.Left() + surface.ScaleLeft(), logo.Top() + surface.ScaleTop(),
                       picture.width, picture.height);
  const Control* border = frame().Find(QStringLiteral("mnuEditLogoBorder"));
  if (mode == DrawMode::Editing && border && border->Checked())
    Outline(surface, {logo.Left(), logo.Top(), picture.width, picture.height}, BorderColor);
}

/// The ground of a marked label is the screen's only.
void DrawLabel(Surface& surface, const Control& label, DrawMode mode) {
  if (mode == DrawMode::Editing && label.BackStyle() == Backing::Opaque)
    surface.FillRect(label.Left(), label.Top(), label.Width(), label.Height(), label.BackColor());
  PrintText(surface, label.GetFont(), label.ForeColor(), label.Left(), label.Top(), label.Caption());
}

void DrawMark(Surface& surface, const Control& mark) {
  Picture picture = mark.GetPicture();
  if (picture.source.isEmpty()) picture.source = QStringLiteral(":/icons/no-tax.svg");
  surface.PaintPicture(picture, mark.Left(), mark.Top(), mark.Width(), mark.Height());
}

void DrawRule(Surface& surface, const Control& line) {
  surface.Line(line.Left(), line.Top(), line.Left() + line.Width(), line.Top() + line.Height(),
               line.ForeColor(), HairLine);
}

bool IsRowWithColumns(const Control& area) {
  const Page* owner = area.Array() == QLatin1String("txt") ? PageOf(area) : nullptr;
  return owner && owner->HasColumns(area.Index());
}

}  // namespace

float PrintedLeft(const Page& page, const Control& box, float textWidth) {
  return PrintsRightAligned(page, box) ? box.Left() + box.Width() - textWidth : box.Left();
}

Box EditingBox(const Control& control) {
  const Box box{control.Left(), control.Top(), control.Width(), control.Height()};
  switch (control.GetKind()) {
    case Kind::TextBox:
      // A row with columns ends short of the "@" behind it by as much as it begins early.
      return {box.left - EditingInset, box.top, box.width + (IsRowWithColumns(control) ? 0 : EditingInset),
              box.height};
    case Kind::Picture:
      return {box.left, box.top, std::max(box.width, control.GetPicture().width),
              std::max(box.height, control.GetPicture().height)};
    case Kind::Line:
      return {std::min(box.left, box.left + box.width), std::min(box.top, box.top + box.height),
              std::abs(box.width), std::abs(box.height)};
    default:
      return box;
  }
}

void DrawControl(Surface& surface, const Page& page, const Control& control, DrawMode mode) {
  const bool editMode = mode == DrawMode::Editing;
  if (editMode ? !control.Visible() : control.Hidden()) return;
  switch (control.GetKind()) {
    case Kind::Line:
      return DrawRule(surface, control);
    case Kind::Label:
      return DrawLabel(surface, control, mode);
    case Kind::Image:
      return DrawMark(surface, control);
    case Kind::TextBox:
      return editMode ? EditTextBox(surface, control) : PrintTextBox(surface, page, control);
    case Kind::Picture:
      return DrawLogo(surface, control, mode);
    case Kind::Shape:
      if (editMode) Outline(surface, EditingBox(control), control.ForeColor());
      return;
    default:
      return;
  }
}

void DrawPage(Surface& surface, const Page& page, DrawMode mode) {
  for (const Control* control : page.Controls()) DrawControl(surface, page, *control, mode);
}

}  // namespace quillane
