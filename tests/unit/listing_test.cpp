// Lists on paper and the wrap of words that they share with the contract.
#include "print/listing.h"

#include <gtest/gtest.h>

#include "fake_desk.h"
#include "model/proposal.h"
#include "recording_surface.h"
#include "ui/text_wrap.h"

using namespace quillane;
using namespace quillane::test;

namespace {

// Without a display a letter is a hundred twips wide.
TEST(TextWrap, KeepsWordsWholeAndDropsTheBlankAtALinesEnd) {
  struct Case {
    const char *text, *lines;
  };
  for (const Case& c :
       {Case{"", ""}, Case{"one two", "one two"}, Case{"one two three", "one two|three"},
        Case{"one two   three", "one two|three"}, Case{"seven", "seven"},
        Case{"onetwothreefour x", "onetwothre|efour x"}, Case{"a onetwothreefour", "a|onetwothre|efour"},
        Case{"ten  blank ", "ten  blank"}, Case{"  in", "  in"}})
    EXPECT_EQ(WrapText(Font(), c.text, 1000).join(u'|'), c.lines) << c.text;
}

class ListDesk : public FakeDesk {
 public:
  Document document;
  std::unique_ptr<Surface> BeginDocument(const QString& printer, const QString& title,
                                         const QString& path) override {
    document = {printer, title, path, {}, false, false};
    return std::make_unique<RecordingSurface>(document);
  }
};

TEST(Listing, FillsSheetAfterSheet) {
  ResetState();
  ListDesk desk;
  EXPECT_FALSE(PrintListing({}));
  EXPECT_EQ(desk.LastSaid(), "Could not find Printer.");
  desk.printers = QStringList{"Office Laser"};
  Listing list{"Deposits / May", {}, {}, 1440, 300};
  for (int i = 0; i < 44; ++i)
    list.lines.push_back(
        {{1440, QString(60, u'w') + u' ' + QString::number(i)}, {9000, "12.00", ListingEdge::Right}});
  ASSERT_TRUE(PrintListing(list));
  EXPECT_TRUE(desk.document.ended);
  const auto& drawn = desk.document.drawn;
  ASSERT_EQ(drawn.size(), 90U);
  EXPECT_EQ(drawn[1].right, 9000);
  EXPECT_EQ(drawn[85].top, 1440 + 42 * 300) << "the last line above the margin";
  EXPECT_EQ(drawn[86].what, "Page 1");
  EXPECT_EQ(drawn[87].top, 1440);
  EXPECT_EQ(drawn[89].what, "Page 2");
  list.lines = {{{1440, "Notes for the hall"}, {2440, "x"}}};
  ASSERT_TRUE(PrintListing(list));
  EXPECT_EQ(desk.document.drawn[2].what, "the hall") << "wrapped in front of the next text";
  EXPECT_EQ(desk.document.drawn[2].top, 1740);
}

}  // namespace
