#include "platform/codepage.h"
#include "proposal_fixture.h"

using namespace quillane;

namespace {

const QString BadDeposit = QStringLiteral(
    "Deposit is not numeric. Zero will be entered. Please\ndouble-check the Deposit amount from previous "
    "records.");

/// A text as a file holds it.
QByteArray Stored(const char* text) {
  return ToCodePage(QString::fromUtf8(text));
}

/// A current file, blank but for what a test puts at its offsets.
class FileBytes {
 public:
  FileBytes& With(qsizetype offset, const QByteArray& text) {
    bytes_.replace(offset, text.size(), text);
    return *this;
  }
  /// A row of the second page and its amount.
  FileBytes& Row(int row, const QByteArray& text, const QByteArray& amount = {}) {
    With(2180 + row * 120, text);
    return With(6380 + row * 20, amount);
  }
  FileBytes& Deposit(const QByteArray& text) { return With(21860, text); }
  const QByteArray& Bytes() const { return bytes_; }

 private:
  QByteArray bytes_ = QByteArray(22000, ' ');
};

class Opening : public test::ProposalTest {
 protected:
  void OpenBytes(const QByteArray& bytes, const QByteArray& properties = {}) {
    Put("Ann Lee.wwf", bytes);
    if (!properties.isEmpty()) Put("Ann Lee.wpf", properties);
    desk_.said.clear();
    ASSERT_TRUE(Open("Ann Lee.wwf"));
  }
};

TEST_F(Opening, NamesTheProposalAfterItsFile) {
  Put("Ann Lee.wxt", "notes");
  OpenBytes(FileBytes().With(50, "Mrs. Lee").Bytes());
  EXPECT_EQ(proposal.BaseName, "Ann Lee");
  EXPECT_EQ(proposal.TextFileName, "Ann Lee.txt");
  EXPECT_EQ(proposal.FootnoteFileName, "Ann Lee.wxt");
  EXPECT_TRUE(frame()["imgFootNotes"].GetPicture().source.endsWith("footnotes-filled.svg"));
  EXPECT_EQ(At("frmP3.lbl(38)").Caption(), "Proposal for Ann Lee");
  EXPECT_EQ(frame()["lblEvent"].Caption(), "Title: Proposal for Ann Lee");
  EXPECT_EQ(frame()["lblDir"].Caption(), "Current Folder = " + prefs.ProposalFolder);
  EXPECT_TRUE(frame()["mnuFileDelete"].Enabled());
  EXPECT_FALSE(editing.OpeningFile || proposal.OpenedFromBackup || ProposalHasChanged());
}

TEST_F(Opening, ReadsRowsWithColumns) {
  struct Case {
    const char* text;
    bool columns;
    const char *shown, *quantity, *each;
  };
  const Case cases[] = {{"¥5¥Chairs§7.75", true, "Chairs", "5", "7.75"},
                        {"¥¥§", true, "", "", ""},
                        {"¥Qty.¥ x §Amt.", true, " x ", "Qty.", "Amt."},
                        {"¥5¥Chairs", false, "¥5¥Chairs", "Qty.", "Amt."},
                        {" ¥5¥Chairs§1", false, " ¥5¥Chairs§1", "Qty.", "Amt."}};
  for (const Case& c : cases) {
    // The property file says that the row has columns; it adds none to a text that lost a sign.
    OpenBytes(FileBytes().Row(3, Stored(c.text)).Bytes(), "frmP2.txq(3).QtyBox=True\r\n");
    EXPECT_EQ(page(1).HasColumns(3), c.columns) << c.text;
    EXPECT_EQ(At("frmP2.lblAt(3)").Visible(), c.columns) << c.text;
    EXPECT_EQ(TextOf("frmP2.txt(3)"), QString::fromUtf8(c.shown)) << c.text;
    EXPECT_EQ(TextOf("frmP2.txtQty(3)"), c.quantity) << c.text;
    EXPECT_EQ(TextOf("frmP2.txtAmt(3)"), c.each) << c.text;
    EXPECT_FALSE(ProposalHasChanged()) << c.text;
  }
  // Only rows have columns: the client's name may hold the signs.
  OpenBytes(FileBytes().With(50, Stored("¥1¥a§2")).Bytes());
  EXPECT_EQ(TextOf("frmP1.txt(2)"), QString::fromUtf8("¥1¥a§2"));
}

TEST_F(Opening, ReadsAmountsAndTheirMarks) {
  struct Case {
    const char *stored, *shown;
    bool exempt, currency;
    float amount, taxable;
  };
  const Case cases[] = {{"1,200.50", "1,200.50", false, true, 1200.5F, 1200.5F},
                        {"Ø300.00", "300.00", true, true, 300, 0},
                        {"  Ø 7 ", "7", true, true, 7, 0},
                        {"Øon request", "on request", true, false, 0, 0},
                        {"on request", "on request", false, false, 0, 0},
                        {"-50", "-50", false, true, -50, -50},
                        {"9E99", "9E99", false, false, 0, 0},
                        {"", "", false, false, 0, 0}};
  for (const Case& c : cases) {
    OpenBytes(FileBytes().Row(4, "Item", Stored(c.stored)).Bytes());
    EXPECT_EQ(TextOf("frmP2.txt(39)"), c.shown) << c.stored;
    EXPECT_EQ(At("frmP2.imgNoTax(39)").Visible(), c.exempt) << c.stored;
    EXPECT_EQ(At("frmP2.imgNoTax(39)").Hidden(), !c.exempt) << c.stored;
    EXPECT_EQ(At("frmP2.lbl(5)").Visible(), c.currency) << c.stored;
    EXPECT_EQ(proposal.AreaAmount[1][39], c.amount) << c.stored;
    EXPECT_EQ(AreaTaxable(page(1), 39), c.taxable) << c.stored;
    EXPECT_EQ(proposal.PageSubTotal[1], c.amount) << c.stored;
    EXPECT_EQ(proposal.PageTaxable[1], c.taxable) << c.stored;
    EXPECT_EQ(Said(), QStringList()) << c.stored;
    EXPECT_FALSE(ProposalHasChanged()) << c.stored;
  }
}

TEST_F(Opening, TakesTheDepositAndWorksOutTheRest) {
  struct Case {
    const char *stored, *shown, *balance;
    bool told;
  };
  tax.TaxRate = 10;
  for (const Case& c : {Case{"1,500.00", "1,500.00", "-1,390.00", false}, Case{"", "0.00", "110.00", false},
                        Case{"half", "0.00", "110.00", true}}) {
    OpenBytes(FileBytes().Row(0, "Item", "100").With(21780, "999.99").Deposit(c.stored).Bytes());
    EXPECT_EQ(Said(), c.told ? QStringList(BadDeposit) : QStringList());
    EXPECT_EQ(TextOf("frmP6.txt(0)"), "100.00");
    EXPECT_EQ(TextOf("frmP6.txt(2)"), "10.00");
    EXPECT_EQ(TextOf("frmP6.txt(4)"), c.shown);
    EXPECT_EQ(TextOf("frmP6_1.txt(5)"), c.balance);
    EXPECT_EQ(frame()["lblTotal"].Caption(), "Running Sub-Total = $ 100.00");
  }
  editing.HideTotals = true;
  OpenBytes(FileBytes().Row(0, "Item", "100").Deposit("40").Bytes());
  EXPECT_EQ(TextOf("frmP6.txt(0)") + TextOf("frmP6_1.txt(5)"), "");
  EXPECT_EQ(TextOf("frmP6.txt(4)") + TextOf("frmP6_1.txt(4)"), "40.0040.00");
}

TEST_F(Opening, SumsThatNoFigureHoldsCostTheTotalsOnly) {
  OpenBytes(FileBytes().Row(0, "Item", "3E38").Row(1, "Item", "3E38").Deposit("40").Bytes());
  ASSERT_EQ(desk_.said.size(), 1);
  EXPECT_TRUE(desk_.LastSaid().contains("Error Number: 6")) << desk_.LastSaid().toStdString();
  EXPECT_EQ(TextOf("frmP2.txt(36)"), "3E38");
  EXPECT_EQ(TextOf("frmP6.txt(4)"), "40.00");
  EXPECT_TRUE(SaveEventFile());
  EXPECT_EQ(Get("Ann Lee.wwf").mid(6400, 5), "3E38 ");
}

TEST_F(Opening, AppliesThePropertyFile) {
  Put("Emily Carter.wwf", Sample("Emily Carter.wwf"));
  Put("Emily Carter.wpf", Sample("Emily Carter.wpf"));
  ASSERT_TRUE(Open("Emily Carter.wwf"));
  EXPECT_TRUE(At("frmP2.txt(6)").GetFont().bold);
  EXPECT_FALSE(At("frmP2.txt(7)").GetFont().bold);
  EXPECT_EQ(At("frmP3.txt(69)").GetFont().size, 9);
  const Control& time = At("frmP1.lbl(12)");
  EXPECT_EQ(time.Caption(), "Ceremony Time");
  EXPECT_EQ(time.ForeColor(), 8388608);
  for (const char* name : {"frmP6.lbl(17)", "frmP6_1.lbl(17)"}) {
    EXPECT_EQ(At(name).Caption(), "Deposits are not refundable after June 1.");
    EXPECT_TRUE(At(name).GetFont().italic);  // the line is of the older, shorter form
  }
  EXPECT_TRUE(proposal.LabelMarks[5][17].Changed && proposal.LabelMarks[5][17].Written);
  EXPECT_FALSE(ProposalHasChanged());

  // A save writes the same lines, the short one in full.
  const QByteArray before = Get("Emily Carter.wpf");
  ASSERT_TRUE(SaveEventFile());
  EXPECT_EQ(Get("Emily Carter.wpf"),
            QByteArray(before).replace(".ForeColor=0\r\n",
                                       ".ForeColor=0 .FontItalic=True .FontUnderline=False\r\n"));
  EXPECT_FALSE(ProposalHasChanged());

  ASSERT_TRUE(OpenEventFile(PathOf("Emily Carter.wwf"), Properties::Ignored));
  EXPECT_FALSE(At("frmP2.txt(6)").GetFont().bold);
  EXPECT_TRUE(page(1).HasColumns(2));
}

TEST_F(Opening, TakesATitleMadeByHand) {
  const QByteArray title =
      "frmP1.lbl(45).Left=4000 .Top=15030 .Caption=The Lees .FontName=Arial .FontBold=True .FontSize=10 "
      ".ForeColor=0"
      "\r\n";
  OpenBytes(FileBytes().Bytes(), title);
  EXPECT_EQ(proposal.Title, "The Lees");
  EXPECT_EQ(frame()["lblEvent"].Caption(), "Title: The Lees");
  EXPECT_EQ(At("frmP4.lbl(38)").Caption(), "The Lees");
  EXPECT_EQ(At("frmP6_1.lbl(64)").Caption(), "The Lees - Client's Copy");
  EXPECT_EQ(At("frmP1.lbl(45)").Left(), 4000);
  EXPECT_FALSE(ProposalHasChanged());
  StartNewFile();
  EXPECT_EQ(At("frmP4.lbl(38)").Caption(), "Proposal for (Client's Name)");
}

TEST_F(Opening, StopsAtAPropertyLineThatIsWrong) {
  struct Case {
    const char* line;
    bool reported;
  };
  for (const Case& c : {Case{"", false}, Case{"frmP2.txt(70).FontBold=True", true},
                        Case{"frmP2.txt(-1).FontBold=True", true}, Case{"frmP6.txq(1).QtyBox=True", true},
                        Case{"frmP1.lbl(45).Left=wide", true}, Case{"frmP2.txt(1).FontBold=maybe", true}}) {
    OpenBytes(FileBytes().Row(0, "Item").Bytes(),
              QByteArray("frmP2.txt(0).FontBold=True\r\n") + c.line + "\r\nfrmP2.txt(2).FontBold=True\r\n");
    EXPECT_EQ(desk_.said.size(), c.reported ? 1 : 0) << c.line;
    if (c.reported) {
      EXPECT_TRUE(desk_.LastSaid().contains("An error occurred in ParsePropertyFile.")) << c.line;
    }
    EXPECT_TRUE(At("frmP2.txt(0)").GetFont().bold) << c.line;
    EXPECT_FALSE(At("frmP2.txt(2)").GetFont().bold) << c.line;
    EXPECT_FALSE(editing.Parsing || editing.RebuildingPages) << c.line;
  }
}

TEST_F(Opening, FromTheBackupFolderReadsAndWritesPropertiesBesideTheOriginal) {
  Put("Backup/Ann Lee.wwf", FileBytes().Row(0, "Item").Bytes());
  Put("Ann Lee.wpf", "frmP2.txt(0).FontBold=True\r\n");
  ASSERT_TRUE(Open("Ann Lee.wwf", "Backup"));
  EXPECT_TRUE(proposal.OpenedFromBackup);
  EXPECT_TRUE(frame()["mnuFileRestoreFromBackup"].Enabled());
  EXPECT_TRUE(At("frmP2.txt(0)").GetFont().bold);
  At("frmP2.txt(1)").SetFontBold(true);
  ASSERT_TRUE(SaveEventFile());
  EXPECT_FALSE(Exists("Ann Lee.wwf"));
  EXPECT_FALSE(Exists("Backup/Ann Lee.wpf"));
  EXPECT_TRUE(Get("Ann Lee.wpf").contains("frmP2.txt(1).FontBold=True"));
}

}  // namespace
