#include "program_files.h"

#include <linux/capability.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <array>

#include "platform/codepage.h"
#include "script.h"
#include "values.h"

namespace quillane::scenario {

namespace {

QString Shown(const QByteArray& bytes) {
  const QByteArray some = bytes.left(200);
  return QStringLiteral("%1 (%2)").arg(InQuotes(FileText(some)),
                                       QString::fromLatin1(some.left(32).toHex(' ')));
}

QList<QByteArray> LinesOf(QByteArray contents) {
  QList<QByteArray> lines = contents.replace("\r\n", "\n").split('\n');
  if (lines.last().isEmpty()) lines.removeLast();
  return lines;
}

QByteArray ReadAll(const QString& path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly))
    throw Failure(path + QStringLiteral(" can be read"), file.errorString());
  return file.readAll();
}

/// A superuser writes where nobody may; a scenario about a read-only folder must not.
void ObeyPermissions() {
  __user_cap_header_struct header{_LINUX_CAPABILITY_VERSION_3, 0};
  std::array<__user_cap_data_struct, _LINUX_CAPABILITY_U32S_3> sets{};
  if (syscall(SYS_capget, &header, sets.data()) != 0) return;
  sets[0].effective &= ~((1U << CAP_DAC_OVERRIDE) | (1U << CAP_DAC_READ_SEARCH));
  syscall(SYS_capset, &header, sets.data());
}

void Expect(bool holds, const QString& wanted, const QString& found) {
  if (!holds) throw Failure(wanted, found);
}

}  // namespace

QByteArray FileBytes(const QString& text) {
  const QByteArray bytes = ToCodePage(text);
  Expect(FileText(bytes) == text, QStringLiteral("letters that a file can hold"), InQuotes(text));
  return bytes;
}

QString FileText(const QByteArray& bytes) {
  return FromCodePage(bytes);
}

QByteArray HexBytes(QString words) {
  const QByteArray hex = words.remove(QLatin1Char(' ')).toLatin1();
  Expect(!hex.isEmpty() && hex.size() % 2 == 0, QStringLiteral("bytes in hexadecimal: A5 20 ..."), words);
  return QByteArray::fromHex(hex);
}

ProgramFiles::~ProgramFiles() {
  // A folder that may not be written could not be removed either.
  for (const QString& path : locked_) ::chmod(QFile::encodeName(path).constData(), 0755);
}

QString ProgramFiles::PathOf(const QString& name) const {
  static const QStringList own{QStringLiteral("UserPreferences.txt"), QStringLiteral("Error.log"),
                               QStringLiteral("events.jpg"), QStringLiteral("QLNVersion.txt")};
  static const QStringList folders{QStringLiteral("Wedding Proposals"), QStringLiteral("Help"),
                                   QStringLiteral("drives")};
  QString path = name;
  path.replace(QLatin1Char('\\'), QLatin1Char('/'));
  if (QDir::isAbsolutePath(path)) return path;
  const QDir root(root_);
  const QString first = path.section(QLatin1Char('/'), 0, 0), above = root.filePath(path);
  const bool below = folders.contains(first, Qt::CaseInsensitive) || QFileInfo(root.filePath(first)).isDir();
  const QString there = root.filePath(QStringLiteral("Wedding Proposals/") + path);
  if (below || own.contains(path, Qt::CaseInsensitive)) return above;
  return !QFileInfo::exists(there) && QFileInfo(above).isFile() ? above : there;
}

QByteArray ProgramFiles::Contents(const QString& name) const {
  return ReadAll(PathOf(name));
}

void ProgramFiles::Write(const QString& name, const QByteArray& bytes) const {
  const QString path = PathOf(name);
  QDir().mkpath(QFileInfo(path).path());
  QFile file(path);
  const bool written =
      file.open(QIODevice::WriteOnly | QIODevice::Truncate) && file.write(bytes) == bytes.size();
  Expect(written, path + QStringLiteral(" can be written"), file.errorString());
}

