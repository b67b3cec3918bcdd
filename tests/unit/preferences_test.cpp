#include "settings/preferences.h"

#include <QFile>

#include "editing/user_font.h"
#include "platform/runtime_error.h"
#include "program_folder.h"

using namespace quillane;
using namespace quillane::test;

namespace {

const QByteArray Installed =
    "App First Instance:False\r\nShared Directory:\r\nCompany Name:Alder Events\r\n"
    "Company Address 1:12 Mill Lane\r\nCompany Address 2:\r\nCompany City, State Zip:Dover, DE 19901\r\n"
    "Company Phone:555-0100\r\nCompany Fax:555-0101\r\nCompany Website:www.example.com\r\n"
    "Company Email:a@example.com\r\nPage Title:Weddings\r\nLogo File:events.jpg\r\nLogo Left:720\r\n"
    "Logo Top:540\r\nAuto Complete Word:True\r\nAuto Start Position:3\r\nShow FUT:False\r\n"
    "Minimize FUT:True\r\nShow Calc:True\r\nDefault File Format:\r\nLoad Default Format:False\r\n"
    "Default Printer:Office Laser\r\nCurrency Symbol:\x80\r\nFrequent Terms File:Event Terms.fut\r\n"
    "Load FUT:True\r\nPage Titles:Our Proposal - \r\nFUT "
    "Position:Left=100:Top=200.5:Width=3000:Height=4000\r\n"
    "Font Name:Times New Roman\r\nFont Size:9.75\r\nFont Color:255\r\nFont Italic:True\r\nLogo "
    "Visible:True\r\n";

class PreferencesFile : public InProgramFolder {
 protected:
  void SetUp() override {
    InProgramFolder::SetUp();
    Put("UserPreferences.txt", Installed);
  }
  void Replace(const QByteArray& line, const QByteArray& by) const {
    Put("UserPreferences.txt", Get("UserPreferences.txt").replace(line + "\r\n", by + "\r\n"));
  }
  void MakeShare(const QString& inside = {}) const { QDir(prefs.ProgramFolder).mkpath("drives/F/" + inside); }
};

TEST_F(PreferencesFile, EveryLineReachesItsSetting) {
  desk.printers = {"Old Inkjet", "Office Laser"};
  GetUserPreferences();
  EXPECT_TRUE(desk.said.isEmpty()) << desk.LastSaid().toStdString();
  EXPECT_TRUE(prefs.Read);
  EXPECT_FALSE(prefs.Reading);
  EXPECT_FALSE(prefs.FirstInstance);
  EXPECT_EQ(prefs.PrefLines.size(), 32);
  const QStringList texts = {prefs.CompanyName,    prefs.CompanyAddress1, prefs.CompanyAddress2,
                             prefs.CompanyCity,    prefs.CompanyPhone,    prefs.CompanyFax,
                             prefs.CompanyWebsite, prefs.CompanyEmail,    prefs.PageTitle,
                             prefs.LogoFile,       prefs.CurrencySymbol,  prefs.FrequentTermsFile,
                             prefs.PageTitles};
  EXPECT_EQ(
      texts.join(u'|'),
      "Alder Events|12 Mill Lane||Dover, DE 19901|555-0100|555-0101|www.example.com|a@example.com|Weddings|"
      "events.jpg|\u20AC|Event Terms.fut|Our Proposal - ");
  EXPECT_EQ(prefs.LogoPath, Path("events.jpg"));
  EXPECT_EQ(prefs.LogoLeft, 720);
  EXPECT_EQ(prefs.LogoTop, 540);
  EXPECT_TRUE(prefs.AutoCompleteWord && prefs.MinimizeFUT && prefs.ShowCalc && prefs.LoadFUT &&
              prefs.LogoVisible);
  EXPECT_FALSE(prefs.ShowFUT || prefs.LoadDefaultFormat);
  EXPECT_EQ(prefs.AutoStartPosition, 3);
  EXPECT_EQ(prefs.FUTLeft, 100);
  EXPECT_EQ(prefs.FUTTop, 200.5f);
  EXPECT_EQ(prefs.FUTWidth, 3000);
  EXPECT_EQ(prefs.FUTHeight, 4000);
  EXPECT_EQ(prefs.DefaultFont, (UserFont{"Times New Roman", 9.75f, 255, true}));

  EXPECT_EQ(printing.CurrentPrinter, "Office Laser");
  EXPECT_EQ(prefs.ProposalFolder, Path("Wedding Proposals/"));
  EXPECT_EQ(prefs.BackupFolder, Path("Wedding Proposals/Backup/"));
  EXPECT_TRUE(FolderExists(prefs.ProposalFolder, "Backup"));
  EXPECT_EQ(proposal.CurrentFolder, prefs.ProposalFolder);
  EXPECT_EQ(format.FormatFolder, prefs.ProposalFolder);
  EXPECT_EQ(proposal.SubTitle, "Our Proposal - ");
  EXPECT_EQ(proposal.UDP, prefs.DefaultFont);
  EXPECT_EQ(proposal.LogoLeft, 720);
  EXPECT_EQ(format.LogoTop, 540);
  EXPECT_EQ(terms.FileName, "Event Terms.fut");
  EXPECT_TRUE(terms.FileLoaded && terms.AutoComplete);
  EXPECT_EQ(terms.AutoStart, 3);
  EXPECT_EQ(Get("UserPreferences.txt"), Installed);
}

TEST_F(PreferencesFile, ALaterReadingLeavesWhatTheSessionChanged) {
  GetUserPreferences();
  proposal.UDP = {"Arial", 12, 0, false};
  proposal.SubTitle = "By hand - ";
  proposal.LogoLeft = 10;
  proposal.CurrentFolder = "/elsewhere/";
  format.FormatFolder = "/formats/";
  terms = {"Mine.fut", false, false, 7};
  EXPECT_TRUE(StorePreference(Setting::CompanyName, "Birch Events"));
  EXPECT_EQ(prefs.CompanyName, "Birch Events");
  EXPECT_EQ(proposal.UDP.FontSize, 12);
  EXPECT_EQ(proposal.SubTitle, "By hand - ");
  EXPECT_EQ(proposal.LogoLeft, 10);
  EXPECT_EQ(proposal.CurrentFolder, "/elsewhere/");
  EXPECT_EQ(format.FormatFolder, "/formats/");
  EXPECT_EQ(terms.FileName, "Mine.fut");
  EXPECT_FALSE(terms.AutoComplete || terms.FileLoaded);
  EXPECT_EQ(terms.AutoStart, 7);
  EXPECT_EQ(Get("UserPreferences.txt"), QByteArray(Installed).replace("Alder", "Birch"));
}

TEST_F(PreferencesFile, TheFirstInstanceIsRememberedByTheRunAndForgottenByTheFile) {
  Replace("App First Instance:False", "App First Instance:True");
  GetUserPreferences();
  EXPECT_EQ(Get("UserPreferences.txt"), Installed);
  GetUserPreferences();
  EXPECT_TRUE(prefs.FirstInstance);
}

TEST_F(PreferencesFile, ALogoPlaceOfZeroIsNone) {
  GetUserPreferences();
  Replace("Logo Left:720", "Logo Left:0");
  Replace("Logo Top:540", "Logo Top:90");
  GetUserPreferences();
  EXPECT_EQ(prefs.LogoLeft, 720);
  EXPECT_EQ(prefs.LogoTop, 90);
  for (const char* whole : {"F:\\logos\\x.jpg", "/logos/x.jpg"}) {
    StorePreference(Setting::LogoFile, QString::fromLatin1(whole));
    EXPECT_EQ(prefs.LogoPath, whole);
  }
}

TEST_F(PreferencesFile, MissingPartsOfTheTermsWindowKeepWhatTheyWere) {
  GetUserPreferences();
  StorePreference(Setting::FUTPosition, "Height=10:Left=-5");
  EXPECT_EQ(prefs.FUTLeft, -5);
  EXPECT_EQ(prefs.FUTTop, 200.5f);
  EXPECT_EQ(prefs.FUTHeight, 10);
  StorePreference(Setting::FUTPosition, {});
  EXPECT_EQ(prefs.FUTHeight, 10);
}

TEST_F(PreferencesFile, WordsWhereNumbersBelongAreNoFailure) {
  Replace("Auto Start Position:3", "Auto Start Position:three");
  Replace("Font Size:9.75", "Font Size:1e400");
  Replace("Font Color:255", "Font Color:-99999999999");
  Replace("Font Name:Times New Roman", "Font Name:");
  Replace("Logo Visible:True", "Logo Visible:perhaps");
  Replace("FUT Position:Left=100:Top=200.5:Width=3000:Height=4000", "FUT Position:Left=:Top=top");
  GetUserPreferences();
  EXPECT_TRUE(desk.said.isEmpty());
  EXPECT_EQ(prefs.AutoStartPosition, 0);
  EXPECT_EQ(prefs.DefaultFont, (UserFont{"Arial", 10, 0, true}));
  EXPECT_FALSE(prefs.LogoVisible);
  EXPECT_EQ(prefs.FUTTop, 0);
}

TEST_F(PreferencesFile, SwappedLinesGiveWrongValuesAndNoMessage) {
  const QByteArray swapped = QByteArray(Installed).replace("Company Phone:555-0100\r\nCompany Fax:555-0101",
                                                           "Company Fax:555-0101\r\nCompany Phone:555-0100");
  Put("UserPreferences.txt", swapped);
  GetUserPreferences();
  EXPECT_TRUE(desk.said.isEmpty());
  EXPECT_EQ(prefs.CompanyPhone, "5-0101");  // cut by the longer key
  EXPECT_EQ(prefs.CompanyFax, "e:555-0100");
  EXPECT_EQ(prefs.CompanyWebsite, "www.example.com");
}

TEST_F(PreferencesFile, AShortFileIsReportedAndTheRestHolds) {
  for (const int lines : {0, 1, 2, 31}) {
    ResetState();
    desk.said.clear();
    qsizetype end = 0;
    for (int i = 0; i < lines; ++i) end = Installed.indexOf('\n', end) + 1;
    Put("UserPreferences.txt", Installed.left(end));
    GetUserPreferences();
    ASSERT_EQ(desk.said.size(), 1) << lines;
    EXPECT_TRUE(desk.LastSaid().contains("An error occurred in GetUserPreferences.\nError Number: 9"));
    EXPECT_TRUE(desk.LastSaid().contains(QString("has %1 of its 32 lines").arg(lines)));
    EXPECT_FALSE(prefs.Read || prefs.Reading);
    EXPECT_EQ(prefs.CompanyName, lines == 31 ? "Alder Events" : "");
    EXPECT_EQ(proposal.CurrentFolder, Path("Wedding Proposals/"));
    EXPECT_EQ(prefs.DefaultFont.FontSize, lines == 31 ? 9.75f : 10);
  }
  StorePreference(Setting::LogoVisible, "True");
  EXPECT_TRUE(prefs.Read);
  EXPECT_TRUE(prefs.LogoVisible);
  EXPECT_EQ(Get("UserPreferences.txt"), Installed);
}

TEST_F(PreferencesFile, MoreLinesAreKept) {
  QByteArray more = Installed;
  for (int i = 0; i < 10000; ++i) more += "more " + QByteArray::number(i) + "\r\n";
  Put("UserPreferences.txt", more);
  GetUserPreferences();
  SaveUserPreferences();
  EXPECT_TRUE(desk.said.isEmpty());
  EXPECT_EQ(Get("UserPreferences.txt"), more);
}

TEST_F(PreferencesFile, WithoutAFileTheProposalsAreLocal) {
  RemoveFile(Path("UserPreferences.txt"));
  QDir(prefs.ProgramFolder).rmdir("Wedding Proposals");
  GetUserPreferences();
  ASSERT_EQ(desk.said.size(), 1);
  EXPECT_TRUE(desk.LastSaid().contains("An error occurred in GetUserPreferences.\nError Number: 53"));
  EXPECT_EQ(prefs.ProposalFolder, Path("Wedding Proposals/"));
  EXPECT_EQ(proposal.CurrentFolder, Path("Wedding Proposals/"));
  EXPECT_TRUE(FolderExists(prefs.ProposalFolder, "Backup"));
  EXPECT_FALSE(prefs.Read);

  // Never made from nothing.
  EXPECT_THROW(StorePreference(Setting::CompanyName, "x"), RuntimeError);
  EXPECT_FALSE(SaveUserPreferences());
  EXPECT_FALSE(FileExists(prefs.ProgramFolder, "UserPreferences.txt"));
}

TEST_F(PreferencesFile, AFailingSaveLeavesFileAndSettings) {
  GetUserPreferences();
  SetFaultHook([](const char* step, const QString&) { return qstrcmp(step, "sync") == 0 ? ENOSPC : 0; });
  EXPECT_FALSE(StorePreference(Setting::CompanyName, "Birch"));
  EXPECT_TRUE(desk.LastSaid().contains("An error occurred in SaveUserPreferences.\nError Number: 61"));
  EXPECT_EQ(prefs.CompanyName, "Alder Events");
  EXPECT_EQ(Get("UserPreferences.txt"), Installed);
}

TEST_F(PreferencesFile, AValueStaysOnItsLineAndInTheCodePage) {
  GetUserPreferences();
  StorePreference(Setting::CompanyName, QStringLiteral("\u0141ucja\nEvents"));
  EXPECT_EQ(prefs.CompanyName, "Lucja Events");
  EXPECT_EQ(prefs.PrefLines.size(), 32);
}

TEST_F(PreferencesFile, AFolderCannotBeMadeOnAShareThatIsNotThere) {
  Replace("Shared Directory:", "Shared Directory:F:\\");
  desk.answers.enqueue(Answer::Yes);
  GetUserPreferences();
  ASSERT_EQ(desk.said.size(), 3);
  EXPECT_TRUE(desk.LastSaid().contains("An error occurred in GetUserPreferences.\nError Number: 76"));
  EXPECT_EQ(prefs.ProposalFolder, Path("Wedding Proposals/"));
  // Back before anything was opened, it is the proposals' folder again.
  MakeShare("Wedding Proposals");
  GetUserPreferences();
  EXPECT_EQ(proposal.CurrentFolder, Path("drives/F/Wedding Proposals/"));
}

TEST_F(PreferencesFile, TheShareIsNamedByItsLetter) {
  GetUserPreferences();
  MakeShare("Wedding Proposals");
  const QString refusal =
      "You have not entered a valid Drive Letter. Please\ncontact the Help File for assistance in setting "
      "up\n"
      "a network share path.";
  for (const QString answer : {"", "1", "_", ":", "\u00E9"}) {
    desk.inputs.enqueue(answer);
    RequestNetworkSharePath();
    EXPECT_EQ(desk.LastSaid(), refusal) << answer.toStdString();
  }
  EXPECT_EQ(desk.said[0].title, "Proposal Directory Setup");
  EXPECT_TRUE(
      desk.said[0].text.startsWith("Please enter the network share DRIVE LETTER now, singularly without "
                                   "symbols... i.e., c, d, e, f, g, etc.\n\nThe network"));
  desk.inputs.enqueue("g");
  RequestNetworkSharePath();
  EXPECT_TRUE(desk.LastSaid().contains("An error occurred in RequestNetworkSharePath.\nError Number: 76"));
  EXPECT_EQ(Get("UserPreferences.txt"), Installed);
  EXPECT_EQ(prefs.ProposalFolder, Path("Wedding Proposals/"));
  desk.inputs.enqueue("f drive");
  RequestNetworkSharePath();
  EXPECT_EQ(prefs.PrefLines[1], "Shared Directory:F:\\");
  EXPECT_EQ(prefs.ProposalFolder, Path("drives/F/Wedding Proposals/"));
  EXPECT_EQ(prefs.BackupFolder, Path("drives/F/Wedding Proposals/Backup/"));
}

TEST_F(PreferencesFile, ACurrencySymbolThatCannotBeStoredIsTold) {
  desk.inputs.enqueue("$");
  CurrencySymbolCommand();
  EXPECT_TRUE(
      desk.LastSaid().startsWith("Error encountered while creating new Currency Symbol.\nError Number: "
                                 "53\nError Description: File not found"));
}

TEST_F(PreferencesFile, TheFontInUseBecomesTheDefault) {
  GetUserPreferences();
  proposal.UDP = {"Arial", 11.25f, 0xFF0000, false};
  EXPECT_TRUE(MakeUserFontDefault());
  EXPECT_EQ(prefs.DefaultFont, proposal.UDP);
  EXPECT_TRUE(
      Get("UserPreferences.txt")
          .contains("Font Name:Arial\r\nFont Size:11.25\r\nFont Color:16711680\r\nFont Italic:False\r\n"));
}

TEST_F(PreferencesFile, TheBoxesSayWhatIsNotDone) {
  GetUserPreferences();
  terms.AutoStart = 5;
  const PreferenceBoxes shown = BoxesFromPreferences();
  EXPECT_EQ(shown, (PreferenceBoxes{true, true, false, false, true, true, true}));
  SavePreferenceBoxes({false, false, true, true, true, false, false});
  EXPECT_EQ(desk.LastSaid(), "These changes will take effect on your next start.");
  EXPECT_TRUE(prefs.ShowFUT && prefs.LoadDefaultFormat);
  EXPECT_FALSE(prefs.MinimizeFUT || prefs.ShowCalc || prefs.AutoCompleteWord || prefs.LoadFUT ||
               terms.FileLoaded);
  EXPECT_EQ(prefs.AutoStartPosition, 5);
  EXPECT_TRUE(terms.AutoComplete) << "the session's switch is its own";
  SavePreferenceBoxes({true, true, true, true, false, true, true});
  EXPECT_EQ(prefs.AutoStartPosition, 0);
  EXPECT_TRUE(terms.FileLoaded);
}

class BrokenSpooler : public FakeDesk {
 public:
  QStringList PrinterNames() const override { Raise(errors::Printer); }
};

TEST_F(PreferencesFile, APrinterErrorIsToldAndPassedOver) {
  BrokenSpooler broken;
  GetUserPreferences();
  ASSERT_EQ(broken.said.size(), 1);
  EXPECT_EQ(broken.LastSaid(), "Printer error.");
  EXPECT_TRUE(prefs.Read);
  EXPECT_EQ(prefs.ProposalFolder, Path("Wedding Proposals/"));
  SetDesk(&desk);
}

}  // namespace
