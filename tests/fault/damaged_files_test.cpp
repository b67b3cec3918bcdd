// Tried here: field files of random bytes and of every kind of length, real ones with bytes flipped, cut and
// doubled, and property files treated alike.  All of them open; what a save makes of them stays what it is.
#include <random>

#include "pages/features.h"
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
    SaveTextBoxFeatures();
    ExpectGuardsAreDown();
    return EventFileBytes().left(21780);
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
    SaveTextBoxFeatures();
    EXPECT_EQ(EventFileBytes().left(21780), Sample("Emily Carter.wwf").left(21780));
  }
}

}  // namespace
