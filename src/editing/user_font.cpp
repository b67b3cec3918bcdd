#include "editing/user_font.h"

#include "editing/areas.h"
#include "editing/colours.h"
#include "model/proposal.h"
#include "pages/fonts.h"
#include "platform/numbers.h"
#include "settings/preferences.h"

namespace quillane {

void GiveUserFontToPages() {
  ApplyUserFont();
  for (int window = 0; window < ItemPages; ++window) RefreshAreaWarnings(page(window));
}

bool MakeUserFontDefault() {
  const UserFont font = proposal.UDP;
  return StorePreferences(
      {{QStringLiteral("Font Name:"), font.FontName},
       {QStringLiteral("Font Size:"), SingleText(font.FontSize)},
       {QStringLiteral("Font Color:"), QString::number(font.FontColor)},
       {QStringLiteral("Font Italic:"), font.FontItalic ? QStringLiteral("True") : QStringLiteral("False")}});
}

float SizeInCaption(const QString& caption) {
  return static_cast<float>(caption.right(2).trimmed().toInt());
}

UserFontTexts ShownUserFont() {
  const UserFont& font = proposal.UDP;
  return {QStringLiteral("Current Font Name = ") + font.FontName,
          QStringLiteral("Current Font Color = ") + ColourName(font.FontColor),
          QStringLiteral("Sampling Text with %1: %2").arg(font.FontName, SingleText(font.FontSize)),
          {font.FontName, font.FontSize, false, font.FontItalic, false}};
}

}  // namespace quillane
