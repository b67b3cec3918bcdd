// Tables of related cases, and a disk that fails where a test says.
#pragma once
#include <QStringList>
#include <QVariant>
#include <tuple>
#include <vector>

#include "platform/files.h"

namespace quillane::test {

/// The rows of a table; a loop takes each apart by a structured binding.
template <class... Columns>
using Cases = std::vector<std::tuple<Columns...>>;

/// Values side by side, as in "Arial|9.75|true", for one look at what belongs together.
template <class... Values>
QString Joined(const Values&... values) {
  return QStringList{QVariant(values).toString()...}.join(u'|');
}

struct DiskFault {
  QString step, ending;
  int error = 0;
};
inline DiskFault diskFault;

/// From now on a step of a write fails with an errno value: "open", "write" and so on, "" for any, where the
/// path ends like that.
inline void BreakDisk(const QString& step, int error, const QString& ending = {}) {
  diskFault = {step, ending, error};
  SetFaultHook([](const char* at, const QString& path) {
    const bool fails = diskFault.step.isEmpty() || diskFault.step == QLatin1String(at);
    return fails && path.endsWith(diskFault.ending) ? diskFault.error : 0;
  });
}
inline void MendDisk() {
  SetFaultHook(nullptr);
}

}  // namespace quillane::test
