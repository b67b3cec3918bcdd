#include "ui/font_twins.h"

namespace quillane {

namespace {

struct Twins {
  const char *name, *substitute;
};
constexpr Twins SameMetrics[] = {
    {"Arial", "Liberation Sans"},
    {"Arial", "Arimo"},
    {"Times New Roman", "Liberation Serif"},
    {"Times New Roman", "Tinos"},
    {"Courier New", "Liberation Mono"},
    {"Courier New", "Cousine"},
    {"Calibri", "Carlito"},
    {"Cambria", "Caladea"},
};

}  // namespace

QStringList WithTwins(QStringList installed) {
  for (const Twins& twins : SameMetrics) {
    const QString name = QLatin1String(twins.name);
    if (installed.contains(QLatin1String(twins.substitute), Qt::CaseInsensitive) &&
        !installed.contains(name, Qt::CaseInsensitive))
      installed.append(name);
  }
  return installed;
}

}  // namespace quillane
