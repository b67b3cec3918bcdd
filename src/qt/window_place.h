// Where a window stood when it was last closed, kept in window.ini of the program's folder.
#pragma once
#include <QString>
#include <QWidget>

namespace quillane {

/// `name` tells one window from another: "frmMain".
void KeepPlace(const QWidget& window, const QString& name);
/// Puts a window where it stood; false, and nothing done, where that is not known.
bool RestorePlace(QWidget& window, const QString& name);

}  // namespace quillane
