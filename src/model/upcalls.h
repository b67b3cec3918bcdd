// The few calls that go up the layers, filled in at start by the layer that owns them.
#pragma once
#include <QByteArray>
#include <QString>
#include <QStringList>
#include <utility>
#include <vector>

namespace quillane {

class Control;

/// Lines of the preferences by their keys: {"Logo Top:", "540"}.
using PreferenceValues = std::vector<std::pair<QString, QString>>;

struct Upcalls {
  void (*UpdatePageButtons)(int window) = [](int) {};  ///< app: bring a page to the front
  void (*BackupThisFile)() = [] {};                    ///< files: the copy at the 20th key
  void (*SaveEventFile)() = [] {};                     ///< files
  QStringList (*PropertyLinesNow)() = [] {
    return QStringList();
  };                                ///< files: the lines that a save would write
  void (*SaveTaxRate)() = [] {};    ///< files: writes and announces the new rate
  void (*ResumeEditing)() = [] {};  ///< print: leave the preview of the page in front
  /// app: replaces a preference's line by its key ("Default Printer:"), writes the file and reads it again.
  /// False when it could not be written, which has been told.
  bool (*StorePreference)(const QString& key, const QString& value) = [](const QString&, const QString&) {
    return false;
  };
  /// app: the same for several lines that belong together, in one writing of the file.
  bool (*StorePreferences)(const PreferenceValues& values) = [](const PreferenceValues&) { return false; };
  /// qt: a report as the bytes of an OpenDocument text.
  QByteArray (*WordDocument)(const QString& title, const QString& report) =
      [](const QString&, const QString&) { return QByteArray(); };
  void (*ReAdjustScrollBar)(int window) = [](int) {};  ///< app
  void (*FrequentTermsHook)(Control& area) = [](Control&) {
  };  ///< tools: a key was typed while auto-complete is on
  bool (*AcceptGuess)(Control& area, int key, bool shift) = [](Control&, int, bool) {
    return false;
  };  ///< tools
  /// app: whether a menu entry has a procedure
  bool (*CommandExists)(const QString& entry) = [](const QString&) { return true; };
  void (*ShowTermLists)() = [] {};  ///< tools: F5, the list of frequent-terms files
  void (*NextTermList)() = [] {};   ///< tools: F6, the next file of that list
  float (*PrinterWidth)(Control& area,
                        const QString& text) = nullptr;      ///< print: inches; null without a printer
  void (*OpenFormat)() = [] {};                              ///< files: apply the open format to blank pages
  void (*ReadTerms)() = [] {};                               ///< tools: read terms.FileName
  void (*PopUpTextMenu)(Control& area) = [](Control&) {};    ///< qt: mnuEditTextBox at the pointer
  void (*PopUpLabelMenu)(Control& label) = [](Control&) {};  ///< qt: mnuEditLabel at the pointer
  void (*RedrawPage)(int window) = [](int) {};               ///< qt: what lies under the controls has changed
  void (*SetEditMenuState)(const QString& state) = [](const QString&) {};  ///< pages: the text menu's states
};
Upcalls& upcalls();

}  // namespace quillane
