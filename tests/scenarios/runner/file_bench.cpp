#include "file_bench.h"

#include <sys/stat.h>

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

#include "failure.h"
#include "platform/codepage.h"
#include "privileges.h"
#include "values.h"

namespace quillane::scenario {

namespace {

QString Spaced(const QByteArray& bytes) {
  return QString::fromLatin1(bytes.left(64).toHex(' ').toUpper());
}

QString Shown(const QByteArray& bytes) {
  return InQuotes(FileText(bytes));
}

qint64 WholeNumber(const Statement& statement, size_t index, const char* grammar) {
  return static_cast<qint64>(statement.Number(index, grammar));
}

/// The words from `from` on are bytes in hexadecimal, apart or joined.
QByteArray HexWords(const Statement& statement, size_t from) {
  QByteArray hex;
  for (size_t at = from; at < statement.Count(); ++at)
    hex += statement.At(at).remove(QLatin1Char(' ')).toLatin1();
  if (hex.isEmpty() || hex.size() % 2 != 0)
    throw BadStatement(QStringLiteral("bytes in hexadecimal: A5 20 ..."));
  return QByteArray::fromHex(hex);
}

QList<QByteArray> LinesOf(QByteArray contents) {
  contents.replace("\r\n", "\n");
  QList<QByteArray> lines = contents.split('\n');
  if (!lines.isEmpty() && lines.last().isEmpty()) lines.removeLast();
  return lines;
}

void Write(const QString& path, const QByteArray& bytes) {
  QDir().mkpath(QFileInfo(path).path());
  QFile file(path);
  if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate) || file.write(bytes) != bytes.size())
    throw Failure(path + QStringLiteral(" can be written"), file.errorString());
}

QByteArray ReadAll(const QString& path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly))
    throw Failure(path + QStringLiteral(" can be read"), file.errorString());
  return file.readAll();
}

/// A copy that may be written, whatever the original allows.
void CopyFile(const QString& from, const QString& to) {
  Write(to, ReadAll(from));
}

/// put "name" line "text" ... [line "text" ...]
QByteArray LinesToPut(const Statement& statement) {
  QByteArray bytes;
  for (size_t at = 3; at < statement.Count(); ++at)
    if (!statement.Is(at, "line")) bytes += FileBytes(statement.At(at)) + "\r\n";
  return bytes;
}

QString ExpectLine(const QByteArray& contents, qint64 number, const QString& text) {
  const QList<QByteArray> lines = LinesOf(contents);
  if (number < 1 || number > lines.size()) return QStringLiteral("%1 lines").arg(lines.size());
  return lines[number - 1] == FileBytes(text) ? QString() : Shown(lines[number - 1]);
}

/// Where two files differ first, in words; empty when they are equal.
QString Difference(const QByteArray& a, const QByteArray& b) {
  if (a == b) return {};
  qsizetype at = 0;
  while (at < a.size() && at < b.size() && a[at] == b[at]) ++at;
  return QStringLiteral("%1 bytes and %2; at offset %3: %4 and %5")
      .arg(a.size())
      .arg(b.size())
      .arg(at)
      .arg(Shown(a.mid(at, 24)), Shown(b.mid(at, 24)));
}

}  // namespace

QByteArray FileBytes(const QString& text) {
  const QByteArray bytes = ToCodePage(text);
  if (FileText(bytes) != text) throw Failure(QStringLiteral("letters that a file can hold"), InQuotes(text));
  return bytes;
}

QString FileText(const QByteArray& bytes) {
  return FromCodePage(bytes);
}

FileBench::~FileBench() {
  // A folder that may not be written could not be removed either.
  for (const QString& path : locked_) ::chmod(QFile::encodeName(path).constData(), 0755);
}

QString FileBench::ProposalFolder() const {
  return QDir(root_).filePath(QStringLiteral("Wedding Proposals"));
}

QString FileBench::PathOf(const QString& name) const {
  static const QStringList own{QStringLiteral("UserPreferences.txt"), QStringLiteral("Error.log"),
                               QStringLiteral("events.jpg"), QStringLiteral("QLNVersion.txt")};
  static const QStringList folders{QStringLiteral("Wedding Proposals"), QStringLiteral("Help"),
                                   QStringLiteral("drives")};
  QString path = name;
  path.replace(QLatin1Char('\\'), QLatin1Char('/'));
  if (QDir::isAbsolutePath(path)) return path;
  const QString first = path.section(QLatin1Char('/'), 0, 0);
  const bool below =
      folders.contains(first, Qt::CaseInsensitive) || QFileInfo(QDir(root_).filePath(first)).isDir();
  const QString there = QDir(ProposalFolder()).filePath(path), above = QDir(root_).filePath(path);
  if (below || own.contains(path, Qt::CaseInsensitive)) return above;
  return !QFileInfo::exists(there) && QFileInfo(above).isFile() ? above : there;
}

