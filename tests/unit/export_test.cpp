#include "files/export.h"

#include <gtest/gtest.h>

#include <QFileInfo>
#include <cerrno>

#include "platform/codepage.h"
#include "proposal_fixture.h"

using namespace quillane;
using namespace quillane::test;

namespace {

class ExportTest : public test::ProposalTest {
 protected:
  void SetUp() override {
    ProposalTest::SetUp();
    Type("frmP1.txt(2)", "Emily Carter");
  }
  /// What the report says between the headings of the items and of the totals.
  static QString Items() {
    const QString report = ProposalReport();
    const QString from = "Proposal Specifics\r\n" + QString(90, u'-') + "\r\n\r\n";
    const qsizetype begin = report.indexOf(from) + from.size();
    return report.mid(begin, report.indexOf("Totals\r\n") - begin);
  }
  /// As F8 makes a row; what is null leaves the prompt.
  static void GiveColumns(int window, int row, const QString& quantity, const QString& each) {
    ShowRowColumns(page(window), row, true);
    if (!quantity.isNull()) page(window).txtQty[row].SetText(quantity);
    if (!each.isNull()) page(window).txtAmt[row].SetText(each);
  }
};

const QString Nothing = QStringLiteral("\r\n\r\n");
const QString ShortRule = QString(45, u'-') + "\r\n";

TEST_F(ExportTest, TellsEachItemByWhatItsRowHas) {
  struct Case {
    const char* why;
    const char *text, *quantity, *each, *amount;  ///< no quantity: no columns; "" for an emptied column
    bool bold;
    QString expected;
  };
  const Case cases[] = {
      {"nothing", "", nullptr, nullptr, "", false, Nothing},
      {"an amount alone", "", nullptr, nullptr, "5.00", false, Nothing + "Subtotal:\t\t$ 5.00\r\n\r\n"},
      {"plain", "Roses", nullptr, nullptr, "", false, "Roses\r\n"},
      {"plain with an amount", "Roses", nullptr, nullptr, "12.00", false,
       "Roses\r\nSubtotal:\t\t$ 12.00\r\n\r\n"},
      {"a main category", "FLOWERS", nullptr, nullptr, "", true, "FLOWERS\r\n" + ShortRule},
      {"bold and empty", "", nullptr, nullptr, "", true, Nothing},
      {"prompts", "Roses", "Qty.", "Amt.", "", false, "Roses\r\n"},
      {"a prompt and a price", "Roses", "Qty.", "2.00", "", false, "Roses\r\n"},
      {"prompts without words", "", "Qty.", "Amt.", "", false, Nothing},
      {"all parts", "Roses", "12", "2.50", "30.00", false,
       "Desc:\t\t\tRoses\r\nQty:\t\t\t12\r\nAmt Each:\t\t$ 2.50\r\nSubtotal:\t\t$ 30.00\r\n\r\n"},
      {"no price", "Roses", "12", "Amt.", "", false, "Desc:\t\t\tRoses\r\nQty:\t\t\t12\r\n"},
      {"no words", "", "12", "2.50", "", false, "Qty:\t\t\t12\r\nAmt Each:\t\t$ 2.50\r\n"},
      {"no quantity", "Roses", "", "2.50", "", false, "Desc:\t\t\tRoses\r\nAmt Each:\t\t$ 2.50\r\n"},
      {"emptied columns", "", "", "", "", false, Nothing},
  };
  for (const Case& given : cases) {
    StartNewFile();
    const Scoped still(editing.RebuildingPages, true);
    Control& area = page(0).txt[20];
    if (given.quantity)
      GiveColumns(0, 20, QString::fromLatin1(given.quantity), QString::fromLatin1(given.each));
    area.SetText(given.text);
    area.SetFontBold(given.bold);
    page(0).txt[28].SetText(given.amount);
    proposal.HighestPage = 2;
    EXPECT_EQ(Items(), given.expected + Nothing.repeated(7)) << given.why;
  }
}

TEST_F(ExportTest, LeavesOutPagesThatAreNotInUse) {
  const Scoped still(editing.RebuildingPages, true);
  for (int window = 1; window < ItemPages; ++window)
    page(window).txt[0].SetText(QStringLiteral("Page %1").arg(window + 1));
  for (int highest = 2; highest <= 6; ++highest) {
    proposal.HighestPage = highest;
    QString expected = Nothing.repeated(8);
    for (int window = 1; window < highest - 1; ++window)
      expected += QStringLiteral("Page %1\r\n").arg(window + 1) + Nothing.repeated(34);
    EXPECT_EQ(Items(), expected) << highest;
  }
}

/// The whole report of a proposal with all kinds of rows, as a person has read it.
TEST_F(ExportTest, TellsThePeopleThePlacesAndTheTotals) {
  for (const char* file : {"Emily Carter.wwf", "Emily Carter.wpf"}) Put(file, Sample(file));
  tax.TaxRate = 7.5F;
  ASSERT_TRUE(Open("Emily Carter.wwf"));
  Type("frmP1.txt(8)", QString::fromUtf8("  Daniel Núñez "));
  for (int i = 16; i <= 46; ++i) page(5).lbl[i].SetCaption(i == 20 ? "No refunds." : "");
  page(5).lbl[56].SetCaption("");
  EXPECT_EQ(ProposalReportBytes(), ReadWholeFile(QUILLANE_TEST_DATA "/Emily Carter report.txt"));
}

TEST_F(ExportTest, NeedsANameThatAFileCanHave) {
  const Cases<const char*, const char*> cases = {
      {"Carter / Núñez",
       "Action Cancelled. File Name cannot include any of \nthe following characters: / \\ : * ? < > |"},
      {"", "Please enter the client's name in the appropriate area and save again."}};
  for (const auto& [name, told] : cases) {
    for (const auto command : {SaveAsTextCommand, CopyProposalCommand}) {
      StartNewFile();
      desk_.said.clear();
      desk_.clipboard = "before";
      Put("TempClipboardInfo.txt", "another proposal");
      Type("frmP1.txt(2)", QString::fromUtf8(name));
      SetFocus(At("frmP1.txt(5)"));
      command();
      EXPECT_EQ(Said(), QStringList{told});
      EXPECT_EQ(editing.Focus, &At("frmP1.txt(2)"));
      EXPECT_EQ(desk_.clipboard, "before");
      EXPECT_TRUE(desk_.opened.isEmpty());
    }
    EXPECT_FALSE(Exists("TempClipboardInfo.txt"));
  }
}

TEST_F(ExportTest, OpensADocumentNamedAfterTheProposal) {
  const Cases<const char*, const char*> cases = {{"Emily Carter", "Emily Carter.odt"},
                                                 {"Carter / Núñez: \"A\\B\"", "Carter - Núñez- -A-B-.odt"},
                                                 {"..", "-..odt"},
                                                 {"", "Proposal.odt"}};
  for (const auto& [name, file] : cases) {
    StartNewFile();
    Type("frmP1.txt(2)", QString::fromUtf8(name));
    desk_.said.clear();
    desk_.opened.clear();
    SaveToWordCommand();
    ASSERT_EQ(desk_.opened.size(), 1);
    const QFileInfo written(desk_.opened[0]);
    EXPECT_EQ(written.fileName(), QString::fromUtf8(file));
    EXPECT_NE(written.path() + "/", prefs.ProposalFolder);
    EXPECT_FALSE(QFileInfo(written.path()).permissions() & (QFile::ReadGroup | QFile::ReadOther));
    EXPECT_EQ(ReadWholeFile(written.filePath()), (proposal.Title + u'|' + ProposalReport()).toUtf8());
    EXPECT_TRUE(desk_.said.isEmpty()) << desk_.LastSaid().toStdString();
    QDir(written.path()).removeRecursively();
  }
  EXPECT_TRUE(QDir(prefs.ProposalFolder).entryList({"*.txt", "*.odt"}, QDir::Files).isEmpty());
}

TEST_F(ExportTest, SaysWhereTheDocumentLiesWhenNothingOpensIt) {
  desk_.opens = false;
  SaveToWordCommand();
  ASSERT_EQ(desk_.opened.size(), 1);
  EXPECT_EQ(desk_.LastSaid(),
            "No word processor was found on this computer. The document lies here:\n" + desk_.opened[0]);
  QDir(QFileInfo(desk_.opened[0]).path()).removeRecursively();
}

TEST_F(ExportTest, CopiesTheReportThroughItsScratchFile) {
  Put("TempClipboardInfo.txt", QByteArray(100000, 'x'));
  CopyProposalCommand();
  EXPECT_EQ(Said(), QStringList{"Proposal saved to memory and is ready to paste in another application."});
  EXPECT_EQ(Get("TempClipboardInfo.txt"), ProposalReportBytes());
  EXPECT_EQ(desk_.clipboard, ProposalReport().replace("\r\n", "\n"));
  EXPECT_FALSE(Exists("Emily Carter.txt"));
}

}  // namespace
