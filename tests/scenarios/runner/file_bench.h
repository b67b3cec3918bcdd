// The files of a scenario's program folder: made, changed and compared.
#pragma once
#include <QByteArray>
#include <QString>
#include <QStringList>

#include "script.h"

namespace quillane::scenario {

class FileBench {
 public:
  /// `root` is the program's folder, `scriptFolder` that of the script.
  FileBench(QString root, QString scriptFolder)
      : root_(std::move(root)), scriptFolder_(std::move(scriptFolder)) {}
  ~FileBench();

  QString Root() const { return root_; }
  QString ProposalFolder() const;
  /// The path of a file as scripts name it: in "Wedding Proposals", or below the program's folder when the
  /// name begins with a folder of that one or is one of the program's own files.
  QString PathOf(const QString& name) const;

  /// `home FOLDER`: copies a folder into "Wedding Proposals".  The folder it came from is kept for `equals`.
  void Home(const QString& folder);
  const QString& HomeSource() const { return homeSource_; }

  void Put(const Statement& statement) const;     ///< put "name" line "text" ... | text "..." | hex A5 ..
  void Remove(const Statement& statement) const;  ///< remove "name"
  void Copy(const Statement& statement) const;    ///< copy "a" "b"
  /// readonly "name": nobody may write it, nor make files in it; the superuser's leave to do so all the same
  /// is given up for the rest of the run.
  void ReadOnly(const Statement& statement);
  void Writable(const Statement& statement) const;  ///< writable "name"
  void Folder(const Statement& statement) const;    ///< folder "name"
  void Expect(const Statement& statement) const;    ///< file "name" ...

 private:
  QByteArray Contents(const QString& name) const;
  QString Reference(const QString& name, const QString& subject) const;

  QString root_, scriptFolder_, homeSource_;
  QStringList locked_;
};

/// Windows-1252, as all the program's files are.
QByteArray FileBytes(const QString& text);
QString FileText(const QByteArray& bytes);

}  // namespace quillane::scenario
