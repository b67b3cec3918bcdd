// How a fresh process says that its window stands: the moment after its first paint, and what it took at
// most.
#pragma once
#include <QEvent>
#include <QFile>
#include <QObject>
#include <QTimer>
#include <chrono>
#include <cstdio>
#include <functional>

namespace quillane::bench {

/// Nanoseconds of the clock that all processes of this machine share.
inline long long Now() {
  return std::chrono::steady_clock::now().time_since_epoch().count();
}

/// The most memory that this process has held, in kilobytes.
inline long PeakKilobytes() {
  QFile status(QStringLiteral("/proc/self/status"));
  if (!status.open(QIODevice::ReadOnly)) return 0;
  for (const QByteArray& line : status.readAll().split('\n'))
    if (line.startsWith("VmHWM:")) return line.mid(6).trimmed().split(' ').first().toLong();
  return 0;
}

/// One line for the process that waits: what was reached, when, with how much memory.
inline void Report(const char* what) {
  std::printf("%s %lld %ld\n", what, Now(), PeakKilobytes());
  std::fflush(stdout);
}

/// Calls `then` once, after the first paint of a widget that `counts`.
class FirstPaint : public QObject {
 public:
  FirstPaint(std::function<bool(QObject*)> counts, std::function<void()> then)
      : counts_(std::move(counts)), then_(std::move(then)) {}

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (!seen_ && event->type() == QEvent::Paint && counts_(watched)) {
      seen_ = true;
      QTimer::singleShot(0, this, then_);  // the filter runs before the paint, the timer after it
    }
    return false;
  }

 private:
  std::function<bool(QObject*)> counts_;
  std::function<void()> then_;
  bool seen_ = false;
};

}  // namespace quillane::bench
