#include "settings/preferences.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <utility>

#include "model/proposal.h"
#include "model/report.h"
#include "platform/codepage.h"
#include "platform/files.h"
#include "platform/numbers.h"
#include "ui/desk.h"

namespace quillane {

namespace {

constexpr int SettingCount = static_cast<int>(Setting::Count);
constexpr std::array<const char*, SettingCount> Keys = {"App First Instance:",
                                                        "Shared Directory:",
                                                        "Company Name:",
                                                        "Company Address 1:",
                                                        "Company Address 2:",
                                                        "Company City, State Zip:",
                                                        "Company Phone:",
                                                        "Company Fax:",
                                                        "Company Website:",
                                                        "Company Email:",
                                                        "Page Title:",
                                                        "Logo File:",
                                                        "Logo Left:",
                                                        "Logo Top:",
                                                        "Auto Complete Word:",
                                                        "Auto Start Position:",
                                                        "Show FUT:",
                                                        "Minimize FUT:",
                                                        "Show Calc:",
                                                        "Default File Format:",
                                                        "Load Default Format:",
                                                        "Default Printer:",
                                                        "Currency Symbol:",
                                                        "Frequent Terms File:",
                                                        "Load FUT:",
                                                        "Page Titles:",
                                                        "FUT Position:",
                                                        "Font Name:",
                                                        "Font Size:",
                                                        "Font Color:",
                                                        "Font Italic:",
                                                        "Logo Visible:"};

QString PreferencesPath() {
  return prefs.ProgramFolder + QStringLiteral("UserPreferences.txt");
}

/// The rest of the setting's line behind its key; empty where the file is too short.
QString ValueOf(Setting setting) {
  return prefs.PrefLines.value(static_cast<int>(setting)).mid(SettingKey(setting).size());
}

bool IsTrue(Setting setting) {
  return ValueOf(setting).trimmed().compare(u"True", Qt::CaseInsensitive) == 0;
}

/// The number that a setting begins with, within what a sheet or a screen can use; 0 for words.
float NumberIn(QStringView text) {
  constexpr double Limit = 1e6;
  try {
    const double value = Val(text);
    return std::abs(value) > Limit ? 0 : static_cast<float>(value);
  } catch (const RuntimeError&) {
    return 0;
  }
}
float NumberOf(Setting setting) {
  return NumberIn(ValueOf(setting));
}

Color ColorOf(Setting setting) {
  constexpr double White = 0xFFFFFF;
  const double value = IsNumeric(ValueOf(setting)) ? ToDouble(ValueOf(setting)) : 0;
  return value >= 0 && value <= White ? static_cast<Color>(value) : colors::Black;
}

void ReadLines() {
  const QList<QByteArray> lines = ReadFileLines(PreferencesPath());
  prefs.PrefLines.clear();
  for (const QByteArray& line : lines) prefs.PrefLines.append(FromCodePage(line));
}

/// True on the very first start.  The run remembers it, the file no longer says so.
bool ReadFirstInstance() {
  if (!IsTrue(Setting::FirstInstance)) return false;
  prefs.FirstInstance = true;
  SetPrefLine(Setting::FirstInstance, BooleanText(false));
  return true;
}

void ReadTexts() {
  prefs.SharedDirectory = ValueOf(Setting::SharedDirectory).trimmed();
  prefs.CompanyName = ValueOf(Setting::CompanyName);
  prefs.CompanyAddress1 = ValueOf(Setting::CompanyAddress1);
  prefs.CompanyAddress2 = ValueOf(Setting::CompanyAddress2);
  prefs.CompanyCity = ValueOf(Setting::CompanyCity);
  prefs.CompanyPhone = ValueOf(Setting::CompanyPhone);
  prefs.CompanyFax = ValueOf(Setting::CompanyFax);
  prefs.CompanyWebsite = ValueOf(Setting::CompanyWebsite);
  prefs.CompanyEmail = ValueOf(Setting::CompanyEmail);
  prefs.PageTitle = ValueOf(Setting::PageTitle);
  prefs.LogoFile = ValueOf(Setting::LogoFile);
  prefs.DefaultFileFormat = ValueOf(Setting::DefaultFileFormat);
  prefs.DefaultPrinter = ValueOf(Setting::DefaultPrinter);
  prefs.CurrencySymbol = ValueOf(Setting::CurrencySymbol);
  prefs.FrequentTermsFile = ValueOf(Setting::FrequentTermsFile);
  prefs.PageTitles = ValueOf(Setting::PageTitles);
}

void ReadSwitches() {
  prefs.AutoCompleteWord = IsTrue(Setting::AutoCompleteWord);
  prefs.AutoStartPosition = static_cast<int>(NumberOf(Setting::AutoStartPosition));
  prefs.ShowFUT = IsTrue(Setting::ShowFUT);
  prefs.MinimizeFUT = IsTrue(Setting::MinimizeFUT);
  prefs.ShowCalc = IsTrue(Setting::ShowCalc);
  prefs.LoadDefaultFormat = IsTrue(Setting::LoadDefaultFormat);
  prefs.LoadFUT = IsTrue(Setting::LoadFUT);
  prefs.LogoVisible = IsTrue(Setting::LogoVisible);
}

void ReadDefaultFont() {
  const UserFont fallback;
  const QString name = ValueOf(Setting::FontName).trimmed();
  const float size = NumberOf(Setting::FontSize);
  prefs.DefaultFont = {name.isEmpty() ? fallback.FontName : name, size > 0 ? size : fallback.FontSize,
                       ColorOf(Setting::FontColor), IsTrue(Setting::FontItalic)};
}

bool HasFolder(const QString& file) {
  return file.contains(u':') || file.startsWith(u'/') || file.startsWith(u'\\');
}

/// A place of 0 is no place: the logo stays where it was.
void ReadLogo() {
  if (const float left = NumberOf(Setting::LogoLeft); left != 0) prefs.LogoLeft = left;
  if (const float top = NumberOf(Setting::LogoTop); top != 0) prefs.LogoTop = top;
  const QString folder =
      prefs.LogoFile.isEmpty() || HasFolder(prefs.LogoFile) ? QString() : prefs.ProgramFolder;
  prefs.LogoPath = folder + prefs.LogoFile;
}

/// "Left=100:Top=200:Width=3000:Height=4000", in any order; what is missing keeps what it had.
void ReadTermsWindowPlace() {
  const QString place = ValueOf(Setting::FUTPosition);
  const auto take = [&place](const QString& part, float& value) {
    const qsizetype at = place.indexOf(part);
    if (at < 0) return;
    const qsizetype start = at + part.size(), end = place.indexOf(u':', start);
    value = NumberIn(QStringView(place).mid(start, end < 0 ? -1 : end - start));
  };
  take(QStringLiteral("Left="), prefs.FUTLeft);
  take(QStringLiteral("Top="), prefs.FUTTop);
  take(QStringLiteral("Width="), prefs.FUTWidth);
  take(QStringLiteral("Height="), prefs.FUTHeight);
}

/// Makes the stored printer the current one where it is installed; otherwise the system's own stays.
void ReadPrinter() {
  if (prefs.DefaultPrinter.isEmpty()) return;
  try {
    if (desk().HasPrinter(prefs.DefaultPrinter)) printing.CurrentPrinter = prefs.DefaultPrinter;
  } catch (const RuntimeError& error) {
    if (error.Number() != errors::Printer) throw;
    Tell(QStringLiteral("Printer error."));
  }
}

QString ProposalsName() {
  return QStringLiteral("Wedding Proposals");
}

void SetProposalFolder(const QString& folder) {
  prefs.ProposalFolder = WithSeparator(ResolvePath(folder));
  prefs.BackupFolder = prefs.ProposalFolder + QStringLiteral("Backup/");
}

QString LocalFolder() {
  return WithSeparator(ResolvePath(prefs.ProgramFolder + ProposalsName()));
}

void UseLocalFolder() {
  if (!FolderExists(prefs.ProgramFolder, ProposalsName())) MakeFolder(LocalFolder());
  SetProposalFolder(LocalFolder());
}

/// A new share starts with the lists of terms.  The tax file goes there under a name that nothing reads, so
/// that the rate is asked for anew.
void SeedSharedFolder() {
  const std::array<std::pair<QString, QString>, 3> seeds = {{{"Event Terms.fut", "Event Terms.fut"},
                                                             {"Wedding Terms.fut", "Wedding Terms.fut"},
                                                             {"SalesTax.txt", "SaleTax.txt"}}};
  for (const auto& [from, to] : seeds)
    if (FileExists(LocalFolder(), from)) CopyFileOver(LocalFolder() + from, prefs.ProposalFolder + to);
}

/// A folder that cannot be looked into is told about and counts as one without the sub-folder.
bool HasSubFolder(const QString& parent, const QString& name) {
  try {
    return FolderExists(parent, name);
  } catch (const RuntimeError& error) {
    ReportInOwnWords(QStringLiteral("Error encountered during Events Folder check."), error);
    return false;
  }
}

bool AskForSharedFolder() {
  return AskYesNo(QStringLiteral("Could not find the folder \"Wedding Proposals\" on the shared\n"
                                 "network drive. This is the network folder where all the Proposal\n"
                                 "files normally reside. Would you like to create the folder now?"),
                  QStringLiteral("Wedding Proposals Folder Not Found"));
}

void WorkOutFolders() {
  if (prefs.SharedDirectory.isEmpty()) return UseLocalFolder();
  const QString root = WithSeparator(prefs.SharedDirectory);
  if (HasSubFolder(root, ProposalsName())) return SetProposalFolder(root + ProposalsName());
  if (!AskForSharedFolder()) return UseLocalFolder();
  MakeFolder(root + ProposalsName());
  SetProposalFolder(root + ProposalsName());
  Tell(QStringLiteral("Wedding Proposals Folder Successfully Created."));
  SeedSharedFolder();
}

void MakeBackupFolder() {
  if (!HasSubFolder(prefs.ProposalFolder, QStringLiteral("Backup"))) MakeFolder(prefs.BackupFolder);
}

void CopyTermsForSession() {
  if (!prefs.FrequentTermsFile.isEmpty() && prefs.LoadFUT) {
    terms.FileName = prefs.FrequentTermsFile;
    terms.FileLoaded = true;
  }
  terms.AutoComplete = prefs.AutoCompleteWord;
  terms.AutoStart = prefs.AutoStartPosition;
}

/// What the session changes on its own from here on, and a later reading must therefore leave alone.
void CopyForSession() {
  if (prefs.SessionCopiesTaken) return;
  proposal.UDP = prefs.DefaultFont;
  if (!prefs.PageTitles.isEmpty()) proposal.SubTitleText = prefs.PageTitles;
  if (!prefs.LogoFile.isEmpty()) {
    format.LogoLeft = prefs.LogoLeft;
    format.LogoTop = prefs.LogoTop;
  }
  format.FormatFolder = prefs.ProposalFolder;
  // Where the first reading failed and a proposal has been opened since, its folder is the open file's.
  if (!proposal.FileIsNamed) proposal.CurrentFolder = prefs.ProposalFolder;
  CopyTermsForSession();
  prefs.SessionCopiesTaken = true;
}

void RequireEveryLine() {
  if (prefs.PrefLines.size() < SettingCount)
    Raise(errors::Subscript, QStringLiteral("UserPreferences.txt has %1 of its %2 lines")
                                 .arg(prefs.PrefLines.size())
                                 .arg(SettingCount));
}

void ReadPreferences() {
  ReadLines();
  const bool first = ReadFirstInstance();
  ReadTexts();
  ReadSwitches();
  ReadDefaultFont();
  ReadLogo();
  ReadTermsWindowPlace();
  ReadPrinter();
  WorkOutFolders();
  CopyForSession();
  if (first) SaveUserPreferences();
  MakeBackupFolder();
  RequireEveryLine();
}

/// Without settings the program still needs a place for its proposals, and that is the local one.
void FallBackToLocalFolder() {
  if (!prefs.ProposalFolder.isEmpty()) return;
  try {
    UseLocalFolder();
    MakeBackupFolder();
  } catch (const RuntimeError&) {
    // The error that led here has been told; each save tells again what is wrong with the folder.
    SetProposalFolder(LocalFolder());
  }
  if (proposal.CurrentFolder.isEmpty()) proposal.CurrentFolder = prefs.ProposalFolder;
  if (format.FormatFolder.isEmpty()) format.FormatFolder = prefs.ProposalFolder;
}

std::optional<QChar> DriveLetterIn(const QString& answer) {
  if (answer.isEmpty() || answer[0].unicode() >= 0x80 || !answer[0].isLetter()) return std::nullopt;
  return answer[0].toUpper();
}

Setting SettingOf(const QString& key) {
  const auto found =
      std::find_if(Keys.begin(), Keys.end(), [&](const char* own) { return key == QLatin1String(own); });
  if (found == Keys.end()) Raise(errors::InvalidProcedureCall, key);
  return static_cast<Setting>(found - Keys.begin());
}

}  // namespace

QString SettingKey(Setting setting) {
  return QString::fromLatin1(Keys.at(static_cast<size_t>(setting)));
}
QString BooleanText(bool value) {
  return value ? QStringLiteral("True") : QStringLiteral("False");
}

void GetUserPreferences() {
  bool read = false;
  {
    const Scoped reading(prefs.Reading, true);
    read = Guarded("GetUserPreferences", ReadPreferences);
  }
  prefs.Read = read;
  if (!read) FallBackToLocalFolder();
}

bool SaveUserPreferences() {
  return Guarded("SaveUserPreferences", [] {
    if (prefs.PrefLines.isEmpty()) Raise(errors::FileNotFound, PreferencesPath());
    ReplaceFile(PreferencesPath(),
                ToCodePage(prefs.PrefLines.join(QStringLiteral("\r\n")) + QStringLiteral("\r\n")));
  });
}

void SetPrefLine(Setting setting, const QString& value) {
  if (prefs.PrefLines.isEmpty()) Raise(errors::FileNotFound, PreferencesPath());
  const int place = static_cast<int>(setting);
  for (auto line = static_cast<int>(prefs.PrefLines.size()); line <= place; ++line)
    prefs.PrefLines.append(SettingKey(static_cast<Setting>(line)));
  prefs.PrefLines[place] = SettingKey(setting) + FoldToCodePage(value);
}

bool StorePreference(Setting setting, const QString& value) {
  SetPrefLine(setting, value);
  const bool saved = SaveUserPreferences();
  GetUserPreferences();
  return saved;
}

bool StorePreference(const QString& key, const QString& value) {
  return StorePreference(SettingOf(key), value);
}

bool StorePreferences(const PreferenceValues& values) {
  for (const auto& [key, value] : values) SetPrefLine(SettingOf(key), value);
  const bool saved = SaveUserPreferences();
  GetUserPreferences();
  return saved;
}

void RequestNetworkSharePath() {
  Guarded("RequestNetworkSharePath", [] {
    const QString answer = desk().InputBox(
        QStringLiteral(
            "Please enter the network share DRIVE LETTER now, singularly without symbols... i.e., c, d, e, "
            "f, g, etc.\n\nThe network share drive is the drive where the Proposal Files will now reside "
            "to be shared within the network. If this install is on a stand alone system (non-network), "
            "the drive letter will likely be \"c\", otherwise it could be \"f\" or \"g\" or any other "
            "letter.\n\nIf you're unsure of the network share drive, press Cancel to resume the current "
            "Proposal Folder."),
        QStringLiteral("Proposal Directory Setup"), {});
    const auto letter = DriveLetterIn(answer);
    if (!letter)
      return Tell(
          QStringLiteral("You have not entered a valid Drive Letter. Please\n"
                         "contact the Help File for assistance in setting up\n"
                         "a network share path."));
    const QString root = *letter + QStringLiteral(":\\");
    ResolvePath(root);  // a drive that is not set up is told before anything changes
    StorePreference(Setting::SharedDirectory, root);
  });
}

void CurrencySymbolCommand() {
  const QString answer = desk().InputBox(
      QStringLiteral(
          "The current Currency Symbol is %1. Please enter the new Currency Symbol in the text area "
          "provided and click OK or Cancel to exit.")
          .arg(prefs.CurrencySymbol),
      QStringLiteral("Changing Currency Designator"), {});
  if (answer.isEmpty()) return;
  try {
    if (StorePreference(Setting::CurrencySymbol, answer))
      Tell(QStringLiteral("Changes will be applied in the next \"New\" or \"Open\" session."));
  } catch (const RuntimeError& error) {
    ReportInOwnWords(QStringLiteral("Error encountered while creating new Currency Symbol."), error);
  }
}

PreferenceBoxes BoxesFromPreferences() {
  return {.ShowFUT = !prefs.ShowFUT,
          .MinimizeFUT = prefs.MinimizeFUT,
          .ShowCalc = !prefs.ShowCalc,
          .ACEnable = !prefs.AutoCompleteWord,
          .ACStart = prefs.AutoStartPosition != 0,
          .LoadDefaultFormat = !prefs.LoadDefaultFormat,
          .LoadFUT = prefs.LoadFUT};
}

bool SavePreferenceBoxes(const PreferenceBoxes& boxes) {
  SetPrefLine(Setting::AutoCompleteWord, BooleanText(!boxes.ACEnable));
  SetPrefLine(Setting::AutoStartPosition, QString::number(boxes.ACStart ? terms.AutoStart : 0));
  SetPrefLine(Setting::ShowFUT, BooleanText(!boxes.ShowFUT));
  SetPrefLine(Setting::MinimizeFUT, BooleanText(boxes.MinimizeFUT));
  SetPrefLine(Setting::ShowCalc, BooleanText(!boxes.ShowCalc));
  SetPrefLine(Setting::LoadDefaultFormat, BooleanText(!boxes.LoadDefaultFormat));
  SetPrefLine(Setting::LoadFUT, BooleanText(boxes.LoadFUT));
  const bool saved = SaveUserPreferences();
  GetUserPreferences();
  if (!saved) return false;
  terms.FileLoaded = boxes.LoadFUT;
  Tell(QStringLiteral("These changes will take effect on your next start."));
  return saved;
}

}  // namespace quillane
