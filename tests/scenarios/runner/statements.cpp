#include "statements.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QScrollBar>
#include <cerrno>
#include <string_view>

#include "input.h"
#include "model/page.h"
#include "model/proposal.h"
#include "platform/files.h"
#include "print/draw.h"
#include "properties.h"
#include "sample.h"
#include "sheet/sheet_view.h"
#include "values.h"
#include "windows/frame_window.h"

namespace quillane::scenario {

namespace {

using Args = Arguments;

// Before the start.

/// Replaces the line that begins with the key.
void Pref(Player& player, const Args& args) {
  player.FillFolder();
  const QString file = QStringLiteral("UserPreferences.txt");
  const QString key =
      args.Text(0).endsWith(QLatin1Char(':')) ? args.Text(0) : args.Text(0) + QLatin1Char(':');
  QStringList lines = FileText(player.files.Contents(file)).split(QStringLiteral("\r\n"));
  const auto found = std::find_if(lines.begin(), lines.end(), [&](const QString& line) {
    return line.startsWith(key, Qt::CaseInsensitive);
  });
  if (found == lines.end())
    throw Failure(QStringLiteral("a preference ") + key, QStringLiteral("there is none"));
  *found = found->left(key.size()) + args.Text(1);
  player.files.Write(file, FileBytes(lines.join(QStringLiteral("\r\n"))));
}

void Clock(Player& player, const Args& args) {
  QString time = args.Has(1) ? args.Text(1) : QStringLiteral("00:00");
  if (time.size() == 4) time.prepend(QLatin1Char('0'));
  player.desk.now = {QDate::fromString(args.Text(0), Qt::ISODate), QTime::fromString(time, Qt::ISODate)};
  if (!player.desk.now.isValid()) throw Failure(QStringLiteral("clock 2026-11-22 10:30"), args.Text(0));
}

/// The system keeps its dictionaries in the shared data folders; an empty folder stands in for them.
void NoDictionary(Player& player, const Args&) {
  for (const char* variable : {"XDG_DATA_DIRS", "DICPATH"})
    qputenv(variable, QFile::encodeName(QDir(player.files.Root()).filePath(QStringLiteral("../share"))));
}

/// A disk without room: what writes fails, what reads does not.
int NoRoom(const char* step, const QString&) {
  const std::string_view at(step);
  return at == "write" || at == "flush" ? ENOSPC : 0;
}

void Disk(Player&, const Args& args) {
  SetFaultHook(args.Text(0).toLower() == QLatin1String("full") ? NoRoom : nullptr);
}

// What a person does.

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

std::function<void(Player&, const Args&)> Clicking(Mouse mouse) {
  return [=](Player& player, const Args& args) {
    const Target target = player.Find(args.Text(0));
    if (args.Has(1)) return Choose(target, RowNamed(target, args.All(1).front()), mouse);
    // An entry of a menu has no place of its own until its menu is open.
    if (!target.widget && target.action) return PullMenu(player, args.Text(0));
    Click(player, target, mouse);
  };
}

void DragPage(Player& player, const Args& args) {
  const Page* page = FindPage(args.Text(0));
  if (!page) throw Failure(QStringLiteral("a page"), args.Text(0));
  Drag(player, *page, {args.Number(1), args.Number(2)}, {args.Number(3), args.Number(4)});
}

void DragBy(Player& player, const Args& args) {
  const Target target = player.Find(args.Text(0));
  if (!target.control || !target.page) throw Failure(QStringLiteral("a control of a page"), args.Text(0));
  const Box box = EditingBox(*target.control);
  const QPointF from(double{box.left} + double{box.width} / 2, double{box.top} + double{box.height} / 2);
  Drag(player, *target.page, from, from + QPointF(args.Number(1), args.Number(2)));
}

void DragTo(Player& player, const Args& args) {
  const Target from = player.Find(args.Text(0)), to = player.Find(args.Text(2));
  if (!args.Has(1)) return Drop(player, from.widget, ReadProperty(from, QString()).Text(), to);
  const int row = RowNamed(from, args.All(1).front());
  Choose(from, row);
  Drop(player, from.widget, RowsOf(from.widget).value(row), to);
}

void Set(Player& player, const Args& args) {
  const Target target = player.Find(args.Text(0));
  if (auto* bar = qobject_cast<QScrollBar*>(target.widget)) return bar->setValue(args.Text(1).toInt());
  Click(player, target);
  SelectAll(player, target);
  if (args.Text(1).isEmpty())
    Key(player, QStringLiteral("Delete"), 1);
  else
    Type(player, args.Text(1));
}

void ChooseRow(Player& player, const Args& args) {
  const Target target = player.Find(args.Text(0));
  if (!args.Has(1)) return Click(player, target);
  const QString held = args.Text(2).toLower();
  Mouse mouse;
  if (!held.isEmpty()) mouse.held = held == QLatin1String("ctrl") ? Qt::ControlModifier : Qt::ShiftModifier;
  Choose(target, RowNamed(target, args.All(1).front()), mouse);
}

/// Clicks a check box or pulls an entry with a check mark until it has the state that the script wants.
template <bool Wanted>
void Checking(Player& player, const Args& args) {
  const Target target = player.Find(args.Text(0));
  if (ReadProperty(target, QStringLiteral("Checked")).value.toBool() == Wanted) return;
  if (target.action)
    PullMenu(player, args.Text(0));
  else
    Click(player, target);
}

void AnswerNext(Player& player, const Args& args) {
  static const QHash<QString, Answer> answers{
      {"yes", Answer::Yes}, {"no", Answer::No}, {"cancel", Answer::Cancel}, {"ok", Answer::Ok}};
  player.desk.boxes.QueueAnswer(answers[args.Text(0).toLower()]);
}

void Shot(Player& player, const Args& args) {
  QWidget* front = player.Front();
  if (!front) throw Failure(QStringLiteral("a window to picture"), QStringLiteral("none is open"));
  const QString file = QDir(player.OutputFolder()).filePath(args.Text(0) + QStringLiteral(".png"));
  if (!front->grab().save(file)) throw Failure(file, QStringLiteral("it cannot be written"));
}

void Keep(Player& player, const Args& args) {
  const QString from = player.files.PathOf(args.Text(0));
  const QString to = QDir(player.OutputFolder()).filePath(QFileInfo(from).fileName());
  QFile::remove(to);
  if (!QFile::copy(from, to))
    throw Failure(QStringLiteral("a copy of ") + from, QStringLiteral("there is none"));
}

// What must be true.

void ExpectFocus(Player& player, const Args& args) {
  const Target target = player.Find(args.Text(0));
  const QWidget* focus = QApplication::focusWidget();
  const QWidget* holder = target.control && target.page ? &player.Sheet() : target.widget;
  const bool inside = focus && holder && (focus == holder || holder->isAncestorOf(focus));
  // The model's focus and the keyboard's must agree, or keys would write somewhere else.
  const bool agrees = !target.page || editing.Focus == target.control;
  if (inside && agrees) return;
  const bool onSheet =
      focus && player.program && focus->window() == player.program->Window() && editing.Focus;
  throw Failure(QStringLiteral("the focus in ") + target.name,
                onSheet ? QStringLiteral("in ") + editing.Focus->FullName()
                : focus ? QStringLiteral("in %1.%2").arg(focus->window()->objectName(), focus->objectName())
                        : QStringLiteral("in nothing"));
}

void ExpectFront(Player& player, const Args& args) {
  const QWidget* front = player.Front();
  QString name = front ? front->objectName() : QStringLiteral("nothing");
  if (const Page* wanted = FindPage(args.Text(0)); wanted && editing.FrontWindow() == wanted->window)
    name = page(player.Sheet().CurrentWindow()).form.name;
  if (name.compare(args.Text(0), Qt::CaseInsensitive) != 0)
    throw Failure(args.Text(0) + QStringLiteral(" in front"), name);
}

void ExpectWindow(Player& player, const Args& args) {
  const QWidget* window = player.Window(args.Text(0));
  const QString there = window && window->isVisible() ? QStringLiteral("open") : QStringLiteral("closed");
  if (there.compare(args.Text(1), Qt::CaseInsensitive) != 0)
    throw Failure(args.Text(0) + QLatin1Char(' ') + args.Text(1), there);
}

void ExpectClipboard(Player& player, const Args& args) {
  QString there = player.desk.clipboard;
  there.replace(QLatin1String("\r\n"), QLatin1String("\n"));
  if (args.Text(0) != there) throw Failure(InQuotes(args.Text(0)), InQuotes(there));
}

void ExpectPrinted(Player& player, const Args& args) {
  if (const int there = player.paper.Count(); there != args.Int(0))
    throw Failure(args.Text(0) + QStringLiteral(" documents"), QStringLiteral("%1 documents").arg(there));
}

void ExpectPrints(Player& player, const Args& args) {
  const Page* page = FindPage(args.Text(1));
  if (!page) throw Failure(QStringLiteral("a page"), args.Text(1));
  player.paper.ExpectPage(args.Text(0), *page);
}

void ExpectOnPaper(Player& player, const Args& args) {
  if (args.Has(2))
    player.paper.ExpectText(args.Text(0), args.Text(1), QPointF(args.Number(2), args.Number(3)));
  else
    player.paper.ExpectText(args.Text(0), args.Text(1), std::nullopt);
}

void ExpectOpened(Player& player, const Args& args) {
  const QString wanted = args.Text(0);
  for (const QString& opened : player.desk.opened)
    if (opened == wanted || opened.endsWith(QLatin1Char('/') + wanted)) return;
  throw Failure(InQuotes(wanted) + QStringLiteral(" was opened"),
                player.desk.opened.join(QStringLiteral(", ")));
}

void ExpectProperty(Player& player, const Args& args) {
  ControlName name = ParseControl(args.Text(0), Property::Expected);
  Target target;
  try {
    target = player.Find(name);
  } catch (const Failure&) {
    // "frmMain.Caption" and "frmTax.Visible" without a control of that name.
    if (!name.property.isEmpty() || name.form.isEmpty()) throw;
    name.property = std::exchange(name.control, QString());
    target = player.Find(name);
  }
  const Value value = ReadProperty(target, name.property, name.propertyIndex);
  if (!Equal(value, args.Text(1))) throw Failure(InQuotes(args.Text(1)), InQuotes(value.Text()));
}

template <Match How>
void Message(Player& player, const Args& args) {
  const QString text = args.Texts(0).join(QLatin1Char('\n'));
  const std::optional<QString> title = args.Has(1) ? std::optional(args.Text(1)) : std::nullopt;
  const QString instead = player.desk.boxes.Foresee(text, title, How);
  if (!instead.isEmpty())
    throw Failure(QStringLiteral("the box ") + InQuotes(text) +
                      (title ? QStringLiteral(" title ") + InQuotes(*title) : QString()),
                  instead);
}

void NoMessage(Player& player, const Args&) {
  const QString box = player.desk.boxes.Unforeseen();
  if (!box.isEmpty()) throw Failure(QStringLiteral("no box"), box);
}

struct Kind {
  const char* pattern;
  const char* help;
  std::function<void(Player&, const Args&)> act;
  Looks looks = Looks::No;
};

const std::vector<Kind>& Kinds() {
  using P = Player&;
  using A = const Args&;
  static const std::vector<Kind> kinds{
      {"home FOLDER...", "copies a folder's files into \"Wedding Proposals\"",
       [](P p, A a) { p.files.Home(a.Text(0)); }},
      {"pref KEY [VALUE...]", "sets a line of UserPreferences.txt", Pref},
      {"clock DATE [TIME]", "the program's clock stands there", Clock},
      {"screen X Y", "the screen's size in pixels",
       [](P p, A a) { p.desk.screenWidth = a.Int(0), p.desk.screenHeight = a.Int(1); }},
      {"printers none", "there is no printer", [](P p, A) { p.desk.printers.clear(); }},
      {"printers NAME...", "these are the printers", [](P p, A a) { p.desk.printers = a.Texts(0); }},
      {"dictionary none", "the system has no dictionary", NoDictionary},
      {"put NAME line N TEXT", "replaces one line of a file",
       [](P p, A a) { p.FillFolder(), p.files.PutLine(a.Text(0), a.Int(1), a.Text(2)); }},
      {"put NAME line TEXT...", "writes a file of lines",
       [](P p, A a) {
         p.FillFolder(), p.files.Write(a.Text(0), FileBytes(a.Texts(1).join("\r\n") + "\r\n"));
       }},
      {"put NAME text TEXT", "writes a file of that text",
       [](P p, A a) { p.FillFolder(), p.files.Write(a.Text(0), FileBytes(a.Text(1))); }},
      {"put NAME hex HEX...", "writes a file of those bytes",
       [](P p, A a) { p.FillFolder(), p.files.Write(a.Text(0), HexBytes(a.Text(1))); }},
      {"remove NAME", "removes a file or folder",
       [](P p, A a) { p.FillFolder(), p.files.Remove(a.Text(0)); }},
      {"copy FROM TO", "copies a file", [](P p, A a) { p.files.Copy(a.Text(0), a.Text(1)); }},
      {"folder NAME", "makes a folder", [](P p, A a) { QDir().mkpath(p.files.PathOf(a.Text(0))); }},
      {"readonly NAME", "nobody may write the file or folder", [](P p, A a) { p.files.ReadOnly(a.Text(0)); }},
      {"writable NAME", "everybody may", [](P p, A a) { p.files.Writable(a.Text(0)); }},
      {"disk full|ok", "there is no room for what the program writes, or there is again", Disk},

      {"start", "starts the program, up to the main window", [](P p, A) { p.Start(Program::Splash::Skip); }},
      {"start splash", "starts it with the splash, which then waits",
       [](P p, A) { p.desk.actsDuringSplash = false, p.Start(Program::Splash::Show); }},
      {"start splash moving", "the same, while the splash still moves",
       [](P p, A) { p.desk.actsDuringSplash = true, p.Start(Program::Splash::Show); }},
      {"exit", "leaves through the menu", [](P p, A) { PullMenu(p, "mnuFileExit"); }},
      {"restart", "leaves and starts anew", [](P p, A) { p.Restart(); }},
      {"focus C", "a click that gives the focus", [](P p, A a) { Focus(p, p.Find(a.Text(0))); }},
      {"type TEXT...", "real keys, one for each letter", [](P p, A a) { Type(p, a.Text(0)); }},
      {"key KEY [N]", "a key with those held meanwhile, and how often",
       [](P p, A a) { Key(p, a.Text(0), a.Has(1) ? a.Int(1) : 1); }},
      {"press KEY", "a key goes down and stays down", [](P p, A a) { Press(p, a.Text(0)); }},
      {"release KEY", "it goes up again", [](P p, A a) { Release(p, a.Text(0)); }},
      {"compose TEXT...", "what an input method shows in turn, and the last for good",
       [](P, A a) { Compose(a.Texts(0)); }},
      {"click C [ROW]", "the mouse, in the middle of the control or on its row", Clicking({})},
      {"doubleclick C [ROW]", "the same, twice", Clicking({Qt::LeftButton, Clicks::Double, {}})},
      {"rightclick C [ROW]", "the other button", Clicking({Qt::RightButton, Clicks::Single, {}})},
      {"hover C", "the mouse rests there", [](P p, A a) { Hover(p, p.Find(a.Text(0))); }},
      {"drag C by X Y", "drags a label or the logo by twips", DragBy},
      {"drag FORM X Y X Y", "press, move, release on a page", DragPage},
      {"dragto C [ROW] C", "drags a row or a text onto another control", DragTo},
      {"menu ENTRY", "pulls an entry", [](P p, A a) { PullMenu(p, a.Text(0)); }},
      {"popup ENTRY", "the entry of the pop-up menu that is open", [](P, A a) { PullPopUp(a.Text(0)); }},
      {"close FORM", "closes a window by its frame", [](P p, A a) { Close(p, a.Text(0)); }},
      {"set C TEXT...", "click into it, select all, type", Set},
      {"choose C [ROW]", "a row of a list", ChooseRow},
      {"choose C ROW with ctrl|shift", "with that key held", ChooseRow},
      {"check C", "until it is checked", Checking<true>},
      {"uncheck C", "until it is not", Checking<false>},
      {"clipboard TEXT", "puts a text on the clipboard", [](P p, A a) { p.desk.clipboard = a.Text(0); }},
      {"answer yes|no|cancel|ok", "answers the next question", AnswerNext},
      {"answer \"text\"", "answers the next input box", [](P p, A a) { p.desk.boxes.QueueText(a.Text(0)); }},
      {"shot NAME...", "a picture of the window in front", Shot},
      {"keep NAME...", "a file of the program's folder stays", Keep},

      {"message like \"text\" [title \"text\"]", "the next box, * stands for anything", Message<Match::Like>,
       Looks::Yes},
      {"message \"text\"... [title \"text\"]", "the next box said exactly that", Message<Match::Exact>,
       Looks::Yes},
      {"nomessage", "no box came unforeseen", NoMessage, Looks::Yes},
      {"expect focus C", "the control has the focus", ExpectFocus, Looks::Yes},
      {"expect front FORM", "the page or window is in front", ExpectFront, Looks::Yes},
      {"expect window FORM open|closed", "the window is open or not", ExpectWindow, Looks::Yes},
      {"expect clipboard TEXT", "what is on the clipboard", ExpectClipboard, Looks::Yes},
      {"expect printed N", "so many documents since the last such line", ExpectPrinted, Looks::Yes},
      {"expect page SHEET prints FORM", "every text of a page at its place", ExpectPrints, Looks::Yes},
      {"expect page SHEET TEXT [at X Y]", "a text on a printed sheet", ExpectOnPaper, Looks::Yes},
      {"expect opened NAME...", "what the program gave to the desktop", ExpectOpened, Looks::Yes},
      {"expect sample NAME...", "the pages are as \"expected.json\" says",
       [](P p, A a) { ExpectSample(p.files.HomeSource(), a.Text(0)); }, Looks::Yes},
      {"expect PROPERTY TEXT", "the property has the value", ExpectProperty, Looks::Yes},
      {"file NAME exists|absent", "the file is there or not",
       [](P p, A a) { p.files.ExpectThere(a.Text(0), a.Text(1)); }, Looks::Yes},
      {"file NAME size N", "its length in bytes", [](P p, A a) { p.files.ExpectSize(a.Text(0), a.Int(1)); },
       Looks::Yes},
      {"file NAME at N TEXT", "the text stands at that byte",
       [](P p, A a) { p.files.ExpectAt(a.Text(0), a.Int(1), FileBytes(a.Text(2))); }, Looks::Yes},
      {"file NAME bytes N HEX...", "the bytes stand there",
       [](P p, A a) { p.files.ExpectAt(a.Text(0), a.Int(1), HexBytes(a.Text(2))); }, Looks::Yes},
      {"file NAME line N TEXT", "a line, counted from 1",
       [](P p, A a) { p.files.ExpectLine(a.Text(0), a.Int(1), a.Text(2)); }, Looks::Yes},
      {"file NAME lines N", "how many lines it has",
       [](P p, A a) { p.files.ExpectLines(a.Text(0), a.Int(1)); }, Looks::Yes},
      {"file NAME contains|lacks TEXT", "the text stands anywhere, or nowhere",
       [](P p, A a) { p.files.ExpectText(a.Text(0), a.Text(1), a.Text(2)); }, Looks::Yes},
      {"file NAME equals FILE...", "byte for byte",
       [](P p, A a) { p.files.ExpectEqual(a.Text(0), a.Text(1)); }, Looks::Yes},
  };
  return kinds;
}

}  // namespace

void Perform(Player& player, const Statement& statement, Looks& looks) {
  QStringList close;
  const QString verb = statement.words.front().text.toLower();
  for (const Kind& kind : Kinds()) {
    const QString pattern = QString::fromLatin1(kind.pattern);
    if (pattern.section(QLatin1Char(' '), 0, 0) != verb) continue;
    looks = kind.looks;
    if (const std::optional<Arguments> args = Fit(pattern, statement.words)) return kind.act(player, *args);
    close.append(pattern);
  }
  throw Failure(
      close.isEmpty() ? QStringLiteral("a statement") : close.join(QStringLiteral("\n            ")),
      close.isEmpty() ? QStringLiteral("a word that none begins with")
                      : QStringLiteral("the statement as written"));
}

QString Language() {
  QString all;
  for (const Kind& kind : Kinds()) all += QStringLiteral("  %1  %2\n").arg(kind.pattern, -40).arg(kind.help);
  return all;
}

}  // namespace quillane::scenario
