#include "app/preferences.h"

namespace quillane {
QString SettingKey(Setting) { return {}; }
void GetUserPreferences() {}
void SaveUserPreferences() {}
void SetPrefLine(Setting, const QString&) {}
void StorePreference(Setting, const QString&) {}
void RequestNetworkSharePath() {}
void CurrencySymbolCommand() {}
void SaveDefaultFontCommand() {}
PreferenceBoxes BoxesFromPreferences() { return {}; }
void SavePreferenceBoxes(const PreferenceBoxes&) {}
}  // namespace quillane
