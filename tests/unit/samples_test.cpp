// Real proposals, made by an independent writer: what they must show, and that a save gives the same bytes.
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "files/file_dialog.h"
#include "platform/numbers.h"
#include "proposal_fixture.h"

using namespace quillane;

namespace {

struct SampleFile {
  const char* expected;  // its name in expected.json
  const char* file;
  bool older;  // its fields are narrow and its end is missing, so that a save makes it longer
};

class Samples : public test::ProposalTest, public testing::WithParamInterface<SampleFile> {
 protected:
  void SetUp() override {
    ProposalTest::SetUp();
    const QByteArray json = Sample("expected.json");
    expected_ = QJsonDocument::fromJson(json)[QString::fromUtf8(GetParam().expected)].toObject();
    ASSERT_FALSE(expected_.isEmpty());
    tax.TaxRate = ToSingle(expected_["sales_tax_file"].toString().trimmed());
    name_ = QString::fromUtf8(GetParam().file);
    Put(name_, Sample(name_));
    const QString properties = name_.chopped(4) + ".wpf";
    if (QFile::exists(QStringLiteral(QUILLANE_TEST_DATA "/samples/") + properties))
      Put(properties, Sample(properties));
  }

  void ExpectTexts(const char* member) {
    const QJsonObject texts = expected_[member].toObject();
    for (auto text = texts.begin(); text != texts.end(); ++text)
      EXPECT_EQ(TextOf(text.key()), text->toString()) << text.key().toStdString();
  }
  // Every area of the item pages that expected.json does not name is empty.
  void ExpectNothingElse() {
    const QJsonObject texts = expected_["texts"].toObject();
    for (int p = 0; p < ItemPages; ++p)
      for (const Control& area : page(p).txt)
        EXPECT_TRUE(area.Text().isEmpty() || texts.contains(area.FullName()))
            << area.FullName().toStdString();
  }
  void ExpectRows() {
    const QJsonObject columns = expected_["columns"].toObject();
    for (int p = 0; p < ItemPages; ++p)
      for (int row = page(p).FirstRow(); row <= page(p).LastRow(); ++row) {
        const Control& quantity = page(p).txtQty[static_cast<size_t>(row)];
        const bool has = columns.contains(quantity.FullName());
        EXPECT_EQ(page(p).HasColumns(row), has) << quantity.FullName().toStdString();
        EXPECT_EQ(quantity.Visible(), has);
        EXPECT_EQ(quantity.Hidden(), !has);
      }
  }
  void ExpectMarks() {
    QStringList marks;
    for (int p = 0; p < ItemPages; ++p)
      for (const Control& mark : page(p).imgNoTax)
        if (mark.Visible() && !mark.Hidden()) marks << mark.FullName();
    EXPECT_EQ(QJsonArray::fromStringList(marks), expected_["exempt"].toArray());
  }
  void ExpectTotals() {
    QStringList shown, copied;
    for (const Control& area : page(5).txt) shown << area.Text();
    for (const Control& area : page(CopyOfPage6).txt) copied << area.Text();
    EXPECT_EQ(QJsonArray::fromStringList(shown), expected_["totals"].toArray());
    EXPECT_EQ(copied, shown);
  }

  QJsonObject expected_;
  QString name_;
};

TEST_P(Samples, ShowWhatTheyHoldAndAreSavedUnchanged) {
  ConvertOldFiles();
  if (GetParam().older) name_ = name_.chopped(4) + ".wwf";
  ASSERT_TRUE(Open(name_));
  ExpectTexts("texts");
  ExpectTexts("columns");
  ExpectNothingElse();
  ExpectRows();
  ExpectMarks();
  ExpectTotals();
  EXPECT_EQ(proposal.HighestPage, expected_["highest_page"].toInt());
  EXPECT_FALSE(ProposalHasChanged());
  EXPECT_EQ(frame().form.caption, "Quillane: File Name = " + name_);

  QStringList told;
  if (GetParam().older)
    told << "Deposit is not numeric. Zero will be entered. Please\n"
            "double-check the Deposit amount from previous records.";
  EXPECT_EQ(Said(), told);
  desk_.said.clear();
  const QByteArray before = Get(name_);
  ASSERT_TRUE(SaveEventFile());
  EXPECT_EQ(Get(name_) == before, !GetParam().older);
  EXPECT_EQ(Get(name_).size(), 22000);
  EXPECT_EQ(desk_.said.size(), expected_["save_warns_of_discrepancy"].toBool() ? 2 : 1);
  EXPECT_EQ(desk_.LastSaid(), "File was saved as " + name_);
  EXPECT_FALSE(ProposalHasChanged());
}

INSTANTIATE_TEST_SUITE_P(All, Samples,
                         testing::Values(SampleFile{"Emily Carter", "Emily Carter.wwf", false},
                                         SampleFile{"Riverside Book Club", "Riverside Book Club.wwf", false},
                                         SampleFile{"Sofía Marín-Núñez", "Sofía Marín-Núñez.wwf", false},
                                         SampleFile{"Harriet Vane (older length, old extension)",
                                                    "Harriet Vane.wef", true}));

}  // namespace
