// A program folder of a test's own, blank pages, and the layers connected as far as files need them.
#pragma once
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "cases.h"
#include "editing/areas.h"
#include "fake_desk.h"
#include "files/changes.h"
#include "files/event_file.h"
#include "files/new_proposal.h"
#include "files/property_file.h"
#include "model/document_lines.h"
#include "model/focus.h"
#include "model/frame.h"
#include "model/proposal.h"
#include "model/upcalls.h"
#include "pages/defaults.h"
#include "pages/fonts.h"
#include "pages/show_document.h"
#include "pages/totals.h"
#include "platform/files.h"
#include "settings/preferences.h"

namespace quillane::test {

class ProposalTest : public testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(folder_.isValid());
    ResetState();
    prefs.ProgramFolder = folder_.path() + "/";
    prefs.ProposalFolder = prefs.ProgramFolder + "Wedding Proposals/";
    prefs.BackupFolder = prefs.ProposalFolder + "Backup/";
    prefs.CurrencySymbol = "$";
    prefs.CompanyName = "Alder Events";
    ASSERT_TRUE(QDir().mkpath(prefs.BackupFolder));
    SetDrivesFolder(prefs.ProgramFolder + "drives");
    upcalls() = {};
    for (const char* menu :
         {"mnuFileDelete", "mnuFileRestoreFromBackup", "mnuEditLogoVisible", "mnuOptHideTotals"})
      frame().AddMenu(QString::fromLatin1(menu), QString());
    InstallPageHandlers();
    SetUpPages();
    StartNewFile();
    desk_.said.clear();
  }
  void TearDown() override {
    SetFaultHook(nullptr);
    upcalls() = {};
    focusHandlers() = {};
  }

  static Control& At(const QString& name) { return *FindPageControl(name); }
  static QString TextOf(const QString& name) { return At(name).Text(); }
  static QByteArray Sample(const QString& name) {
    return ReadWholeFile(QStringLiteral(QUILLANE_TEST_DATA "/samples/") + name);
  }
  static QString PathOf(const QString& name) { return prefs.ProposalFolder + name; }
  static void Put(const QString& name, const QByteArray& bytes) {
    QFile file(PathOf(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
  }
  static QByteArray Get(const QString& name) { return ReadWholeFile(PathOf(name)); }
  static bool Exists(const QString& name) { return QFile::exists(PathOf(name)); }

  /// Opens a file of the proposal folder, or of a folder below it.
  static bool Open(const QString& name, const QString& subFolder = QString()) {
    return OpenEventFile(WithSeparator(prefs.ProposalFolder + subFolder) + name);
  }
  /// As a person would: typed, then left.
  static void Type(const QString& name, const QString& text) {
    Control& control = At(name);
    control.SetText(text);
    if (AreaKind(control) == QLatin1String("Amou")) AmountLeft(*PageOf(control), control);
  }
  QStringList Said() const {
    QStringList texts;
    for (const test::Said& box : desk_.said) texts << box.text;
    return texts;
  }

  /// Preferences that can be stored: a file, and what was read of it.
  void PutPreferences() {
    QFile::copy(QStringLiteral(QUILLANE_TEST_DATA "/../../data/UserPreferences.txt"),
                prefs.ProgramFolder + "UserPreferences.txt");
    GetUserPreferences();
    desk_.said.clear();
  }

  /// The answers to the next questions, and what is typed into the next input box.
  void Reply(std::initializer_list<Answer> answers) {
    desk_.answers.clear();
    for (const Answer answer : answers) desk_.answers.enqueue(answer);
  }
  void Input(const QString& text) { desk_.inputs.enqueue(text); }

  QTemporaryDir folder_;
  FakeDesk desk_;
};

}  // namespace quillane::test
