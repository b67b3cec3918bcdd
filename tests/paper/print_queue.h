// A print server of the test's own, with queues that keep what they are sent.
#pragma once
#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

namespace quillane::test {

/// Runs the system's print server in a folder of its own, beside and unknown to the one that may serve the
/// machine. It has the queues "Office", its default, and "Closed", which takes no jobs.
class PrintServer {
 public:
  PrintServer();
  ~PrintServer();
  PrintServer(const PrintServer&) = delete;
  PrintServer& operator=(const PrintServer&) = delete;

  /// Why there is no server; empty when it runs.
  const QString& Trouble() const { return trouble_; }
  /// The jobs that came out, in their order, once there are so many; fewer when they do not come.
  QStringList Jobs(int expected) const;
  void ForgetJobs() const;
  void RemoveQueue(const QString& name) const;
  void AddQueue(const QString& name) const;

 private:
  QString Path(const QString& name) const { return folder_.filePath(name); }
  void Write(const QString& name, const QByteArray& text) const;
  void WriteFolder() const;
  bool WaitForSocket() const;
  QByteArray QueueEntry(const QByteArray& name, const char* kind, const char* accepting) const;

  QTemporaryDir folder_;
  QProcess process_;
  QString trouble_;
};

}  // namespace quillane::test
