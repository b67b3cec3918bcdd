// What goes from the address book into the proposal's first page, and from there into the book.
#pragma once

namespace quillane {

enum class Party { Bride, Groom };
enum class Site { Ceremony, Reception };
enum class Afterwards { Stay, Close };

/// mnuOptMerge, mnuOptMergeGroom and the two that close the window: the record on the screen becomes the
/// bride's or the groom's.  Nothing for a record without a name, which is told.
void MergePartyCommand(Party party, Afterwards afterwards);
/// mnuOptMergeCeremony and mnuOptMergeReception.
void MergeSiteCommand(Site site);

/// mnuOptCopyToPersonalAddressBook and mnuOptCopyGroomToPersonalAddressBook: a new record in the personal
/// book, filled from the first page and not yet saved.
void AddPartyCommand(Party party);

}  // namespace quillane
