// The program's own drawings as icons, sharp at every scale.
#pragma once
#include <QIcon>

namespace quillane {

/// Whether the desktop's windows are dark now, with light words.
bool GroundIsDark();

/// The icon of a drawing in the program's resources, ":/icons/new.svg".  It is drawn when it is first shown,
/// at the size and scale that the screen asks for, in lines that read on the desktop's own ground.
QIcon IconOf(const QString& source);

}  // namespace quillane
