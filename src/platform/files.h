// Files and folders.  A folder string ends in a separator; a stored path is taken with either separator; a
// name is looked up exactly and then without regard to case, as the shared drives that these files come from
// do.
#pragma once
#include <QByteArray>
#include <QDateTime>
#include <QString>
#include <QStringList>
#include <vector>

namespace quillane {

/// The folder under which drive letters are found as links or folders: "drives/F" for "F:".
void SetDrivesFolder(const QString& folder);
/// Turns a stored path ("F:\Wedding Proposals\x.wft", either separator) into one of this machine: a drive
/// letter becomes its folder under the drives folder, each component is matched exactly and then without
/// regard to case; components that do not exist stay as written.  Throws 76 with a sentence that says how to
/// set a missing letter up.
QString ResolvePath(const QString& stored);
/// `folder` with one separator at its end.
QString WithSeparator(const QString& folder);

/// True when a file folder + name exists (hidden and read-only included).
bool FileExists(const QString& folder, const QString& name);
/// True when `parent` has a sub-folder `name`, compared without regard to case.  Throws 76 when `parent`
/// cannot be listed.
bool FolderExists(const QString& parent, const QString& name);
/// The names of the files in `folder` that match a pattern list such as "*.jpg;*.bmp", each a name or a star
/// and the end of one, in name order without regard to case; hidden files are listed.  Throws 76 when the
/// folder cannot be listed.
QStringList ListFiles(const QString& folder, const QString& patterns);
QStringList ListFolders(const QString& folder);

/// The whole file.  Throws 53, 70, 75 or 76.
QByteArray ReadWholeFile(const QString& path);
/// Its lines without their ends (CR LF or LF).
QList<QByteArray> ReadFileLines(const QString& path);

/// Replaces `path` by `bytes`: writes beside it under a hidden name, flushes, syncs, renames over the old
/// file and syncs the folder.  The old file is there until the new one is whole.  Throws 61, 70, 75 or 76 and
/// leaves the old file.  A name that differs from an existing file's only in case replaces that file.
void ReplaceFile(const QString& path, const QByteArray& bytes);

/// The same for files that are saved together, whose folders are synced once: each is in its place as soon as
/// it is made.  What has not been kept goes back to the old file.
class Replacement {
 public:
  Replacement(const QString& path, const QByteArray& bytes);
  ~Replacement();
  Replacement(Replacement&& other) noexcept;
  Replacement& operator=(Replacement&&) = delete;
  /// Syncs each folder of `files` once.  Throws 61, 70, 75 or 76 and keeps none of them.
  static void Keep(std::vector<Replacement>& files);

 private:
  QString path_;     ///< empty once kept
  QString oldFile_;  ///< the hidden name of the file that was there; empty where there is no copy of it
  bool hadOld_ = false;
};

/// Writes `bytes` at `position` (counted from 1) without truncating the file; creates it where it is missing.
void WriteAt(const QString& path, qint64 position, const QByteArray& bytes);
/// Clears a read-only mark first, as the program's deletes do.  Throws 53, 70 or 75.
void RemoveFile(const QString& path);
/// As RemoveFile; a file that is gone already is as good as removed.
void RemoveFileIfThere(const QString& path);
void CopyFileOver(const QString& from, const QString& to);
/// Throws 58 when `to` exists already.
void RenameFile(const QString& from, const QString& to);
void MakeFolder(const QString& path);
QDateTime FileTime(const QString& path);

/// A test's way to make a step of a write fail: called with "open", "write", "flush", "sync", "rename",
/// "syncdir" and the path before each; returns an errno value to fail with, or 0.
using FaultHook = int (*)(const char* step, const QString& path);
void SetFaultHook(FaultHook hook);

}  // namespace quillane
