// Whether the desktop has a program for a file.
#pragma once
#include <QString>

namespace quillane {

/// False when the desktop says that it has no program for files of this kind; true also where it cannot be
/// asked. The toolkit alone takes the start of a helper for success, whether or not that finds anything to
/// start.
bool DesktopOpens(const QString& path);

}  // namespace quillane
