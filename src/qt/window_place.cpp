#include "qt/window_place.h"

#include <QSettings>

#include "model/proposal.h"

namespace quillane {

namespace {

QSettings WindowSettings() {
  return QSettings(prefs.ProgramFolder + QStringLiteral("window.ini"), QSettings::IniFormat);
}

QString KeyOf(const QString& name) {
  return name + QStringLiteral("/geometry");
}

}  // namespace

void KeepPlace(const QWidget& window, const QString& name) {
  WindowSettings().setValue(KeyOf(name), window.saveGeometry());
}

bool RestorePlace(QWidget& window, const QString& name) {
  const QByteArray geometry = WindowSettings().value(KeyOf(name)).toByteArray();
  return !geometry.isEmpty() && window.restoreGeometry(geometry);
}

}  // namespace quillane
