// The font that all areas take, tried on a sample before the pages get it.
#pragma once
#include <QString>
#include <array>

#include "ui/font.h"

namespace quillane {

/// Gives pages 1 to 5 the font in proposal.UDP by a person's wish: what has become too wide for its area
/// turns red at once, not when it is next edited.
void GiveUserFontToPages();
/// The font in use becomes the default of new proposals.  False when the preferences could not be written,
/// which has been told.
bool MakeUserFontDefault();

/// The captions of optFontSize(0) to optFontSize(4).
inline constexpr std::array<const char*, 5> FontSizeCaptions = {
    "Font Size = 10", "Font Size = 9", "Font Size = 8", "Font Size = 7", "Font Size = 6"};
/// The size at the end of such a caption, one digit or two.
float SizeInCaption(const QString& caption);

/// What frmTextProps shows of proposal.UDP, which its controls write as they change.
struct UserFontTexts {
  QString name, color;  ///< "Current Font Name = Arial", "Current Font Color = Black"
  QString sample;       ///< "Sampling Text with Arial: 10"
  Font font;            ///< of the sample, never bold or underlined
};
UserFontTexts ShownUserFont();

}  // namespace quillane
