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

/// What is read, and what the session began with.
QString Values() {
  const auto& [name, size, color, italic] = prefs.DefaultFont;
  return Joined("", name, size, color, italic, prefs.LogoLeft, prefs.LogoTop, prefs.LogoVisible,
                prefs.FUTLeft, prefs.FUTTop, prefs.FUTWidth, prefs.FUTHeight, prefs.AutoStartPosition);
}
QString Read() {
  const Preferences& p = prefs;
  return Joined(p.CompanyName, p.CompanyAddress1, p.CompanyAddress2, p.CompanyCity, p.CompanyPhone,
                p.CompanyFax, p.CompanyWebsite, p.CompanyEmail, p.PageTitle, p.LogoFile, p.CurrencySymbol,
                p.FrequentTermsFile, p.PageTitles, "on",
                p.AutoCompleteWord && p.MinimizeFUT && p.ShowCalc && p.LoadFUT, "off",
                p.ShowFUT || p.LoadDefaultFormat || p.FirstInstance) +
         Values();
}
QString Session() {
  return Joined(proposal.SubTitleText, proposal.UDP.FontName, proposal.CurrentFolder, format.FormatFolder,
                terms.FileName, format.LogoLeft, format.LogoTop, terms.FileLoaded, terms.AutoComplete,
                terms.AutoStart);
}

TEST_F(PreferencesFile, EveryLineReachesItsSettingAndTheSession) {
  desk.printers = {"Old Inkjet", "Office Laser"};
  GetUserPreferences();
  EXPECT_TRUE(desk.said.isEmpty()) << desk.LastSaid().toStdString();
  EXPECT_TRUE(prefs.Read && !prefs.Reading && prefs.PrefLines.size() == 32);
  EXPECT_EQ(Read(),
            "Alder Events|12 Mill Lane||Dover, DE 19901|555-0100|555-0101|www.example.com|a@example.com|"
            "Weddings|events.jpg|\u20AC|Event Terms.fut|Our Proposal - |on|true|off|false|"
            "Times New Roman|9.75|255|true|720|540|true|100|200.5|3000|4000|3");
  EXPECT_EQ(prefs.LogoPath, Path("events.jpg"));
  EXPECT_EQ(printing.CurrentPrinter, "Office Laser");
  EXPECT_EQ(prefs.ProposalFolder + prefs.BackupFolder,
            Path("Wedding Proposals/") + Path("Wedding Proposals/Backup/"));
  EXPECT_TRUE(FolderExists(prefs.ProposalFolder, "Backup"));
  EXPECT_EQ(Session(), "Our Proposal - |Times New Roman|" + prefs.ProposalFolder + u'|' +
                           prefs.ProposalFolder + "|Event Terms.fut|720|540|true|true|3");
  EXPECT_EQ(Get("UserPreferences.txt"), Installed);

  // A later reading leaves what the session has changed.
  proposal.UDP.FontName = "Arial";
  proposal.SubTitleText = "By hand - ";
  format.LogoLeft = 10;
  proposal.CurrentFolder = "/elsewhere/";
  format.FormatFolder = "/formats/";
  terms = {"Mine.fut", false, false, 7};
  const QString changed = Session();
  EXPECT_TRUE(StorePreference(Setting::CompanyName, "Birch Events"));
  EXPECT_EQ(prefs.CompanyName, "Birch Events");
  EXPECT_EQ(Session(), changed);
  EXPECT_EQ(Get("UserPreferences.txt"), QByteArray(Installed).replace("Alder", "Birch"));
}

TEST_F(PreferencesFile, TheFirstInstanceIsRememberedByTheRunAndForgottenByTheFile) {
  Replace("App First Instance:False", "App First Instance:True");
  GetUserPreferences();
  EXPECT_EQ(Get("UserPreferences.txt"), Installed);
  GetUserPreferences();
  EXPECT_TRUE(prefs.FirstInstance);
}

TEST_F(PreferencesFile, WhatIsNoValueKeepsWhatItWasOrIsNone) {
  GetUserPreferences();
  Replace("Logo Left:720", "Logo Left:0");
  Replace("Logo Top:540", "Logo Top:90");
  GetUserPreferences();
  StorePreference(Setting::FUTPosition, "Height=10:Left=-5");
  EXPECT_EQ(Values(), "|Times New Roman|9.75|255|true|720|90|true|-5|200.5|3000|10|3");
  StorePreference(Setting::FUTPosition, {});
  EXPECT_EQ(prefs.FUTHeight, 10);
  for (const QString whole : {"F:\\logos\\x.jpg", "/logos/x.jpg"}) {
    StorePreference(Setting::LogoFile, whole);
    EXPECT_EQ(prefs.LogoPath, whole);
  }

  ResetState();
  Put("UserPreferences.txt", Installed);
  for (const auto& [line, wrong] : Cases<QByteArray, QByteArray>{
           {"Auto Start Position:3", "Auto Start Position:three"},
           {"Font Size:9.75", "Font Size:1e400"},
           {"Font Color:255", "Font Color:-99999999999"},
           {"Font Name:Times New Roman", "Font Name:"},
           {"Logo Visible:True", "Logo Visible:perhaps"},
           {"FUT Position:Left=100:Top=200.5:Width=3000:Height=4000", "FUT Position:Left=:Top=top"}})
    Replace(line, wrong);
  GetUserPreferences();
  EXPECT_TRUE(desk.said.isEmpty());
  EXPECT_EQ(Values(), "|Arial|10|0|true|720|540|false|0|0|0|0|0");
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

TEST_F(PreferencesFile, AValueStaysOnItsLineAndInTheCodePageAndAFailingSaveLeavesTheOld) {
  GetUserPreferences();
  StorePreference(Setting::CompanyName, QStringLiteral("\u0141ucja\nEvents"));
  EXPECT_EQ(prefs.CompanyName, "Lucja Events");
  EXPECT_EQ(prefs.PrefLines.size(), 32);
  const QByteArray before = Get("UserPreferences.txt");
  BreakDisk("sync", ENOSPC);
  EXPECT_FALSE(StorePreference(Setting::CompanyName, "Birch"));
  EXPECT_TRUE(desk.LastSaid().contains("An error occurred in SaveUserPreferences.\nError Number: 61"));
  EXPECT_EQ(prefs.CompanyName, "Lucja Events");
  EXPECT_EQ(Get("UserPreferences.txt"), before);
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
  for (const QString answer : {"", "1", "_", ":", "\u00E9"}) {
    desk.inputs.enqueue(answer);
    RequestNetworkSharePath();
    EXPECT_TRUE(desk.LastSaid().startsWith("You have not entered a valid Drive Letter."));
  }
  EXPECT_TRUE(desk.said[0].text.startsWith(
      "Please enter the network share DRIVE LETTER now, singularly without symbols... i.e., c, d, e, f, g, "
      "etc.\n\nThe network"));
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
