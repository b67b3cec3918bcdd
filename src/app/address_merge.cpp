#include "app/address_merge.h"

#include <array>
#include <vector>

#include "address/batch.h"
#include "address/book_window.h"
#include "editing/area_rules.h"
#include "editing/selection.h"
#include "model/frame.h"
#include "model/proposal.h"
#include "model/report.h"
#include "model/strip.h"
#include "model/upcalls.h"
#include "print/preview.h"
#include "ui/desk.h"

namespace quillane {

namespace {

constexpr int EventDateArea = 0;

/// The first of the areas of frmP1 that belong together.
int FirstArea(Party party) {
  return party == Party::Bride ? 2 : 8;
}
int FirstArea(Site site) {
  return site == Site::Ceremony ? 14 : 16;
}

/// One area of frmP1 and what it is to read.
struct AreaText {
  int area = 0;
  QString text;
};

const QString& Field(int index) {
  return addressBook.txt[index].Text;
}

/// Both lines of the address, which have one area.
QString StreetAddress() {
  const QString& second = Field(field::Address2);
  return second.isEmpty() ? Field(field::Address1) : Field(field::Address1) + QStringLiteral(" - ") + second;
}

std::vector<AreaText> PartyTexts(Party party) {
  // A company has no home phone; its number goes where it is sure to be seen.
  const bool person = CurrentBook() == Book::Personal;
  const int first = FirstArea(party);
  return {{first, Field(field::Name)},
          {first + 1, StreetAddress()},
          {first + 2, Field(field::City)},
          {first + 3, person ? Field(field::Phone) : QString()},
          {first + 4, Field(person ? field::Cell : field::Phone)},
          {first + 5, Field(field::Email)}};
}

/// Writes areas of frmP1.  Those whose words a format has locked keep them, and in the end the status bar
/// counts them.
class FirstPage {
 public:
  FirstPage() {
    if (InPreview()) PrintPreview();
    ClearSelection();
  }
  FirstPage(const FirstPage&) = delete;
  FirstPage& operator=(const FirstPage&) = delete;

  void Write(const AreaText& wanted) {
    Control& area = page(0).txt[wanted.area];
    if (area.Text() == wanted.text) return;
    if (FixedByFormat(page(0), wanted.area)) {
      ++locked_;
    } else {
      area.SetText(wanted.text);
    }
  }

  void End() const {
    RefreshAreaWarnings(page(0));
    if (locked_ == 0) return;
    TellInStatusBar(
        locked_ == 1 ? QStringLiteral("1 area is locked by the format and keeps its text.")
                     : QStringLiteral("%1 areas are locked by the format and keep their text.").arg(locked_));
  }

 private:
  int locked_ = 0;
};

/// A date that stands on the page gives way to a Yes only.
void MergeEventDate(FirstPage& first) {
  const bool mayAsk = !FixedByFormat(page(0), EventDateArea);
  if (mayAsk && !page(0).txt[EventDateArea].Text().isEmpty() &&
      !AskYesNo(QStringLiteral("Overwrite Event Date with this one?"),
                QStringLiteral("Event Date Already Exists")))
    return;
  first.Write({EventDateArea, Field(field::EventDate)});
}

bool HasRecordToMerge() {
  if (!TrimBlanks(Field(field::Name)).isEmpty()) return true;
  Tell(QStringLiteral("No Record Selected"));
  return false;
}

}  // namespace

void MergePartyCommand(Party party, Afterwards afterwards) {
  if (!HasRecordToMerge()) return;
  const bool merged = Guarded("mnuOptMerge_Click", [party] {
    FirstPage first;
    for (const AreaText& text : PartyTexts(party)) first.Write(text);
    MergeEventDate(first);
    first.End();
  });
  if (merged && afterwards == Afterwards::Close) desk().CloseWindow(QStringLiteral("frmAddress"));
}

void MergeSiteCommand(Site site) {
  if (!HasRecordToMerge()) return;
  Guarded("mnuOptMergeCeremony_Click", [site] {
    FirstPage first;
    first.Write({FirstArea(site), Field(field::Name)});
    first.Write({FirstArea(site) + 1, StreetAddress()});
    first.End();
  });
}

void AddPartyCommand(Party party) {
  if (!MayShowAddressBook()) return;
  Guarded("mnuOptCopyToPersonalAddressBook_Click", [party] {
    if (!ShowNewRecord()) return;
    constexpr std::array targets = {field::Name,  field::Address1, field::City,
                                    field::Phone, field::Cell,     field::Email};
    int area = FirstArea(party);
    for (const int target : targets) SetField(target, page(0).txt[area++].Text());
    SetField(field::EventDate, page(0).txt[EventDateArea].Text());
    upcalls().ShowAddresses();
  });
}

}  // namespace quillane
