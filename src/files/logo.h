// The logo of the first page: chosen, shown, bordered, kept as default.
#pragma once
#include <QString>

namespace quillane {

/// The pictures that can be a logo, as the file dialog filters them.
inline const QString LogoFilter = QStringLiteral("*.jpg;*.bmp;*.gif");

/// Shows the file dialog for a picture.
void OpenLogoCommand();
/// Puts a picture in the place of the logo and remembers it for the proposal and the format.  One that cannot
/// be read is told about and leaves the old logo.
void ChooseLogo(const QString& path);
/// Keeps the picture on page 1 and its place for all new proposals.
void SaveLogoAsDefault();
/// Shows or hides the logo, in all proposals.
void ToggleLogoVisible();
/// Draws a border around the logo, on the screen only, or takes it away.
void ToggleLogoBorder();

}  // namespace quillane