void ProgramFiles::Home(const QString& folder) {
  homeSource_ = QDir::cleanPath(QDir(scriptFolder_).absoluteFilePath(folder));
  Expect(QFileInfo(homeSource_).isDir(), QStringLiteral("a folder ") + homeSource_, QStringLiteral("none"));
  QDirIterator files(homeSource_, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
  while (files.hasNext()) {
    const QString from = files.next();
    Write(QStringLiteral("Wedding Proposals/") + QDir(homeSource_).relativeFilePath(from), ReadAll(from));
  }
}

void ProgramFiles::PutLine(const QString& name, int line, const QString& text) const {
  QList<QByteArray> lines = LinesOf(Contents(name));
  while (lines.size() < line) lines.append(QByteArray());
  lines[line - 1] = FileBytes(text);
  Write(name, lines.join("\r\n") + "\r\n");
}

void ProgramFiles::Remove(const QString& name) const {
  const QString path = PathOf(name);
  const bool gone = QFileInfo(path).isDir() ? QDir(path).removeRecursively() : QFile::remove(path);
  Expect(gone, path + QStringLiteral(" can be removed"), QStringLiteral("it cannot"));
}

void ProgramFiles::Copy(const QString& from, const QString& to) const {
  Write(to, ReadAll(Reference(from, QString())));
}

void ProgramFiles::SetMode(const QString& name, unsigned forFolder, unsigned forFile) const {
  const QString path = PathOf(name);
  const int failed =
      ::chmod(QFile::encodeName(path).constData(), QFileInfo(path).isDir() ? forFolder : forFile);
  Expect(failed == 0, path + QStringLiteral(" exists"), QStringLiteral("it does not"));
}

void ProgramFiles::ReadOnly(const QString& name) {
  SetMode(name, 0555, 0444);
  locked_.append(PathOf(name));
  ObeyPermissions();
}

void ProgramFiles::Writable(const QString& name) const {
  SetMode(name, 0755, 0644);
}

QString ProgramFiles::Reference(const QString& name, const QString& subject) const {
  const QString beside = QDir(scriptFolder_).absoluteFilePath(name), inside = PathOf(name);
  if (!subject.isEmpty() && QFileInfo(beside).isFile()) return beside;
  if (inside != subject && QFileInfo(inside).isFile()) return inside;
  const QString original = QDir(homeSource_).filePath(name);
  return !homeSource_.isEmpty() && QFileInfo(original).isFile() ? original : beside;
}

void ProgramFiles::ExpectThere(const QString& name, const QString& existsOrAbsent) const {
  const QString there = QFileInfo::exists(PathOf(name)) ? QStringLiteral("exists") : QStringLiteral("absent");
  Expect(there == existsOrAbsent.toLower(), name + QLatin1Char(' ') + existsOrAbsent, there);
}

void ProgramFiles::ExpectSize(const QString& name, int bytes) const {
  const qsizetype there = Contents(name).size();
  Expect(there == bytes, QStringLiteral("%1 bytes").arg(bytes), QStringLiteral("%1 bytes").arg(there));
}

void ProgramFiles::ExpectAt(const QString& name, int offset, const QByteArray& wanted) const {
  const QByteArray there = Contents(name).mid(offset, wanted.size());
  Expect(there == wanted, Shown(wanted), Shown(there));
}

void ProgramFiles::ExpectLine(const QString& name, int line, const QString& text) const {
  const QList<QByteArray> lines = LinesOf(Contents(name));
  Expect(line >= 1 && line <= lines.size(), InQuotes(text), QStringLiteral("%1 lines").arg(lines.size()));
  Expect(lines[line - 1] == FileBytes(text), InQuotes(text), Shown(lines[line - 1]));
}

void ProgramFiles::ExpectLines(const QString& name, int count) const {
  const qsizetype there = LinesOf(Contents(name)).size();
  Expect(there == count, QStringLiteral("%1 lines").arg(count), QStringLiteral("%1 lines").arg(there));
}

void ProgramFiles::ExpectText(const QString& name, const QString& containsOrLacks,
                              const QString& text) const {
  const QByteArray contents = Contents(name);
  const bool wanted = containsOrLacks.toLower() == QLatin1String("contains");
  Expect(contents.contains(FileBytes(text)) == wanted,
         QStringLiteral("%1 %2").arg(containsOrLacks, InQuotes(text)), Shown(contents));
}

void ProgramFiles::ExpectEqual(const QString& name, const QString& other) const {
  const QByteArray there = Contents(name), wanted = ReadAll(Reference(other, PathOf(name)));
  const auto apart = std::mismatch(there.begin(), there.end(), wanted.begin(), wanted.end());
  const qsizetype at = apart.first - there.begin();
  Expect(there == wanted,
         QStringLiteral("%1: %2 bytes, at %3 %4")
             .arg(other)
             .arg(wanted.size())
             .arg(at)
             .arg(Shown(wanted.mid(at, 24))),
         QStringLiteral("%1 bytes, at %2 %3").arg(there.size()).arg(at).arg(Shown(there.mid(at, 24))));
}

}  // namespace quillane::scenario
