// Tried here: field files of random bytes and of every kind of length, real ones with bytes flipped, cut and
// doubled, and property files treated alike.  All of them open; what a save makes of them stays what it is.
#include <random>

#include "files/format_file.h"
#include "model/event_bytes.h"
#include "pages/show_document.h"
#include "proposal_fixture.h"

using namespace quillane;

namespace {

class DamagedFiles : public test::ProposalTest {
 protected:
  int Random(int below) { return static_cast<int>(random_() % static_cast<unsigned>(below)); }
  QByteArray Noise(int length) {
    QByteArray bytes(length, ' ');
    for (char& byte : bytes) byte = static_cast<char>(Random(256));
    return bytes;
  }
  // Figures, signs and marks where a reader looks for them do more harm than plain noise.
  QByteArray LikelyNoise(int length) {
    static constexpr char Characters[] = "0123456789.,-+E($) \xA5\xA7\xD8\0\r\n\"Qx";
    static const QByteArray alphabet(Characters, sizeof Characters - 1);
    QByteArray bytes(length, ' ');
    for (char& byte : bytes) byte = alphabet[Random(static_cast<int>(alphabet.size()))];
    return bytes;
  }
  QByteArray Damaged(QByteArray bytes) {
    for (int i = Random(40); i >= 0; --i)
      bytes[Random(static_cast<int>(bytes.size()))] = static_cast<char>(Random(256));
    if (Random(3) == 0) bytes.truncate(1 + Random(static_cast<int>(bytes.size())));
    if (Random(3) == 0) bytes.insert(Random(static_cast<int>(bytes.size())), Noise(Random(200)));
    return bytes;
  }
  void ExpectGuardsAreDown() {
    EXPECT_FALSE(editing.OpeningFile || editing.RebuildingPages || editing.Parsing || editing.NewFile ||
                 editing.CheckRunning || editing.RecalcPending);
  }
  // What a save would write of the item pages; the figures of the totals page may be longer than their
  // fields.
  QByteArray OpenAndStore() {
    EXPECT_TRUE(Open("Damaged.wwf"));
    EXPECT_FALSE(ProposalHasChanged());
    ExpectGuardsAreDown();
    return EventFileBytes(ReadPages()).left(21780);
  }
  QByteArray OpenAndStore(const QByteArray& bytes) {
    Put("Damaged.wwf", bytes.leftJustified(22000, ' '));
    return OpenAndStore();
  }
  // The first save drops the blanks before a text, and the second those inside a row that then has its signs
  // in front.
  void ExpectOpens(const QByteArray& bytes) {
    Put("Damaged.wwf", bytes);
    const QByteArray settled = OpenAndStore(OpenAndStore());
    EXPECT_TRUE(OpenAndStore(settled) == settled) << "a proposal must not change by being opened and saved";
  }

