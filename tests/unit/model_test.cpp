#include <gtest/gtest.h>

#include "model/page.h"
#include "model/proposal.h"

using namespace quillane;

namespace {

TEST(Pages, PairRowsWithAmountsAndCurrencySigns) {
  ResetState();
  Page& first = page(0);
  EXPECT_TRUE(first.IsAmount(28));
  EXPECT_FALSE(first.IsAmount(27));
  EXPECT_EQ(first.CurrencyLabel(28).FullName(), "frmP1.lbl(35)");
  Page& second = page(1);
  EXPECT_EQ(second.CurrencyLabel(69).FullName(), "frmP2.lbl(35)");
  EXPECT_EQ(second.txt[34].Top(), 14040);
  EXPECT_EQ(second.txt[34].Tag(), "Stop.120");
  EXPECT_EQ(page(6).tag, "frmP6_1.5");
}

}  // namespace
