#include "platform/files.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <utility>

#include "platform/runtime_error.h"

namespace quillane {

namespace {

QString drivesFolder;
FaultHook faultHook = nullptr;

/// Fails with the error that the person at the desk understands best.
[[noreturn]] void RaiseErrno(int error, const QString& path) {
  switch (error) {
    case ENOENT:
      if (!QFileInfo(QFileInfo(path).path()).isDir()) Raise(errors::PathNotFound, path);
      Raise(errors::FileNotFound, path);
    case ENOTDIR:
      Raise(errors::PathNotFound, path);
    case EACCES:
    case EPERM:
    case EROFS:
      Raise(errors::PermissionDenied, path);
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
      Raise(errors::DiskFull, path);
    case EEXIST:
      Raise(errors::FileExists, path);
    default:
      Raise(errors::PathFileAccess, path);
  }
}

/// For the steps of a write, where a missing name means a missing folder.
[[noreturn]] void RaiseWriteError(int error, const QString& path) {
  if (error == ENOENT) Raise(errors::PathNotFound, path);
  RaiseErrno(error, path);
}

/// True when `succeeded` and no test makes this step fail; errno is set otherwise.
template <class Action>
bool Step(const char* step, const QString& path, Action&& action) {
  const int error = faultHook ? faultHook(step, path) : 0;
  if (error == 0) return action();
  errno = error;
  return false;
}

struct CloseFile {
  void operator()(std::FILE* file) const { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, CloseFile>;

File OpenDescriptor(const QString& path, int flags, mode_t mode, const char* how) {
  const int descriptor = ::open(QFile::encodeName(path).constData(), flags | O_CLOEXEC, mode);
  if (descriptor < 0) return nullptr;
  File file(::fdopen(descriptor, how));
  if (!file) ::close(descriptor);
  return file;
}

std::optional<struct stat> StatOf(const QString& path) {
  struct stat status {};
  if (::stat(QFile::encodeName(path).constData(), &status) != 0) return std::nullopt;
  return status;
}

/// The folders from which this run has read or to which it has written, as the file system knew them then.
using FolderIdentity = std::pair<dev_t, ino_t>;
std::map<QString, FolderIdentity>& KnownFolders() {
  static std::map<QString, FolderIdentity> folders;
  return folders;
}

std::optional<FolderIdentity> IdentityOf(const QString& folder) {
  const auto status = StatOf(folder);
  if (!status) return std::nullopt;
  return FolderIdentity(status->st_dev, status->st_ino);
}

void RememberFolderOf(const QString& path) {
  const QString folder = QFileInfo(path).path();
  if (const auto identity = IdentityOf(folder)) KnownFolders()[folder] = *identity;
}

/// A share that went away leaves its empty mount point, on which a save would succeed and be lost.  The same
/// share mounted again may have another device number, but its folder keeps its own number.
void RequireSameFolder(const QString& path) {
  const QString folder = QFileInfo(path).path();
  const auto known = KnownFolders().find(folder);
  const auto now = IdentityOf(folder);
  if (known == KnownFolders().end() || !now) return;
  if (known->second.first != now->first && known->second.second != now->second)
    throw RuntimeError(
        errors::PathFileAccess,
        QStringLiteral("Path/File access error: the folder %1 is on another drive than it was before. "
                       "Please connect the drive again")
            .arg(folder));
}

/// The entry of `folder` that has this name without regard to case; empty where there is none.
QString MatchingEntry(const QString& folder, const QString& name) {
  const QStringList entries = QDir(folder).entryList(
      QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
  for (const QString& entry : entries)
    if (entry.compare(name, Qt::CaseInsensitive) == 0) return entry;
  return {};
}

bool Exists(const QString& path) {
  return QFileInfo::exists(path) || QFileInfo(path).isSymLink();
}

/// Each component as the disk has it; what follows the first one that is not there stays as written.
QString MatchComponents(const QString& path) {
  if (Exists(path)) return path;
  QString found = path.startsWith(u'/') ? QStringLiteral("/") : QString();
  bool onDisk = true;
  const QStringList components = path.split(u'/', Qt::SkipEmptyParts);
  for (const QString& component : components) {
    QString entry = component;
    if (onDisk && !Exists(found + component)) {
      const QString match = MatchingEntry(found.isEmpty() ? QStringLiteral(".") : found, component);
      onDisk = !match.isEmpty();
      if (onDisk) entry = match;
    }
    found += entry + u'/';
  }
  if (!path.endsWith(u'/')) found.chop(1);
  return found;
}

bool HasDriveLetter(const QString& path) {
  return path.size() >= 2 && path[1] == u':' && path[0].unicode() < 0x80 && path[0].isLetter();
}

QString DriveRoot(QChar letter) {
  const QString root = MatchingEntry(drivesFolder, QString(letter));
  const QString path = WithSeparator(drivesFolder) + (root.isEmpty() ? QString(letter.toUpper()) : root);
  if (!root.isEmpty() && QFileInfo(path).isDir()) return path;
  throw RuntimeError(
      errors::PathNotFound,
      QStringLiteral("Path not found: there is no drive %1:. To set it up, make a folder or a link to "
                     "the shared folder with the name \"%2\"")
          .arg(letter.toUpper())
          .arg(path));
}

/// Where a write lands: the file behind a link, so that the link stays one.
QString WriteTarget(const QString& stored) {
  const QString path = ResolvePath(stored);
  const QFileInfo info(path);
  return info.isSymLink() && info.exists() ? info.canonicalFilePath() : path;
}

/// A hidden name beside `path` that nothing has yet.
QString HiddenNameBeside(const QString& path) {
  static int counter = 0;
  QString name;
  do {
    name = QStringLiteral("%1/.quillane-%2-%3").arg(QFileInfo(path).path()).arg(::getpid()).arg(++counter);
  } while (Exists(name));
  return name;
}

/// A file of ours that goes away with the scope unless it has been moved to its place.
class Temporary {
 public:
  explicit Temporary(QString path) : path_(std::move(path)) {}
  ~Temporary() {
    if (!path_.isEmpty()) ::unlink(QFile::encodeName(path_).constData());
  }
  Temporary(const Temporary&) = delete;
  Temporary& operator=(const Temporary&) = delete;
  QByteArray Name() const { return QFile::encodeName(path_); }
  const QString& Path() const { return path_; }
  void Release() { path_.clear(); }

 private:
  QString path_;
};

/// Writes through to the disk, each step's result checked.
bool WriteThrough(File file, const QString& path, const QByteArray& bytes) {
  const auto size = static_cast<size_t>(bytes.size());
  return Step("write", path, [&] { return std::fwrite(bytes.constData(), 1, size, file.get()) == size; }) &&
         Step("flush", path, [&] { return std::fflush(file.get()) == 0; }) &&
         Step("sync", path, [&] { return ::fsync(::fileno(file.get())) == 0; }) &&
         std::fclose(file.release()) == 0;
}

/// Makes a rename last.  A file system that cannot sync a folder is no failure.
bool SyncFolder(const QString& folder) {
  const int descriptor = ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (descriptor < 0) return true;
  const bool synced = ::fsync(descriptor) == 0;
  const int error = errno;
  ::close(descriptor);
  errno = error;
  return synced;
}

bool CannotBeDone(int error) {
  return error == EINVAL || error == ENOTSUP || error == ENOSYS;
}

void WriteBeside(const Temporary& temporary, const QString& path, const QByteArray& bytes,
                 const std::optional<struct stat>& old) {
  File file;
  const bool opened = Step("open", path, [&] {
    file = OpenDescriptor(temporary.Path(), O_WRONLY | O_CREAT | O_EXCL, 0666, "wb");
    return file != nullptr;
  });
  if (!opened) RaiseWriteError(errno, path);
  // A new file has the old one's permissions, but for a read-only mark, which a replacement clears.  Some
  // shared drives have no permissions to set, and the file is as good without.
  if (old && ::fchmod(::fileno(file.get()), (old->st_mode & 07777) | S_IWUSR) != 0) errno = 0;
  if (!WriteThrough(std::move(file), path, bytes)) RaiseWriteError(errno, path);
}

/// Moves a new file to `path` and gives the name under which the old one is kept: the two change places where
/// the file system does that in one step.  Elsewhere a second name keeps the old file, and where there are no
/// second names either the rename alone must do, and nothing is given.
QString ChangePlaces(const QString& fresh, const QString& path) {
  const QByteArray from = QFile::encodeName(fresh), name = QFile::encodeName(path);
  if (::renameat2(AT_FDCWD, from.constData(), AT_FDCWD, name.constData(), RENAME_EXCHANGE) == 0) return fresh;
  Temporary old(HiddenNameBeside(path));
  const bool kept = ::link(name.constData(), old.Name().constData()) == 0;
  if (::rename(from.constData(), name.constData()) != 0) RaiseWriteError(errno, path);
  const QString oldFile = kept ? old.Path() : QString();
  old.Release();
  return oldFile;
}

}  // namespace

void SetDrivesFolder(const QString& folder) {
  drivesFolder = folder;
}
void SetFaultHook(FaultHook hook) {
  faultHook = hook;
}

QString ResolvePath(const QString& stored) {
  // The system would take the name to end there, and touch another file.
  if (stored.contains(QChar::Null))
    throw RuntimeError(
        errors::PathFileAccess,
        QStringLiteral("Path/File access error: the name holds a character that no file's name can have"));
  if (stored.startsWith(u'/') && Exists(stored)) return stored;
  QString path = stored;
  path.replace(u'\\', u'/');
  if (!HasDriveLetter(path)) return MatchComponents(path);
  const QString rest = path.mid(2);
  return MatchComponents(DriveRoot(path[0]) + (rest.startsWith(u'/') || rest.isEmpty() ? rest : u'/' + rest));
}

QString WithSeparator(const QString& folder) {
  if (folder.isEmpty() || folder.endsWith(u'/')) return folder;
  return folder.endsWith(u'\\') ? folder.chopped(1) + u'/' : folder + u'/';
}

bool FileExists(const QString& folder, const QString& name) {
  return !name.isEmpty() && QFileInfo(ResolvePath(WithSeparator(folder) + name)).isFile();
}

namespace {
QDir ListableFolder(const QString& folder) {
  const QFileInfo info(ResolvePath(folder));
  if (!info.isDir() || !info.isReadable()) Raise(errors::PathNotFound, folder);
  return QDir(info.filePath());
}

/// The toolkit's own patterns are regular expressions, whose library a start has no other use for.
bool Matches(const QString& name, const QString& pattern) {
  return pattern.startsWith(u'*') ? name.endsWith(QStringView(pattern).mid(1), Qt::CaseInsensitive)
                                  : name.compare(pattern, Qt::CaseInsensitive) == 0;
}
}  // namespace

bool FolderExists(const QString& parent, const QString& name) {
  const QString entry = MatchingEntry(ListableFolder(parent).path(), name);
  return !entry.isEmpty() && QFileInfo(ListableFolder(parent).filePath(entry)).isDir();
}

QStringList ListFiles(const QString& folder, const QString& patterns) {
  QStringList names =
      ListableFolder(folder).entryList(QDir::Files | QDir::Hidden, QDir::Name | QDir::IgnoreCase);
  const QStringList wanted = patterns.split(u';', Qt::SkipEmptyParts);
  names.removeIf([&](const QString& name) {
    return std::ranges::none_of(wanted, [&](const QString& pattern) { return Matches(name, pattern); });
  });
  return names;
}

QStringList ListFolders(const QString& folder) {
  return ListableFolder(folder).entryList(QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot,
                                          QDir::Name | QDir::IgnoreCase);
}

QByteArray ReadWholeFile(const QString& stored) {
  const QString path = ResolvePath(stored);
  const File file = OpenDescriptor(path, O_RDONLY, 0, "rb");
  if (!file) RaiseErrno(errno, path);
  QByteArray bytes;
  struct stat status {};
  if (::fstat(::fileno(file.get()), &status) == 0) bytes.reserve(static_cast<qsizetype>(status.st_size));
  std::array<char, 16384> block;
  size_t count = 0;
  while ((count = std::fread(block.data(), 1, block.size(), file.get())) > 0)
    bytes.append(block.data(), static_cast<qsizetype>(count));
  if (std::ferror(file.get())) RaiseErrno(errno, path);
  RememberFolderOf(path);
  return bytes;
}

QList<QByteArray> ReadFileLines(const QString& path) {
  QList<QByteArray> lines = ReadWholeFile(path).split('\n');
  if (lines.last().isEmpty()) lines.removeLast();
  for (QByteArray& line : lines)
    if (line.endsWith('\r')) line.chop(1);
  return lines;
}

Replacement::Replacement(const QString& stored, const QByteArray& bytes) {
  const QString path = WriteTarget(stored);
  if (QFileInfo(path).isDir()) Raise(errors::PathFileAccess, path);
  RequireSameFolder(path);
  const auto old = StatOf(path);
  hadOld_ = old.has_value();
  Temporary fresh(HiddenNameBeside(path));
  WriteBeside(fresh, path, bytes, old);
  const bool placed = Step("rename", path, [&] {
    if (!hadOld_) return ::rename(fresh.Name().constData(), QFile::encodeName(path).constData()) == 0;
    oldFile_ = ChangePlaces(fresh.Path(), path);
    return true;
  });
  if (!placed) RaiseWriteError(errno, path);
  fresh.Release();
  path_ = path;
}

Replacement::~Replacement() {
  if (path_.isEmpty()) return;
  const QByteArray name = QFile::encodeName(path_);
  if (!oldFile_.isEmpty()) {
    ::rename(QFile::encodeName(oldFile_).constData(), name.constData());
  } else if (!hadOld_) {
    ::unlink(name.constData());
  }
}

Replacement::Replacement(Replacement&& other) noexcept
    : path_(std::exchange(other.path_, {})),
      oldFile_(std::exchange(other.oldFile_, {})),
      hadOld_(other.hadOld_) {}

void Replacement::Keep(std::vector<Replacement>& files) {
  std::set<QString> synced;
  for (const Replacement& file : files) {
    const bool done = Step("syncdir", file.path_, [&] {
      const QString folder = QFileInfo(file.path_).path();
      return !synced.insert(folder).second || SyncFolder(folder);
    });
    if (done || CannotBeDone(errno)) continue;
    const int error = errno;
    const QString path = file.path_;
    files.clear();
    RaiseWriteError(error, path);
  }
  for (Replacement& file : files) {
    RememberFolderOf(file.path_);
    if (!file.oldFile_.isEmpty()) ::unlink(QFile::encodeName(file.oldFile_).constData());
    file.path_.clear();
  }
}

void ReplaceFile(const QString& path, const QByteArray& bytes) {
  std::vector<Replacement> file;
  file.emplace_back(path, bytes);
  Replacement::Keep(file);
}

void WriteAt(const QString& stored, qint64 position, const QByteArray& bytes) {
  const QString path = WriteTarget(stored);
  RequireSameFolder(path);
  File file;
  const bool opened = Step("open", path, [&] {
    file = OpenDescriptor(path, O_WRONLY | O_CREAT, 0666, "wb");
    return file && ::fseeko(file.get(), position - 1, SEEK_SET) == 0;
  });
  if (!opened || !WriteThrough(std::move(file), path, bytes)) RaiseWriteError(errno, path);
  RememberFolderOf(path);
}

void RemoveFile(const QString& stored) {
  const QString path = ResolvePath(stored);
  const QByteArray name = QFile::encodeName(path);
  if (QFileInfo(path).isDir() && !QFileInfo(path).isSymLink()) Raise(errors::PathFileAccess, path);
  if (::unlink(name.constData()) == 0) return;
  // Shared drives refuse to delete a file that is marked read-only.
  if ((errno == EACCES || errno == EPERM) && ::chmod(name.constData(), 0666) == 0 &&
      ::unlink(name.constData()) == 0)
    return;
  RaiseErrno(errno, path);
}

void RemoveFileIfThere(const QString& path) {
  try {
    RemoveFile(path);
  } catch (const RuntimeError& error) {
    if (error.Number() != errors::FileNotFound) throw;
  }
}

void CopyFileOver(const QString& from, const QString& to) {
  ReplaceFile(to, ReadWholeFile(from));
}

void RenameFile(const QString& from, const QString& to) {
  const QString source = ResolvePath(from);
  const QString folder = ResolvePath(QFileInfo(QString(to).replace(u'\\', u'/')).path());
  const QString target = ResolvePath(to);
  const auto sourceStatus = StatOf(source), targetStatus = StatOf(target);
  // A name that changes only in case is the same file, and no second one is in the way.
  const bool sameFile = sourceStatus && targetStatus && sourceStatus->st_dev == targetStatus->st_dev &&
                        sourceStatus->st_ino == targetStatus->st_ino;
  if (!sourceStatus) Raise(errors::FileNotFound, source);
  if (Exists(target) && !sameFile) Raise(errors::FileExists, target);
  const QString wanted = WithSeparator(folder) + QFileInfo(QString(to).replace(u'\\', u'/')).fileName();
  if (::rename(QFile::encodeName(source).constData(), QFile::encodeName(wanted).constData()) != 0)
    RaiseWriteError(errno, wanted);
}

void MakeFolder(const QString& stored) {
  const QString path = ResolvePath(stored);
  if (::mkdir(QFile::encodeName(path).constData(), 0777) == 0) return;
  if (errno == EEXIST) Raise(errors::PathFileAccess, path);
  RaiseWriteError(errno, path);
}

QDateTime FileTime(const QString& stored) {
  const QFileInfo info(ResolvePath(stored));
  if (!info.exists()) Raise(errors::FileNotFound, info.filePath());
  return info.lastModified();
}

}  // namespace quillane