void FileBench::Home(const QString& folder) {
  homeSource_ = QDir::cleanPath(QDir(scriptFolder_).absoluteFilePath(folder));
  if (!QFileInfo(homeSource_).isDir())
    throw Failure(QStringLiteral("a folder ") + homeSource_, QStringLiteral("none"));
  QDir().mkpath(ProposalFolder());
  QDirIterator files(homeSource_, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
  while (files.hasNext()) {
    const QString from = files.next();
    CopyFile(from, QDir(ProposalFolder()).filePath(QDir(homeSource_).relativeFilePath(from)));
  }
}

QByteArray FileBench::Contents(const QString& name) const {
  return ReadAll(PathOf(name));
}

void FileBench::Put(const Statement& statement) const {
  const QString path = PathOf(statement.At(1));
  if (statement.Is(2, "line") && !statement.Quoted(3) && ReadNumber(statement.At(3))) {
    QList<QByteArray> lines = LinesOf(ReadAll(path));
    const qint64 number = WholeNumber(statement, 3, "a line's number");
    while (lines.size() < number) lines.append(QByteArray());
    lines[number - 1] = FileBytes(statement.At(4));
    Write(path, lines.join("\r\n") + "\r\n");
  } else if (statement.Is(2, "line")) {
    Write(path, LinesToPut(statement));
  } else if (statement.Is(2, "text")) {
    Write(path, FileBytes(statement.At(3)));
  } else if (statement.Is(2, "hex")) {
    Write(path, HexWords(statement, 3));
  } else {
    throw BadStatement(QStringLiteral("put \"name\" line \"text\" ... | text \"text\" | hex A5 .."));
  }
}

void FileBench::Remove(const Statement& statement) const {
  const QFileInfo there(PathOf(statement.At(1)));
  const bool gone =
      there.isDir() ? QDir(there.filePath()).removeRecursively() : QFile::remove(there.filePath());
  if (!gone) throw Failure(there.filePath() + QStringLiteral(" can be removed"), QStringLiteral("it cannot"));
}

void FileBench::Copy(const Statement& statement) const {
  if (statement.Count() < 3) throw BadStatement(QStringLiteral("copy \"from\" \"to\""));
  CopyFile(Reference(statement.At(1), QString()), PathOf(statement.At(2)));
}

void FileBench::ReadOnly(const Statement& statement) {
  const QString path = PathOf(statement.At(1));
  const mode_t mode = QFileInfo(path).isDir() ? 0555 : 0444;
  if (::chmod(QFile::encodeName(path).constData(), mode) != 0)
    throw Failure(path + QStringLiteral(" exists"), QStringLiteral("it does not"));
  locked_.append(path);
  ObeyPermissions();
}

void FileBench::Writable(const Statement& statement) const {
  const QString path = PathOf(statement.At(1));
  if (::chmod(QFile::encodeName(path).constData(), QFileInfo(path).isDir() ? 0755 : 0644) != 0)
    throw Failure(path + QStringLiteral(" exists"), QStringLiteral("it does not"));
}

void FileBench::Folder(const Statement& statement) const {
  QDir().mkpath(PathOf(statement.At(1)));
}

/// The other file of `equals` and `copy`: beside the script, in the program's folder, or where `home` came
/// from.
QString FileBench::Reference(const QString& name, const QString& subject) const {
  const QString beside = QDir(scriptFolder_).absoluteFilePath(name);
  if (!subject.isEmpty() && QFileInfo(beside).isFile()) return beside;
  const QString inside = PathOf(name);
  if (inside != subject && QFileInfo(inside).isFile()) return inside;
  if (!homeSource_.isEmpty() && QFileInfo(QDir(homeSource_).filePath(name)).isFile())
    return QDir(homeSource_).filePath(name);
  return beside;
}

void FileBench::Expect(const Statement& statement) const {
  const QString name = statement.At(1), path = PathOf(name);
  const bool exists = QFileInfo::exists(path);
  if (statement.Is(2, "absent") || statement.Is(2, "exists")) {
    if (exists != statement.Is(2, "exists"))
      throw Failure(QStringLiteral("%1 %2").arg(name, statement.At(2)),
                    exists ? QStringLiteral("it exists") : QStringLiteral("it does not exist"));
    return;
  }
  if (!exists) throw Failure(name + QStringLiteral(" exists"), QStringLiteral("it does not exist"));
  const QByteArray contents = Contents(name);
  if (statement.Is(2, "size")) {
    if (contents.size() != WholeNumber(statement, 3, "file \"name\" size N"))
      throw Failure(statement.At(3) + QStringLiteral(" bytes"),
                    QStringLiteral("%1 bytes").arg(contents.size()));
  } else if (statement.Is(2, "at")) {
    const QByteArray wanted = FileBytes(statement.At(4));
    const QByteArray there =
        contents.mid(WholeNumber(statement, 3, "file \"name\" at OFFSET \"text\""), wanted.size());
    if (there != wanted) throw Failure(Shown(wanted), Shown(there));
  } else if (statement.Is(2, "bytes")) {
    const QByteArray wanted = HexWords(statement, 4);
    const QByteArray there =
        contents.mid(WholeNumber(statement, 3, "file \"name\" bytes OFFSET A5 .."), wanted.size());
    if (there != wanted) throw Failure(Spaced(wanted), Spaced(there));
  } else if (statement.Is(2, "line")) {
    const QString found =
        ExpectLine(contents, WholeNumber(statement, 3, "file \"name\" line N \"text\""), statement.At(4));
    if (!found.isEmpty()) throw Failure(InQuotes(statement.At(4)), found);
  } else if (statement.Is(2, "contains")) {
    if (!contents.contains(FileBytes(statement.At(3))))
      throw Failure(InQuotes(statement.At(3)) + QStringLiteral(" in it"), Shown(contents.left(400)));
  } else if (statement.Is(2, "equals")) {
    const QString difference = Difference(contents, ReadAll(Reference(statement.Rest(3), path)));
    if (!difference.isEmpty()) throw Failure(QStringLiteral("equal to ") + statement.Rest(3), difference);
  } else {
    throw BadStatement(
        QStringLiteral("file \"name\" size N | exists | absent | at OFFSET \"text\" | bytes OFFSET A5 .. | "
                       "line N \"text\" | equals FILE"));
  }
}

}  // namespace quillane::scenario
