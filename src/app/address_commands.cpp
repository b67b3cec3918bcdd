#include "app/address_commands.h"

#include "address/batch.h"
#include "address/book_window.h"
#include "address/contacts.h"
#include "address/field_commands.h"
#include "app/address_merge.h"
#include "print/listing.h"
#include "ui/desk.h"

namespace quillane {

using namespace entries;

namespace {

const FileKind ContactFiles = {QStringLiteral("Contacts"), QStringLiteral("vcf")};

void ImportContacts() {
  const QString path = desk().FileToOpen(QStringLiteral("Import Contacts"), ContactFiles);
  if (!path.isEmpty()) ImportContactsCommand(path);
}

void ExportContacts() {
  const QString path =
      desk().FileToSave(QStringLiteral("Export Contacts"), ContactFiles,
                        CurrentBook() == Book::Personal ? QStringLiteral("Personal Address Book")
                                                        : QStringLiteral("Business Address Book"));
  if (!path.isEmpty()) ExportContactsCommand(path);
}

template <Party party, Afterwards afterwards>
void MergeParty() {
  MergePartyCommand(party, afterwards);
}
template <Site site>
void MergeSite() {
  MergeSiteCommand(site);
}

/// What stands before the colon on paper.
QString PrintedLabel(int index) {
  const QString& label = addressBook.lblInfo[index];
  return label == QLatin1String("Name (First Name First)") ? QStringLiteral("Name") : label;
}

/// Two records of one name share a file where they are printed to "PDF File"; a proposal's own has another.
QString DocumentTitle() {
  constexpr int longestName = 60;
  const QString name = TrimBlanks(addressBook.txt[field::Name].Text).left(longestName);
  return name.isEmpty() ? QStringLiteral("Address") : QStringLiteral("Address - ") + name;
}

}  // namespace

void PrintRecordCommand() {
  constexpr float label = 720, value = 2700;  // twips from the left
  Listing listing;
  listing.title = DocumentTitle();
  listing.top = 720;
  listing.lineHeight = 300;
  const QString book = CurrentBook() == Book::Company ? QStringLiteral("Company Address Book")
                                                      : QStringLiteral("Personal Address Book");
  listing.lines.push_back({{label, QStringLiteral("Printing From:")}, {value, book}});
  for (int i = field::Name; i < field::Notes; ++i)
    listing.lines.push_back({{label, PrintedLabel(i) + u':'}, {value, addressBook.txt[i].Text}});
  PrintListing(listing);
}

const std::vector<Command>& AddressCommands() {
  static const std::vector<Command> commands = {
      Menu("", "mnuFile", "&File"),
      Menu("mnuFile", "mnuFileOpen", "&Open"),
      Entry("mnuFileOpen", "mnuFileOpenClientele", "&Personal Style Address Book", "",
            SwitchToPersonalBookCommand),
      Entry("mnuFileOpen", "mnuFileOpenBusiness", "&Business Style Address Book", "",
            SwitchToCompanyBookCommand),
      Entry("mnuFile", "mnuFileNew", "Create &New Record", "", NewRecordCommand),
      Entry("mnuFile", "mnuFileDelete", "&Delete Current Record", "", DeleteRecordCommand),
      Entry("mnuFile", "mnuFileSave", "&Save Current Record", "", [] { SaveRecordCommand(); }),
      Entry("mnuFile", "mnuFilePrint", "&Print Current Record", "", PrintRecordCommand),

      Menu("", "mnuEdit", "&Edit"),
      Entry("mnuEdit", "mnuEditFind", "Find", "", FindCommand),
      Entry("mnuEdit", "mnuEditFindAgain", "Find A&gain", "", FindAgainCommand),

      Menu("", "mnuOptions", "&Options"),
      Entry("mnuOptions", "mnuOptMerge", "Merge Bride Info into Proposal", "",
            MergeParty<Party::Bride, Afterwards::Stay>),
      Entry("mnuOptions", "mnuOptMergeExit", "Merge Bride Info into Proposal and Exit", "",
            MergeParty<Party::Bride, Afterwards::Close>),
      Entry("mnuOptions", "mnuOptMergeGroom", "Merge Groom Info into Proposal", "",
            MergeParty<Party::Groom, Afterwards::Stay>),
      Entry("mnuOptions", "mnuOptMergeGroomExit", "Merge Groom Info into Proposal and Exit", "",
            MergeParty<Party::Groom, Afterwards::Close>),
      Entry("mnuOptions", "mnuOptMergeCeremony", "Merge Displayed Record into Ceremony Info", "",
            MergeSite<Site::Ceremony>),
      Entry("mnuOptions", "mnuOptMergeReception", "Merge Displayed Record into Reception Info", "",
            MergeSite<Site::Reception>),
      Entry("mnuOptions", "mnuOptCopyNameAddress", "Copy Name and Address to Memory", "",
            CopyNameAddressCommand),
      Entry("mnuOptions", "mnuOptCopyAll", "Copy All to Memory", "", CopyAllCommand),

      Menu("", "mnuTools", "Tools"),
      Entry("mnuTools", "mnuToolsImportBatch", "Import Batch Address List from Memory", "",
            ImportBatchCommand),
      Rule("mnuTools"),
      Entry("mnuTools", "mnuToolsImportContacts", "Import Contacts...", "", ImportContacts),
      Entry("mnuTools", "mnuToolsExportContacts", "Export Contacts...", "", ExportContacts),
  };
  return commands;
}

}  // namespace quillane
