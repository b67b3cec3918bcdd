#include "model/property_lines.h"

#include <gtest/gtest.h>

#include "platform/runtime_error.h"

using namespace quillane;

namespace {

TEST(PropertyLines, AreTakenApartByTheirKeys) {
  struct Case {
    const char* line;
    LineWord word;
    int page, index;
    const char* values;  ///< with bars between them, in the order of their names
  };
  const Case cases[] = {
      {"frmP2.txt(35).FontBold=True", LineWord::Text, 1, 35, "FontBold=True"},
      {"frmP1.txt(20).Text=Roses, .FontBold=True", LineWord::Text, 0, 20, "Text=Roses, .FontBold=True"},
      {"frmP5.txt(69).TaxExempt=True", LineWord::Text, 4, 69, "TaxExempt=True"},
      {"frmP2.txq(2).QtyBox=True", LineWord::Columns, 1, 2, "QtyBox=True"},
      {"frmP2.txq(2).QtyBox=True .QtyValue=2 x 3 .AmtValue=1.5 ea", LineWord::Columns, 1, 2,
       "AmtValue=1.5 ea|QtyBox=True|QtyValue=2 x 3"},
      {"frmP1.lbl(12).Left=10350 .Top=-30.5 .Caption=Day (or night) .FontName=Times New Roman .FontBold=True "
       ".FontSize=9.75 .ForeColor=8388608 .FontItalic=True .FontUnderline=False",
       LineWord::Label, 0, 12,
       "Caption=Day (or night)|FontBold=True|FontItalic=True|FontName=Times New Roman|FontSize=9.75"
       "|FontUnderline=False|ForeColor=8388608|Left=10350|Top=-30.5"},
      {"frmP6.lbl(17).Left=720 .Top=3960 .Caption= .FontName=Arial .FontBold=False .FontSize=9 .ForeColor=0",
       LineWord::Label, 5, 17,
       "Caption=|FontBold=False|FontName=Arial|FontSize=9|ForeColor=0|Left=720|Top=3960"},
      {"frmP1.pic.Picture=C:\\My Logos\\a b.jpg .Left=720 .Top=540", LineWord::Logo, 0, -1,
       "Left=720|Picture=C:\\My Logos\\a b.jpg|Top=540"},
      {"UDP.FontName=Times New Roman .FontSize=9 .FontColor=255 .FontItalic=False", LineWord::UserFont, -1,
       -1, "FontColor=255|FontItalic=False|FontName=Times New Roman|FontSize=9"},
      {"frmP9.txt(1).FontBold=True", LineWord::Text, -1, 1, "FontBold=True"},
      {"Kept for the next planner", LineWord::None, -1, -1, ""},
      {"frmP1.shp(1).Left=3", LineWord::None, 0, -1, ""}};
  for (const Case& c : cases) {
    const PropertyLine line = ParseLine(QString::fromLatin1(c.line));
    EXPECT_EQ(line.word, c.word) << c.line;
    EXPECT_EQ(line.page, c.page) << c.line;
    EXPECT_EQ(line.index, c.index) << c.line;
    QStringList values;
    for (const auto& [name, value] : line.values) values << name + u'=' + value;
    EXPECT_EQ(values.join(u'|').toStdString(), c.values) << c.line;
  }
}

TEST(PropertyLines, ThatAreMalformedThrow) {
  const char* lines[] = {"frmP2.txt(x).FontBold=True", "frmP2.txt35.FontBold=True",      "frmP2.txt(35)",
                         "frmP2.txq(3).QtyValue=1",    "frmP1.lbl(3).Left=1 .Caption=x", "UDP.FontName=Arial",
                         "frmP1.pic.Left=3",           "frmP2.txt(1) .FontBold=True"};
  for (const char* line : lines) EXPECT_THROW(ParseLine(QString::fromLatin1(line)), RuntimeError) << line;

  const PropertyLine wrong = ParseLine("UDP.FontName=Arial .FontSize=big .FontColor=red .FontItalic=perhaps");
  EXPECT_THROW(static_cast<void>(wrong.Single("FontSize")), RuntimeError);
  EXPECT_THROW(static_cast<void>(wrong.Integer("FontColor")), RuntimeError);
  EXPECT_THROW(static_cast<void>(wrong.Flag("FontItalic")), RuntimeError);
  EXPECT_THROW(static_cast<void>(wrong.Text("FontBold")), RuntimeError);

  for (const char* absurd : {".Left=-200000 .Top=0", ".Left=0 .Top=200000"}) {
    const QString line = QStringLiteral("frmP1.pic.Picture=a.jpg ") + QLatin1String(absurd);
    EXPECT_THROW((ParseLine(line).Place("Left"), ParseLine(line).Place("Top")), RuntimeError) << absurd;
  }
  for (const char* absurd : {"0", "-9", "5000"})
    EXPECT_THROW(static_cast<void>(ParseLine(QStringLiteral("UDP.FontName=Arial .FontSize=") +
                                             QLatin1String(absurd) + " .FontColor=0 .FontItalic=False")
                                       .FontSize()),
                 RuntimeError)
        << absurd;
}

TEST(PropertyLines, ReadBackWhatWasWritten) {
  LabelValues record;
  record.Left = 1234.5F;
  record.Top = -0.25F;
  record.Caption = "50% \"off\" %1 (net) \u00A5";
  record.FontName = "Times New Roman";
  record.FontSize = 9.75F;
  record.ForeColor = 0x00FF80;
  record.FontBold = record.FontItalic = record.FontUnderline = true;
  LabelValues read;
  TakeLabelValues(ParseLine(LabelLine(3, 38, record)), read);
  EXPECT_EQ(read, record);
  record.Caption = "two\nlines\r\nthree";
  TakeLabelValues(ParseLine(LabelLine(3, 38, record)), read);
  EXPECT_EQ(read.Caption, "two lines three");
  EXPECT_EQ(BoldLine(0, 20), "frmP1.txt(20).FontBold=True");
  EXPECT_EQ(ColumnsLine(1, 3), "frmP2.txq(3).QtyBox=True");
  EXPECT_EQ(UserFontLine({"Arial", 9, 0, false}),
            "UDP.FontName=Arial .FontSize=9 .FontColor=0 .FontItalic=False");
}

}  // namespace
