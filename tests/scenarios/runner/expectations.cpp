#include <QApplication>

#include "failure.h"
#include "model/page.h"
#include "model/proposal.h"
#include "properties.h"
#include "sample.h"
#include "sheet/sheet_view.h"
#include "statements.h"
#include "windows/frame_window.h"

namespace quillane::scenario {

namespace {

void Compare(const QString& wanted, QString there) {
  there.replace(QLatin1String("\r\n"), QLatin1String("\n"));
  if (wanted != there) throw Failure(InQuotes(wanted), InQuotes(there));
}

QString FocusName(World& world) {
  QWidget* focus = QApplication::focusWidget();
  if (focus && focus->window() == world.stage.program->Window() && editing.Focus)
    return editing.Focus->FullName();
  return focus ? focus->window()->objectName() + QLatin1Char('.') + focus->objectName()
               : QStringLiteral("nothing");
}

bool HasFocus(World& world, const Target& target) {
  QWidget* focus = QApplication::focusWidget();
  if (target.control) {
    // The model's focus and the keyboard's must agree, or keys would write somewhere else.
    if (editing.Focus != target.control) return focus && focus == target.widget;
    return !target.page ||
           (focus && (focus == &world.stage.Sheet() || world.stage.Sheet().isAncestorOf(focus)));
  }
  return focus && target.widget && (focus == target.widget || target.widget->isAncestorOf(focus));
}

void ExpectFocus(World& world, const Statement& statement) {
  const Target target = Find(world.stage, statement.At(2));
  if (!HasFocus(world, target))
    throw Failure(QStringLiteral("the focus in ") + target.name, QStringLiteral("in ") + FocusName(world));
}

void ExpectFront(World& world, const Statement& statement) {
  if (const Page* page = FindPage(statement.At(2))) {
    const int shown = world.stage.Sheet().CurrentWindow();
    if (shown != page->window || editing.FrontWindow != page->window)
      throw Failure(page->form.name + QStringLiteral(" in front"), quillane::page(shown).form.name);
    return;
  }
  QWidget* front = world.stage.Front();
  const QString name = front ? front->objectName() : QStringLiteral("nothing");
  if (name.compare(statement.At(2), Qt::CaseInsensitive) != 0)
    throw Failure(statement.At(2) + QStringLiteral(" in front"), name);
}

void ExpectWindow(World& world, const Statement& statement) {
  const bool wanted = statement.Is(3, "open");
  if (!wanted && !statement.Is(3, "closed"))
    throw BadStatement(QStringLiteral("expect window frmFUT open|closed"));
  QWidget* window = world.stage.Window(statement.At(2));
  const bool open = window && window->isVisible();
  if (open != wanted)
    throw Failure(statement.At(2) + QLatin1Char(' ') + statement.At(3),
                  open ? QStringLiteral("open") : QStringLiteral("closed"));
}

void ExpectPrinted(World& world, const Statement& statement) {
  const double wanted = statement.Number(2, "expect printed 3");
  const size_t there = world.paper.Count();
  if (there != static_cast<size_t>(wanted))
    throw Failure(QStringLiteral("%1 documents").arg(wanted), QStringLiteral("%1 documents").arg(there));
}

void ExpectPage(World& world, const Statement& statement) {
  constexpr const char* grammar = "expect page 1 \"Balance Due\" at 7560 2160, or expect page 1 prints frmP6";
  const int sheet = static_cast<int>(statement.Number(2, grammar));
  const Page* page = FindPage(statement.At(4));
  const bool whole = statement.Is(3, "prints");
  if (statement.Count() < 4 || (whole && !page)) throw BadStatement(QLatin1String(grammar));
  if (whole) return world.paper.ExpectPage(sheet, *page);
  if (!statement.Is(4, "at")) return world.paper.ExpectText(sheet, statement.At(3));
  world.paper.ExpectText(sheet, statement.At(3), statement.Number(5, grammar), statement.Number(6, grammar));
}

void ExpectOpened(World& world, const Statement& statement) {
  const QString wanted = statement.Rest(2);
  for (const QString& opened : world.desk.opened)
    if (opened == wanted || opened.endsWith(QLatin1Char('/') + wanted)) return;
  throw Failure(InQuotes(wanted) + QStringLiteral(" was opened"),
                world.desk.opened.isEmpty() ? QStringLiteral("nothing was")
                                            : world.desk.opened.join(QStringLiteral(", ")));
}

/// `expect C.Property "value"`; a word "is" or "=" in between does no harm.
void ExpectProperty(World& world, const Statement& statement) {
  ControlName name = ParseControl(statement.At(1), Property::Expected);
  const size_t at = statement.Is(2, "is") || statement.Is(2, "=") ? 3 : 2;
  if (statement.Count() <= at) throw BadStatement(QStringLiteral("expect C.Property \"value\""));
  Target target;
  try {
    target = Find(world.stage, name);
  } catch (const Failure&) {
    // "frmMain.Caption", "cmdReCalc.Visible" and "frmTax.Visible" without a control of that name.
    if (!name.property.isEmpty() || name.form.isEmpty()) throw;
    name.property = std::exchange(name.control, QString());
    target = Find(world.stage, name);
  }
  const Value value = ReadProperty(target, name.property, name.propertyIndex);
  if (!Equal(value, statement.At(at))) throw Failure(InQuotes(statement.At(at)), InQuotes(value.text));
}

void Expect(World& world, const Statement& statement) {
  static const Handlers kinds{
      {"focus", ExpectFocus},
      {"front", ExpectFront},
      {"window", ExpectWindow},
      {"printed", ExpectPrinted},
      {"page", ExpectPage},
      {"opened", ExpectOpened},
      {"clipboard", [](World& w, const Statement& s) { Compare(s.At(2), w.desk.clipboard); }},
      {"sample", [](World& w, const Statement& s) { ExpectSample(w, s.At(2)); }},
  };
  if (statement.Count() < 3) throw BadStatement(QStringLiteral("expect C.Property \"value\""));
  const auto kind = kinds.find(statement.At(1).toLower());
  if (kind != kinds.end() && !statement.Quoted(1)) return kind->second(world, statement);
  ExpectProperty(world, statement);
}

void Message(World& world, const Statement& statement) {
  std::optional<QString> title;
  QStringList lines;
  const Match match = statement.Is(1, "like") ? Match::Like : Match::Exact;
  for (size_t at = match == Match::Like ? 2 : 1; at < statement.Count(); ++at) {
    if (statement.Is(at, "title"))
      title = statement.At(++at);
    else
      lines.append(statement.At(at));
  }
  if (lines.isEmpty()) throw BadStatement(QStringLiteral("message [like] \"text\" [title \"text\"]"));
  const QString text = lines.join(QLatin1Char('\n'));
  const QString instead = world.desk.boxes.Foresee(statement.line, text, title, match);
  if (!instead.isEmpty())
    throw Failure(QStringLiteral("the box ") + InQuotes(text) +
                      (title ? QStringLiteral(" title ") + InQuotes(*title) : QString()),
                  instead);
}

void NoMessage(World& world, const Statement&) {
  const QString box = world.desk.boxes.Unforeseen();
  if (!box.isEmpty()) throw Failure(QStringLiteral("no box"), box);
}

}  // namespace

const Handlers& ExpectationStatements() {
  static const Handlers handlers{
      {"expect", Expect},
      {"message", Message},
      {"nomessage", NoMessage},
      {"file", [](World& world, const Statement& statement) { world.files.Expect(statement); }},
  };
  return handlers;
}

}  // namespace quillane::scenario
