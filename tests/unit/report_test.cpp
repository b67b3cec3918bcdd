#include "model/report.h"

#include "program_folder.h"

using namespace quillane;
using namespace quillane::test;

namespace {

using Report = InProgramFolder;

const QByteArray InTheLog =
    "11/22/2026 10:30:00 AM\r\nAn error occurred in SaveEventFile.\r\nError Number: 61\r\n"
    "Error Description: Disk full\r\n";

void Fail() {
  ReportProgramError(QStringLiteral("SaveEventFile"), RuntimeError(errors::DiskFull, {}));
}

TEST_F(Report, IsShownAndThenLogged) {
  Fail();
  ASSERT_EQ(desk.said.size(), 1);
  EXPECT_EQ(desk.said[0].title, "Program Error");
  EXPECT_EQ(desk.said[0].text,
            "11/22/2026 10:30:00 AM\nAn error occurred in SaveEventFile.\nError Number: 61\n"
            "Error Description: Disk full");
  EXPECT_EQ(Get("Error.log"), InTheLog);
  Fail();
  EXPECT_EQ(Get("Error.log"), InTheLog + InTheLog);
}

TEST_F(Report, StartsTheLogAnewOnceItIsFull) {
  const Cases<int, int> cases = {{0, 0}, {32765, 32765}, {32766, 32766}, {32767, 0}, {40000, 0}};
  for (const auto& [before, start] : cases) {
    const QByteArray old(before, 'o');
    Put("Error.log", old);
    Fail();
    QByteArray expected = old;
    expected.replace(start, InTheLog.size(), InTheLog);
    EXPECT_EQ(Get("Error.log"), expected) << before;
  }
}

TEST_F(Report, KeepsLineBreaksAndPercentSigns) {
  ReportProgramError(QStringLiteral("%2"), RuntimeError(75, QStringLiteral("50%1\nof it")));
  EXPECT_TRUE(
      desk.LastSaid().endsWith("An error occurred in %2.\nError Number: 75\nError Description: 50%1\nof it"));
}

TEST_F(Report, ALogThatCannotBeWrittenLosesTheReportAndNothingElse) {
  Put("Error.log", "old");
  for (const char* failing : {"open", "write", "flush"}) {
    BreakDisk(failing, EROFS);
    Fail();
    EXPECT_TRUE(desk.LastSaid().contains("Disk full"));
  }
  MendDisk();
  prefs.ProgramFolder += "gone/";
  Fail();
  EXPECT_EQ(desk.said.size(), 4);
}

TEST_F(Report, ACommandsOwnWordsAreNotLogged) {
  ReportInOwnWords(QStringLiteral("Error during SpellCheck."), RuntimeError(errors::Overflow, {}));
  EXPECT_EQ(desk.LastSaid(), "Error during SpellCheck.\nError Number: 6\nError Description: Overflow");
  EXPECT_FALSE(FileExists(prefs.ProgramFolder, "Error.log"));
}

TEST_F(Report, GuardedGoesOnAfterAnError) {
  EXPECT_TRUE(Guarded("GetTaxRate", [] {}));
  EXPECT_FALSE(Guarded("GetTaxRate", [] { Raise(errors::FileNotFound, QStringLiteral("x")); }));
  EXPECT_TRUE(desk.LastSaid().contains("An error occurred in GetTaxRate.\nError Number: 53"));
  EXPECT_FALSE(Guarded("GetTaxRate", [] { throw std::bad_alloc(); }));
  EXPECT_TRUE(desk.LastSaid().contains("Out of memory"));
}

}  // namespace
