#include "pages/area_name.h"

#include <gtest/gtest.h>

#include "model/proposal.h"
#include "pages/defaults.h"

using namespace quillane;

namespace {

TEST(AreaName, SaysPageRowAndKindOrTheLabelsAround) {
  ResetState();
  const Scoped building(editing.RebuildingPages, true);
  SetUpPages();
  ShowDefaultPages();
  const std::pair<const char*, const char*> cases[] = {
      {"frmP2.txt(4)", "Page 2, row 5, description"},
      {"frmP2.txt(39)", "Page 2, row 5, amount"},
      {"frmP5.txtQty(0)", "Page 5, row 1, quantity"},
      {"frmP1.txtAmt(22)", "Page 1, row 3, each price"},
      {"frmP1.txt(20)", "Page 1, row 1, description"},
      {"frmP1.txt(35)", "Page 1, row 8, amount"},
      {"frmP1.txt(0)", "Page 1, Wedding Date"},
      {"frmP1.txt(1)", "Page 1, Wedding Time"},
      {"frmP1.txt(3)", "Page 1, Bride Information, Street Address"},
      {"frmP1.txt(11)", "Page 1, Groom Information, Home Phone"},
      {"frmP1.txt(14)", "Page 1, Ceremony, Location"},
      {"frmP1.txt(19)", "Page 1, Reception Information, Time"},
      {"frmP6.txt(1)", "Page 6, Taxable Amount"},
      {"frmP6_1.txt(5)", "Page 6 copy, Balance Due"}};
  for (const auto& [control, name] : cases) {
    const Control* area = FindPageControl(QString::fromLatin1(control));
    ASSERT_TRUE(area) << control;
    EXPECT_EQ(AreaName(*PageOf(*area), *area).toStdString(), name) << control;
  }
}

}  // namespace
