// What a hand may write into a control: which characters pass, and what a paste brings.
#include <algorithm>

#include "editing/area_rules.h"
#include "model/frame.h"
#include "model/proposal.h"
#include "platform/codepage.h"
#include "platform/numbers.h"
#include "ui/desk.h"

namespace quillane {

namespace {

// With Alt as well it is the key that reaches a keyboard's third characters, which is typing.
bool IsCommandKey(const KeyEvent& event) {
  return event.ctrl && !event.alt;
}

constexpr qsizetype LongestFigure = 64;
constexpr qsizetype LongestPaste = 32000;

// A copied cell or line brings its line break along, and an area is one line.
QString AsOneLine(QString text) {
  text.remove(QLatin1Char('\r'));
  while (text.endsWith(QLatin1Char('\n'))) text.chop(1);
  return text.replace(QLatin1Char('\n'), QLatin1Char(' ')).replace(QLatin1Char('\t'), QLatin1Char(' '));
}

bool IsDigit(QChar character) {
  return character >= QLatin1Char('0') && character <= QLatin1Char('9');
}

bool Passes(const QString& text, const QString& others) {
  return std::all_of(text.begin(), text.end(), [&](QChar c) { return IsDigit(c) || others.contains(c); });
}

// Which characters, beside the digits, a figure may be typed with.
QString SignsOf(const Page& page, const Control& control) {
  if (IsColumnBox(control)) return QStringLiteral(".");
  return page.IsTotalsPage() ? QStringLiteral(",.") : QStringLiteral(",-.");
}

bool TakesFigures(const Control& control) {
  return IsColumnBox(control) || IsNumericArea(control);
}

Handled FilterCharacter(const Page& page, Control& control, const KeyEvent& event) {
  if (IsWalk(event)) return Handled::Yes;
  if (!IsPrintable(event)) return Handled::No;
  if (TakesFigures(control) && !Passes(event.text, SignsOf(page, control))) return Handled::Yes;
  if (IsColumnBox(control) && ShowsPrompt(control)) control.SetText(QString());
  return Handled::No;
}

}  // namespace

bool IsPaste(const KeyEvent& event) {
  return (IsCommandKey(event) && event.key == 'V') || (event.shift && event.key == keys::Insert);
}

bool IsPrintable(const KeyEvent& event) {
  return !IsCommandKey(event) && !event.text.isEmpty() && event.text.front() >= QLatin1Char(' ');
}

bool Writes(const KeyEvent& event) {
  if (event.key == keys::Delete || event.key == keys::Backspace || IsPaste(event) || IsPrintable(event))
    return true;
  return IsCommandKey(event) && (event.key == 'X' || event.key == 'Y' || event.key == 'Z');
}

Handled KeyPress(Control& control, const KeyEvent& event) {
  Page* page = PageOf(control);
  if (!page) return Handled::No;
  if (editing.AreasSelected || !AcceptsTyping(control)) return Handled::Yes;
  if (IsEachPrice(control) && (editing.RebuildingPages || editing.OpeningFile)) return Handled::Yes;
  const Handled handled = Answered(*page, [&] { return FilterCharacter(*page, control, event); });
  if (handled == Handled::Yes) editing.Typing = false;
  return handled;
}

bool AcceptsTyping(const Control& control) {
  const Page* page = PageOf(control);
  if (!page || page->window == CopyOfPage6 || control.Locked() || editing.AreasSelected || InPreview())
    return false;
  // The columns of a fixed row are fixed with it: what is stored of such a row is never read back.
  return !FixedByFormat(*page, control.Index());
}

QString PasteInto(const Control& control, const QString& text) {
  if (!AcceptsTyping(control)) return {};
  if (TakesFigures(control)) {
    const QString figure = text.left(LongestFigure + 1).trimmed();
    const bool taken = IsColumnBox(control) ? Passes(figure, QStringLiteral(".")) : IsNumeric(figure);
    return taken && figure.size() <= LongestFigure ? figure : QString();
  }
  if (text.size() > LongestPaste) {
    Tell(QStringLiteral("The clipboard holds too much text for one text area."));
    return {};
  }
  return FoldToCodePage(AsOneLine(text));
}

}  // namespace quillane
