#include "print/offsets.h"

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

TEST_F(Offsets, AreWrittenAsTheyWereTypedAndReadBackTheSame) {
  for (const auto& [x, y, lines] : Cases<QString, QString, QByteArray>{
           {"0.25", "-.5", "Printer X Offset: .25\r\nPrinter Y Offset:-.5\r\n"},
           {"-1.125", "0.10", "Printer X Offset:-1.125\r\nPrinter Y Offset: .1\r\n"},
           {" 8.4 ", "-0.00", "Printer X Offset: 8.4\r\nPrinter Y Offset: 0\r\n"}}) {
    ASSERT_TRUE(SaveOffsets(x, y));
    EXPECT_EQ(Get(file), lines);
    const float xTwips = printing.PrinterXOffset, yTwips = printing.PrinterYOffset;
    ReadPrinterOffsets();
    EXPECT_EQ(printing.PrinterXOffset, xTwips) << lines.data();
    EXPECT_EQ(printing.PrinterYOffset, yTwips) << lines.data();
  }
  EXPECT_TRUE(desk.said.isEmpty());
  for (int hundredths = -849; hundredths < 850; ++hundredths) {
    QString typed = QString::number(hundredths / 100.0);
    const QByteArray lines = OffsetLines(OffsetInTwips(typed), 0);
    typed.replace(QLatin1String("0."), QLatin1String("."));
    if (hundredths >= 0) typed.prepend(QLatin1Char(' '));
    ASSERT_EQ(lines.left(lines.indexOf('\r')).toStdString(), "Printer X Offset:" + typed.toStdString());
  }
}

TEST_F(Offsets, ThatAreNoNumberOrOffTheSheetAreRefusedAndNothingIsWritten) {
  Put(file, OffsetLines(360, 0));
  ReadPrinterOffsets();
  for (const auto& [text, error] : Cases<QString, int>{{"-", errors::TypeMismatch},
                                                       {"", errors::TypeMismatch},
                                                       {"1.2.3", errors::TypeMismatch},
                                                       {"1,5", errors::Overflow},  // a comma groups digits
                                                       {"1e9", errors::Overflow},
                                                       {"-8.5", errors::Overflow}}) {
    desk.said.clear();
    EXPECT_FALSE(SaveOffsets("0.5", text));
    ASSERT_EQ(desk.said.size(), 1) << text.toStdString();
    EXPECT_TRUE(
        desk.LastSaid().contains(QString("in cmdSavePrinterOffsets.\nError Number: %1\n").arg(error)));
    EXPECT_EQ(printing.PrinterXOffset, 360) << "half of what was typed must not count";
    EXPECT_EQ(Get(file), OffsetLines(360, 0));
  }
}

TEST_F(Offsets, OfADamagedFileAreReportedAndNotUsed) {
  for (const char* bytes : {"Printer X Offset:-\r\nPrinter Y Offset: 1\r\n", "Printer X Offset:1,5\r\n"}) {
    printing.PrinterXOffset = 1;
    Put(file, bytes);
    ReadPrinterOffsets();
    EXPECT_TRUE(desk.LastSaid().contains("ReadPrinterOffsets")) << bytes;
    EXPECT_EQ(printing.PrinterXOffset, 0) << bytes;
  }
  EXPECT_EQ(desk.said.size(), 2);
}

TEST_F(Offsets, ReplaceAReadOnlyFileAndKeepItWhenTheDiskIsFull) {
  Put(file, OffsetLines(360, 0));
  QFile::setPermissions(Path(file), QFileDevice::ReadOwner);
  ASSERT_TRUE(SaveOffsets("0.5", "0"));
  EXPECT_EQ(Get(file), OffsetLines(720, 0));
  BreakDisk("write", ENOSPC);
  EXPECT_FALSE(SaveOffsets("1", "0"));
  EXPECT_EQ(Get(file), OffsetLines(720, 0));
}

}  // namespace
