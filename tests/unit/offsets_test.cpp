#include "print/offsets.h"

#include <gtest/gtest.h>

#include <QFile>
#include <cerrno>

#include "platform/runtime_error.h"
#include "print/print.h"
#include "program_folder.h"

using namespace quillane;
using namespace quillane::test;

namespace {

class Offsets : public InProgramFolder {
 protected:
  void SetUp() override {
    InProgramFolder::SetUp();
    prefs.ProposalFolder = prefs.ProgramFolder;
  }
  const QString file = QStringLiteral("PrinterOffsets.txt");
};

TEST_F(Offsets, AreWrittenInTheShortestFormAndReadBackTheSame) {
  struct Case {
    const char *x, *y, *lines;
  };
  constexpr Case cases[] = {
      {"0.25", "-.5", "Printer X Offset: .25\r\nPrinter Y Offset:-.5\r\n"},
      {"0", "1", "Printer X Offset: 0\r\nPrinter Y Offset: 1\r\n"},
      {"-1.125", "0.10", "Printer X Offset:-1.125\r\nPrinter Y Offset: .1\r\n"},
      {" 8.4 ", "-0.00", "Printer X Offset: 8.4\r\nPrinter Y Offset: 0\r\n"},
  };
  for (const Case& given : cases) {
    ASSERT_TRUE(SaveOffsets(QString::fromLatin1(given.x), QString::fromLatin1(given.y)));
    EXPECT_EQ(Get(file).toStdString(), given.lines);
    const float x = printing.PrinterXOffset, y = printing.PrinterYOffset;
    ReadPrinterOffsets();
    EXPECT_EQ(printing.PrinterXOffset, x) << given.x;
    EXPECT_EQ(printing.PrinterYOffset, y) << given.y;
  }
  EXPECT_TRUE(desk.said.isEmpty());
}

TEST_F(Offsets, AreWrittenAsTheyWereTyped) {
  for (int hundredths = -849; hundredths < 850; ++hundredths) {
    QString typed = QString::number(hundredths / 100.0);
    const QByteArray lines = OffsetLines(OffsetInTwips(typed), 0);
    typed.replace(QLatin1String("0."), QLatin1String("."));
    if (hundredths >= 0) typed.prepend(QLatin1Char(' '));
    ASSERT_EQ(lines.left(lines.indexOf('\r')).toStdString(), "Printer X Offset:" + typed.toStdString());
  }
}

TEST_F(Offsets, RefuseWhatIsNoNumberOrOffTheSheetAndWriteNothing) {
  struct Case {
    const char* text;
    int error;
  };
  constexpr Case cases[] = {{"-", errors::TypeMismatch},     {"", errors::TypeMismatch},
                            {"1.2.3", errors::TypeMismatch}, {".", errors::TypeMismatch},
                            {"1,5", errors::Overflow},  // fifteen: a comma groups digits
                            {"1e9", errors::Overflow},       {"-8.5", errors::Overflow}};
  Put(file, OffsetLines(360, 0));
  ReadPrinterOffsets();
  for (const Case& given : cases) {
    desk.said.clear();
    EXPECT_FALSE(SaveOffsets("0.5", QString::fromLatin1(given.text)));
    ASSERT_EQ(desk.said.size(), 1) << given.text;
    EXPECT_TRUE(desk.LastSaid().contains("cmdSavePrinterOffsets")) << desk.LastSaid().toStdString();
    EXPECT_TRUE(desk.LastSaid().contains(QString::number(given.error))) << desk.LastSaid().toStdString();
    EXPECT_EQ(printing.PrinterXOffset, 360) << "half of what was typed must not count";
    EXPECT_EQ(Get(file), OffsetLines(360, 0));
  }
}

TEST_F(Offsets, ReportADamagedFileAndPrintWithoutThem) {
  for (const char* bytes : {"Printer X Offset:-\r\nPrinter Y Offset: 1\r\n", "Printer X Offset:1,5\r\n",
                            "Printer X Offset: 1e9\r\n"}) {
    desk.said.clear();
    Put(file, bytes);
    ReadPrinterOffsets();
    EXPECT_TRUE(desk.LastSaid().contains("ReadPrinterOffsets")) << bytes;
    EXPECT_EQ(printing.PrinterXOffset, 0) << bytes;
  }
}

TEST_F(Offsets, AreReplacedThoughTheFileIsReadOnlyAndKeptWhenTheDiskIsFull) {
  Put(file, OffsetLines(360, 0));
  QFile::setPermissions(Path(file), QFileDevice::ReadOwner);
  ASSERT_TRUE(SaveOffsets("0.5", "0"));
  EXPECT_EQ(Get(file), OffsetLines(720, 0));
  SetFaultHook([](const char* step, const QString&) { return qstrcmp(step, "write") == 0 ? ENOSPC : 0; });
  EXPECT_FALSE(SaveOffsets("1", "0"));
  SetFaultHook(nullptr);
  EXPECT_EQ(Get(file), OffsetLines(720, 0));
  EXPECT_EQ(desk.said.size(), 1);
}

}  // namespace
