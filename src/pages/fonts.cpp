#include "pages/fonts.h"

#include "model/proposal.h"

namespace quillane {

void SetMyFonts(Page& page) {
  const UserFont& user = proposal.UDP;
  for (auto* array : {&page.txt, &page.txtQty, &page.txtAmt})
    for (Control& area : *array) {
      area.SetFont(
          {user.FontName, user.FontSize, area.GetFont().bold, user.FontItalic, area.GetFont().underline});
      // A selected area stays white on blue, and takes the colour when it is deselected.
      if (area.BackColor() != colors::Blue) area.SetForeColor(user.FontColor);
    }
  for (auto* array : {&page.lblAt, &page.lblEach})
    for (Control& label : *array) label.SetFontName(QStringLiteral("Arial"));
}

void ApplyUserFont() {
  const Scoped applying(editing.ApplyingFonts, true);
  const UserFont& font = proposal.UDP;
  for (int window = 0; window < ItemPages; ++window) {
    SetMyFonts(page(window));
    for (auto* array : {&page(window).lblAt, &page(window).lblEach}) {
      for (Control& label : *array) {
        label.SetFont({font.FontName, font.FontSize, false, font.FontItalic, false});
        label.SetForeColor(font.FontColor);
      }
    }
  }
}

}  // namespace quillane
