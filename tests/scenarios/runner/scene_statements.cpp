#include <QFile>
#include <cerrno>
#include <string_view>

#include "failure.h"
#include "platform/files.h"
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
  const QStringList parts =
      statement.Rest(1).replace(QLatin1Char('T'), QLatin1Char(' ')).split(QLatin1Char(' '));
  QString time = parts.value(1, QStringLiteral("00:00"));
  if (time.size() == 4) time.prepend(QLatin1Char('0'));
  const QDateTime now(QDate::fromString(parts.value(0), Qt::ISODate), QTime::fromString(time, Qt::ISODate));
  if (!now.isValid()) throw BadStatement(QStringLiteral("clock 2026-11-22 10:30"));
  world.desk.now = now;
}

void Screen(World& world, const Statement& statement) {
  world.desk.screenWidth = static_cast<int>(statement.Number(1, "screen 1024 768"));
  world.desk.screenHeight = static_cast<int>(statement.Number(2, "screen 1024 768"));
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

/// A disk without room: what writes fails, what reads does not.
int NoRoom(const char* step, const QString&) {
  const std::string_view at(step);
  return at == "write" || at == "flush" ? ENOSPC : 0;
}

void Disk(World&, const Statement& statement) {
  if (!statement.Is(1, "full") && !statement.Is(1, "ok")) throw BadStatement(QStringLiteral("disk full|ok"));
  SetFaultHook(statement.Is(1, "full") ? NoRoom : nullptr);
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
      {"disk", Disk},
      {"remove", Remove},
      {"copy", [](World& world, const Statement& statement) { world.files.Copy(statement); }},
      {"readonly", [](World& world, const Statement& statement) { world.files.ReadOnly(statement); }},
      {"writable", [](World& world, const Statement& statement) { world.files.Writable(statement); }},
      {"folder", [](World& world, const Statement& statement) { world.files.Folder(statement); }},
  };
  return handlers;
}

}  // namespace quillane::scenario
