#include <QFile>

#include "failure.h"
#include "statements.h"
#include "values.h"

namespace quillane::scenario {

namespace {

void Home(World& world, const Statement& statement) {
  if (statement.Count() < 2) throw BadStatement(QStringLiteral("home FOLDER"));
  world.files.Home(statement.Rest(1));
}

/// Replaces the line that begins with the key.
void Pref(World& world, const Statement& statement) {
  if (statement.Count() < 2) throw BadStatement(QStringLiteral("pref \"Company Name:\" \"Alder Events\""));
  if (!world.stage.Running()) world.FillFolder();
  QFile file(world.files.PathOf(QStringLiteral("UserPreferences.txt")));
  if (!file.open(QIODevice::ReadWrite))
    throw Failure(QStringLiteral("UserPreferences.txt can be written"), file.errorString());
  const QString key =
      statement.At(1).endsWith(QLatin1Char(':')) ? statement.At(1) : statement.At(1) + QLatin1Char(':');
  QStringList lines = FileText(file.readAll()).split(QStringLiteral("\r\n"));
  bool found = false;
  for (QString& line : lines) {
    if (!line.startsWith(key, Qt::CaseInsensitive)) continue;
    line = line.left(key.size()) + statement.Rest(2);
    found = true;
  }
  if (!found) throw Failure(QStringLiteral("a preference ") + key, QStringLiteral("there is none"));
  file.resize(0);
  file.seek(0);
  file.write(FileBytes(lines.join(QStringLiteral("\r\n"))));
}

void Clock(World& world, const Statement& statement) {
  QString time = statement.Count() > 2 ? statement.At(2) : QStringLiteral("00:00");
  if (time.size() == 4) time.prepend(QLatin1Char('0'));
  const QDateTime now(QDate::fromString(statement.At(1), Qt::ISODate), QTime::fromString(time, Qt::ISODate));
  if (!now.isValid()) throw BadStatement(QStringLiteral("clock 2026-11-22 10:30"));
  world.desk.now = now;
}

void Screen(World& world, const Statement& statement) {
  const std::optional<double> width = ReadNumber(statement.At(1)), height = ReadNumber(statement.At(2));
  if (!width || !height) throw BadStatement(QStringLiteral("screen 1024 768"));
  world.desk.screenWidth = static_cast<int>(*width);
  world.desk.screenHeight = static_cast<int>(*height);
}

void Printers(World& world, const Statement& statement) {
  world.desk.printers.clear();
  for (size_t at = 1; at < statement.Count(); ++at)
    if (!statement.Is(at, "none")) world.desk.printers.append(statement.At(at));
}

void Put(World& world, const Statement& statement) {
  if (!world.stage.Running()) world.FillFolder();
  world.files.Put(statement);
}
void Remove(World& world, const Statement& statement) {
  if (!world.stage.Running()) world.FillFolder();
  world.files.Remove(statement);
}

}  // namespace

const Handlers& SceneStatements() {
  static const Handlers handlers{
      {"home", Home},
      {"pref", Pref},
      {"clock", Clock},
      {"screen", Screen},
      {"printers", Printers},
      {"put", Put},
      {"remove", Remove},
      {"copy", [](World& world, const Statement& statement) { world.files.Copy(statement); }},
      {"readonly", [](World& world, const Statement& statement) { world.files.ReadOnly(statement); }},
      {"writable", [](World& world, const Statement& statement) { world.files.Writable(statement); }},
      {"folder", [](World& world, const Statement& statement) { world.files.Folder(statement); }},
  };
  return handlers;
}

}  // namespace quillane::scenario
