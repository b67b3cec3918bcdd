// A line that has become too wide gives its last words to the next one.
#include <algorithm>

#include "editing/area_rules.h"
#include "model/focus.h"
#include "model/proposal.h"

namespace quillane {

namespace {

// The place of the last blank up to which, itself included, the text is narrower than the area; -1 when there
// is none.
qsizetype LastFittingBlank(const Font& font, const QString& text, float width) {
  qsizetype fitting = -1;
  for (qsizetype blank = text.indexOf(QLatin1Char(' ')); blank >= 0;
       blank = text.indexOf(QLatin1Char(' '), blank + 1)) {
    if (TextWidth(font, text.left(blank + 1)) >= width) break;
    fitting = blank;
  }
  return fitting;
}

// The tail of a line that was broken further in ends without a blank: its last word and the first of the next
// line would become one.  At a line's end the blank that was typed goes along, so the caret's place holds.
QString Before(const QString& moved, const QString& old) {
  const bool wouldGlue =
      !moved.isEmpty() && !moved.back().isSpace() && !old.isEmpty() && old.front().isLetterOrNumber();
  return wouldGlue ? moved + QLatin1Char(' ') + old : moved + old;
}

void PlaceCaretAfterPush(Control& line, Control& next, int movedLength) {
  if (editing.PushKeepCaret) {
    ++editing.CursorLocation;
    line.SetSelStart(editing.CursorLocation);
  }
  if (editing.PushMoveCaret) {
    SetFocus(next);
    next.SetSelStart(movedLength);
    editing.CursorLocation = next.SelStart();
    ScrollToShow(next, keys::PageDown);
  }
}

void PushWords(Page& page, int area) {
  if (FixedByFormat(page, area + 1)) return;
  Control& line = At(page.txt, area);
  Control& next = At(page.txt, area + 1);
  const QString text = editing.CurrentText;
  const qsizetype blank = LastFittingBlank(line.GetFont(), text, editing.CurrentAreaWidth);
  if (blank < 0) return;
  const QString moved = text.mid(blank + 1);
  const bool begunHere = !editing.Cascading;
  {
    Scoped cascade(editing.Cascading, true);
    line.SetText(text.left(blank));
    next.SetText(Before(moved, next.Text()));
  }
  // The key that began the cascade decides the caret, so only the first line places it.
  if (begunHere) PlaceCaretAfterPush(line, next, static_cast<int>(moved.size()));
  editing.PushPending = false;
}

}  // namespace

void CheckPushNeeded() {
  if (editing.Cascading) {
    editing.PushPending = true;
    return;
  }
  const auto length = static_cast<int>(editing.CurrentText.size());
  if (editing.CursorLocation == length - 1) {
    editing.PushMoveCaret = true;
    editing.PushKeepCaret = false;
    editing.PushPending = editing.CurrentText.endsWith(QLatin1Char(' '));
  } else if (editing.CursorLocation < length) {
    editing.PushMoveCaret = false;
    editing.PushPending = editing.LastKey == QLatin1String(" ");
    if (editing.PushPending) editing.PushKeepCaret = true;
  }
}

void PushTheText(Page& page, int area) {
  Guarded("PushTheText", [&] { PushWords(page, area); });
}

}  // namespace quillane
