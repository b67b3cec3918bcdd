// A fresh program folder for one test, with the desk that goes with it.
#pragma once
#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>

#include "cases.h"
#include "fake_desk.h"
#include "model/proposal.h"
#include "platform/files.h"

namespace quillane::test {

class InProgramFolder : public testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(temporary.isValid());
    prefs.ProgramFolder = temporary.path() + u'/';
    ResetState();
    SetDrivesFolder(prefs.ProgramFolder + "drives");
    QDir(prefs.ProgramFolder).mkdir("Wedding Proposals");
  }
  void TearDown() override {
    SetFaultHook(nullptr);
    SetDrivesFolder({});
    prefs.ProgramFolder.clear();
    ResetState();
  }
  QString Path(const QString& name) const { return prefs.ProgramFolder + name; }
  void Put(const QString& name, const QByteArray& bytes) const { ReplaceFile(Path(name), bytes); }
  QByteArray Get(const QString& name) const { return ReadWholeFile(Path(name)); }
  QStringList Texts() const {
    QStringList texts;
    for (const Said& said : desk.said) texts.append(said.text);
    return texts;
  }

  QTemporaryDir temporary;
  FakeDesk desk;
};

}  // namespace quillane::test
