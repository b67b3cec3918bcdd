// UserPreferences.txt and the folders that follow from it.
#pragma once
#include <QString>
#include <utility>
#include <vector>

namespace quillane {

/// The 32 settings, by their place in the file.
enum class Setting {
  FirstInstance,
  SharedDirectory,
  CompanyName,
  CompanyAddress1,
  CompanyAddress2,
  CompanyCity,
  CompanyPhone,
  CompanyFax,
  CompanyWebsite,
  CompanyEmail,
  PageTitle,
  LogoFile,
  LogoLeft,
  LogoTop,
  AutoCompleteWord,
  AutoStartPosition,
  ShowFUT,
  MinimizeFUT,
  ShowCalc,
  DefaultFileFormat,
  LoadDefaultFormat,
  DefaultPrinter,
  CurrencySymbol,
  FrequentTermsFile,
  LoadFUT,
  PageTitles,
  FUTPosition,
  FontName,
  FontSize,
  FontColor,
  FontItalic,
  LogoVisible,
  Count
};
/// "Company Name:" and so on.
QString SettingKey(Setting setting);

/// Lines of the preferences by their keys: {"Logo Top:", "540"}.
using PreferenceValues = std::vector<std::pair<QString, QString>>;

/// Reads the file and sets all of `prefs`; may ask questions and create folders.  A setting is found by its
/// place alone.  What a session changes on its own (the font in use, the subtitle, the logo's place, the
/// format's folder, the terms and auto-complete, CurrentFolder) is copied at the first reading only.  Errors
/// are reported, and the program goes on with what was read; prefs.Read then stays false.
void GetUserPreferences();
/// Writes prefs.PrefLines.  False when that failed, which has been reported; so do all that store a line.
bool SaveUserPreferences();
/// Replaces one line; SaveUserPreferences and GetUserPreferences make it count.  Throws 53 when no
/// preferences could be read: a file is never made from nothing.
void SetPrefLine(Setting setting, const QString& value);
/// SetPrefLine, SaveUserPreferences, GetUserPreferences.
bool StorePreference(Setting setting, const QString& value);
/// The same for a line that is known by its key, "Default Printer:".  Throws 5 for a key that no line has.
bool StorePreference(const QString& key, const QString& value);
/// The same for several lines by their keys, written in one go.
bool StorePreferences(const PreferenceValues& values);
/// "True" or "False".
QString BooleanText(bool value);

/// mnuOptNetwork: asks for the drive letter of the share.
void RequestNetworkSharePath();
/// mnuOptCurrencySymbol.
void CurrencySymbolCommand();

/// The rules of frmPref: what its boxes show at first, and what cmdSave stores.  Several boxes say "Do Not"
/// and so are checked when their setting is false.
struct PreferenceBoxes {
  bool ShowFUT, MinimizeFUT, ShowCalc, ACEnable, ACStart, LoadDefaultFormat, LoadFUT;  ///< chk*: checked
  bool operator==(const PreferenceBoxes&) const = default;
};
PreferenceBoxes BoxesFromPreferences();
bool SavePreferenceBoxes(const PreferenceBoxes& boxes);

}  // namespace quillane