  std::mt19937 random_{20261122};
};

TEST_F(DamagedFiles, OfAnyLengthOpen) {
  for (const int length :
       {0, 1, 24, 25, 26, 2180, 17170, 17770, 17880, 20629, 21779, 21861, 21999, 22000, 22001, 70000}) {
    ExpectOpens(Noise(length));
    ExpectOpens(LikelyNoise(length));
    ExpectOpens(QByteArray(length, '\0'));
    ExpectOpens(QByteArray(length, '\xA5'));
    ExpectOpens(QByteArray(length, '9'));
    EXPECT_TRUE(SaveEventFile());
    EXPECT_EQ(Get("Damaged.wwf").size(), 22000);
    QFile::remove(PathOf("Damaged.wpf"));
  }
}

TEST_F(DamagedFiles, ThatOnceWereRealOpen) {
  for (const char* name :
       {"Emily Carter.wwf", "Riverside Book Club.wwf", "Sofía Marín-Núñez.wwf", "Harriet Vane.wef"})
    for (int round = 0; round < 25; ++round) ExpectOpens(Damaged(Sample(QString::fromUtf8(name))));
}

TEST_F(DamagedFiles, OfPropertiesCostTheLookOnly) {
  const QByteArray lines = Sample("Emily Carter.wpf");
  for (int round = 0; round < 150; ++round) {
    Put("Damaged.wwf", Sample("Emily Carter.wwf"));
    Put("Damaged.wpf", round % 10 == 0 ? Noise(600) : Damaged(lines));
    ASSERT_TRUE(Open("Damaged.wwf"));
    ExpectGuardsAreDown();
    EXPECT_FALSE(ProposalHasChanged());
    EXPECT_EQ(TextOf("frmP2.txt(0)"), "Ceremony Flowers");
    EXPECT_EQ(TextOf("frmP2.txtQty(2)"), "5");
    EXPECT_EQ(EventFileBytes(ReadPages()).left(21780), Sample("Emily Carter.wwf").left(21780));
  }
}

TEST_F(DamagedFiles, OfFormatsApplyUpToTheDamage) {
  struct Case {
    const char* what;
    QByteArray damage;
    const char* report;  ///< the number of the one report; null for none
    bool goesOn;         ///< what stands behind the damage is applied
  };
  const Case cases[] = {
      {"a page that is none", "frmP9.shp(1).FontBold=True\r\n", nullptr, true},
      {"words", "Kept for the next planner\r\n\r\n", nullptr, true},
      {"an area beyond the page", "frmP1.txt(36).Text=Lilies\r\n", "9", false},
      {"a label beyond the page",
       "frmP2.lbl(39).Left=1 .Top=1 .Caption=x .FontName=Arial .FontBold=True "
       ".FontSize=9 .ForeColor=0\r\n",
       "9", false},
      {"columns beyond the page", "frmP6.txq(0).QtyBox=True\r\n", "9", false},
      {"an index that is none", "frmP1.txt().FontBold=True\r\n", "13", false},
      {"a missing key", "frmP1.lbl(3).Left=1 .Caption=x\r\n", "5", false},
      {"a caption with a key in it",
       "frmP1.lbl(3).Left=1 .Top=1 .Caption=a .FontName=b .FontName=Arial "
       ".FontBold=True .FontSize=9 .ForeColor=0\r\n",
       nullptr, true},
      {"a place beyond the world",
       "frmP1.lbl(3).Left=1e30 .Top=1 .Caption=x .FontName=Arial .FontBold=True "
       ".FontSize=9 .ForeColor=0\r\n",
       "6", false},
      {"a font that is none", "UDP.FontName=Arial .FontSize=0 .FontColor=0 .FontItalic=False\r\n", "5",
       false},
      {"a line without an end", "frmP2.txt(5).Text=" + QByteArray(10'000'000, 'x') + "\r\n", "6", false},
      {"ten megabytes of noise", Noise(10'000'000).replace("frm", "frn").replace("UDP", "UDQ") + "\r\n",
       nullptr, true}};
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    Put("Damaged.wft", "frmP2.txt(3).Text=Roses\r\n" + c.damage + "frmP2.txt(4).Text=Tulips\r\n");
    fileDialog.Folder = prefs.ProposalFolder;
    fileDialog.SelectedFileName = "Damaged.wft";
    desk_.said.clear();
    OpenPickedFormat();
    ExpectGuardsAreDown();
    EXPECT_FALSE(ProposalHasChanged());
    EXPECT_EQ(TextOf("frmP2.txt(3)") + TextOf("frmP2.txt(4)"), c.goesOn ? "RosesTulips" : "Roses");
    ASSERT_EQ(desk_.said.size(), c.report ? 1 : 0);
    if (!c.report) continue;
    EXPECT_TRUE(desk_.LastSaid().contains(QString("ParseFormatFile.\nError Number: %1\n").arg(c.report)))
        << desk_.LastSaid().left(300).toStdString();
    EXPECT_LT(desk_.LastSaid().size(), 400);
  }
}

}  // namespace
