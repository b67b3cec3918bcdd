#include <QAbstractButton>
#include <QAction>
#include <QScrollBar>

#include "failure.h"
#include "print/draw.h"
#include "properties.h"
#include "statements.h"

namespace quillane::scenario {

namespace {

Target Named(World& world, const Statement& statement, const char* grammar) {
  if (statement.Count() < 2) throw BadStatement(QLatin1String(grammar));
  return Find(world.stage, statement.At(1));
}

int RowNamed(const Target& list, const Word& row) {
  const QStringList rows = RowsOf(list.widget);
  if (!row.quoted)
    if (const std::optional<double> index = ReadNumber(row.text)) return static_cast<int>(*index);
  qsizetype found = rows.indexOf(row.text);
  for (qsizetype at = 0; found < 0 && at < rows.size(); ++at)
    if (rows[at].trimmed() == row.text.trimmed()) found = at;
  if (found < 0)
    throw Failure(QStringLiteral("%1 has the row %2").arg(list.name, InQuotes(row.text)),
                  rows.isEmpty() ? QStringLiteral("it is empty") : rows.join(QStringLiteral(" | ")));
  return static_cast<int>(found);
}

void Start(World& world, const Statement& statement) {
  world.desk.actsDuringSplash = statement.Is(2, "moving");
  world.Start(statement.Is(1, "splash") ? Program::Splash::Show : Program::Splash::Skip);
}

void Focus(World& world, const Statement& statement) {
  world.hands.Focus(Named(world, statement, "focus frmP2.txt(35)"));
}

void Type(World& world, const Statement& statement) {
  world.hands.Type(statement.Rest(1));
}

void Key(World& world, const Statement& statement) {
  const double times = statement.Count() > 2 ? statement.Number(2, "key Shift+Down 3") : 1;
  world.hands.Key(statement.At(1), static_cast<int>(times));
}

Handler Clicking(Qt::MouseButton button, Clicks clicks) {
  return [=](World& world, const Statement& statement) {
    const Target target = Named(world, statement, "click C");
    if (statement.Count() > 2)
      return world.hands.Choose(target, RowNamed(target, statement.words[2]), clicks);
    // An entry of a menu has no place of its own until its menu is open.
    if (!target.widget && target.action) return world.PullMenu(statement.At(1));
    world.hands.Click(target, button, clicks);
  };
}

void Hover(World& world, const Statement& statement) {
  world.hands.Hover(Named(world, statement, "hover C"));
}

void DragBy(World& world, const Statement& statement) {
  constexpr const char* grammar = "drag frmP2.lbl(0) by 360 -180";
  const Target target = Find(world.stage, statement.At(1));
  if (!target.control || !target.page) throw BadStatement(QLatin1String(grammar));
  const QPointF way(statement.Number(3, grammar), statement.Number(4, grammar));
  const Box box = EditingBox(*target.control);
  const QPointF from(double{box.left} + double{box.width} / 2, double{box.top} + double{box.height} / 2);
  world.hands.Drag(*target.page, from, from + way);
}

void Drag(World& world, const Statement& statement) {
  if (statement.Is(2, "by")) return DragBy(world, statement);
  constexpr const char* grammar = "drag frmP2 600 1700 11500 3000";
  Page* page = FindPage(statement.At(1));
  if (!page) throw BadStatement(QLatin1String(grammar));
  world.hands.Drag(*page, {statement.Number(2, grammar), statement.Number(3, grammar)},
                   {statement.Number(4, grammar), statement.Number(5, grammar)});
}

void DragTo(World& world, const Statement& statement) {
  if (statement.Count() < 3) throw BadStatement(QStringLiteral("dragto C1 [\"row text\"] C2"));
  const Target from = Find(world.stage, statement.At(1));
  const Target to = Find(world.stage, statement.words.back().text);
  QString text;
  if (statement.Count() > 3) {
    const int row = RowNamed(from, statement.words[2]);
    world.hands.Choose(from, row);
    text = RowsOf(from.widget).value(row);
  } else {
    text = ReadProperty(from, QString(), -1).text;
  }
  world.hands.Drop(from.widget, text, to);
}

void Menu(World& world, const Statement& statement) {
  if (statement.Count() < 2) throw BadStatement(QStringLiteral("menu mnuFileSaveEvent"));
  world.PullMenu(statement.At(1));
}

void PopUp(World& world, const Statement& statement) {
  if (statement.Count() < 2) throw BadStatement(QStringLiteral("popup mnuEditTextTaxExempt"));
  world.PullPopUp(statement.At(1));
}

void Set(World& world, const Statement& statement) {
  const Target target = Named(world, statement, "set C \"text\"");
  if (auto* bar = qobject_cast<QScrollBar*>(target.widget)) return bar->setValue(statement.At(2).toInt());
  world.hands.Click(target, Qt::LeftButton);
  world.hands.SelectAll(target);
  if (statement.At(2).isEmpty())
    world.hands.Key(QStringLiteral("Delete"), 1);
  else
    world.hands.Type(statement.Rest(2));
}

void Choose(World& world, const Statement& statement) {
  const Target target = Named(world, statement, "choose C \"row text\" | choose C INDEX");
  if (statement.Count() < 3) return world.hands.Click(target, Qt::LeftButton);
  world.hands.Choose(target, RowNamed(target, statement.words[2]));
}

/// Clicks a check box or pulls an entry with a check mark until it has the state that the script wants.
Handler Checking(bool wanted) {
  return [=](World& world, const Statement& statement) {
    const Target target = Named(world, statement, "check C");
    const auto checked = [&] {
      return Equal(ReadProperty(target, QStringLiteral("Checked"), -1), QStringLiteral("True"));
    };
    if (checked() == wanted) return;
    if (target.action)
      world.PullMenu(statement.At(1));
    else
      world.hands.Click(target, Qt::LeftButton);
  };
}

void AnswerNext(World& world, const Statement& statement) {
  static const std::map<QString, Answer> answers{
      {"yes", Answer::Yes}, {"no", Answer::No}, {"cancel", Answer::Cancel}, {"ok", Answer::Ok}};
  const auto found = answers.find(statement.At(1).toLower());
  if (statement.Quoted(1))
    world.desk.boxes.QueueText(statement.At(1));
  else if (found != answers.end())
    world.desk.boxes.QueueAnswer(found->second);
  else
    throw BadStatement(QStringLiteral("answer Yes|No|Cancel|OK, or answer \"text\""));
}

}  // namespace

const Handlers& ActionStatements() {
  static const Handlers handlers{
      {"start", Start},
      {"restart", [](World& world, const Statement&) { world.Restart(); }},
      {"exit", [](World& world, const Statement&) { world.Exit(); }},
      {"focus", Focus},
      {"type", Type},
      {"key", Key},
      {"click", Clicking(Qt::LeftButton, Clicks::Single)},
      {"doubleclick", Clicking(Qt::LeftButton, Clicks::Double)},
      {"rightclick", Clicking(Qt::RightButton, Clicks::Single)},
      {"hover", Hover},
      {"drag", Drag},
      {"dragto", DragTo},
      {"menu", Menu},
      {"popup", PopUp},
      {"set", Set},
      {"choose", Choose},
      {"check", Checking(true)},
      {"uncheck", Checking(false)},
      {"answer", AnswerNext},
      {"clipboard", [](World& world, const Statement& statement) { world.desk.clipboard = statement.At(1); }},
      {"shot", [](World& world, const Statement& statement) { world.Shot(statement.Rest(1)); }},
      {"keep", [](World& world, const Statement& statement) { world.Keep(statement.Rest(1)); }},
  };
  return handlers;
}

}  // namespace quillane::scenario
