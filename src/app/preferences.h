// UserPreferences.txt and the folders that follow from it.
#pragma once
#include <QString>

namespace quillane {

/// The 32 settings, by their place in the file.
enum class Setting {
  FirstInstance, SharedDirectory, CompanyName, CompanyAddress1, CompanyAddress2, CompanyCity, CompanyPhone, CompanyFax,
  CompanyWebsite, CompanyEmail, PageTitle, LogoFile, LogoLeft, LogoTop, AutoCompleteWord, AutoStartPosition, ShowFUT,
  MinimizeFUT, ShowCalc, DefaultFileFormat, LoadDefaultFormat, DefaultPrinter, CurrencySymbol, FrequentTermsFile,
  LoadFUT, PageTitles, FUTPosition, FontName, FontSize, FontColor, FontItalic, LogoVisible, Count
};
/// "Company Name:" and so on.
QString SettingKey(Setting setting);

/// Reads the file and sets all of `prefs`; may ask questions and create folders.
void GetUserPreferences();
/// Writes prefs.PrefLines.
void SaveUserPreferences();
/// Replaces one line; SaveUserPreferences and GetUserPreferences make it count.
void SetPrefLine(Setting setting, const QString& value);
/// SetPrefLine, SaveUserPreferences, GetUserPreferences.
void StorePreference(Setting setting, const QString& value);

void RequestNetworkSharePath();
void CurrencySymbolCommand();
void SaveDefaultFontCommand();

/// The rules of frmPref: what its boxes show at first, and what cmdSave stores.
struct PreferenceBoxes {
  bool ShowFUT, MinimizeFUT, ShowCalc, ACEnable, ACStart, LoadDefaultFormat, LoadFUT;  ///< chk*: checked
};
PreferenceBoxes BoxesFromPreferences();
void SavePreferenceBoxes(const PreferenceBoxes& boxes);

}  // namespace quillane
