// The files of a scenario's program folder: made, changed and compared.
#pragma once
#include <QByteArray>
#include <QString>
#include <QStringList>

namespace quillane::scenario {

/// A file is named as scripts name it: in "Wedding Proposals", or below the program's folder when the name
/// begins with a folder of that one or is one of the program's own files.  What a function that begins with
/// Expect does not find throws Failure, and so does what cannot be read or written.
class ProgramFiles {
 public:
  /// `root` is the program's folder, `scriptFolder` that of the script.
  ProgramFiles(QString root, QString scriptFolder)
      : root_(std::move(root)), scriptFolder_(std::move(scriptFolder)) {}
  ~ProgramFiles();

  QString Root() const { return root_; }
  QString PathOf(const QString& name) const;
  QByteArray Contents(const QString& name) const;
  void Write(const QString& name, const QByteArray& bytes) const;

  /// Copies a folder into "Wedding Proposals".  The folder it came from is kept for ExpectEqual.
  void Home(const QString& folder);
  const QString& HomeSource() const { return homeSource_; }
  void PutLine(const QString& name, int line, const QString& text) const;  ///< `line` counts from 1
  void Remove(const QString& name) const;
  void Copy(const QString& from, const QString& to) const;
  /// Nobody may write it, nor make files in it; the superuser's leave to do so all the same is given up for
  /// the rest of the run.
  void ReadOnly(const QString& name);
  void Writable(const QString& name) const;

  void ExpectThere(const QString& name, const QString& existsOrAbsent) const;
  void ExpectSize(const QString& name, int bytes) const;
  void ExpectAt(const QString& name, int offset, const QByteArray& wanted) const;
  void ExpectLine(const QString& name, int line, const QString& text) const;
  void ExpectLines(const QString& name, int count) const;
  void ExpectText(const QString& name, const QString& containsOrLacks, const QString& text) const;
  /// `other` lies beside the script, in the program's folder or where `home` came from.
  void ExpectEqual(const QString& name, const QString& other) const;

 private:
  void SetMode(const QString& name, unsigned forFolder, unsigned forFile) const;
  QString Reference(const QString& name, const QString& subject) const;

  QString root_, scriptFolder_, homeSource_;
  QStringList locked_;
};

/// Windows-1252, as all the program's files are.
QByteArray FileBytes(const QString& text);
QString FileText(const QByteArray& bytes);
/// "A5 20" or "A520".  Throws Failure for half a byte.
QByteArray HexBytes(QString words);

}  // namespace quillane::scenario
