// A planner's day by chance: random runs of select, copy, cut, paste, delete, undo, move and typing, after
// each of which the two additions agree and a file written from the page reads back; a copy of the document
// can be put back at any later time.
#include <random>

#include "editing/areas.h"
#include "editing/selection.h"
#include "model/event_bytes.h"
#include "model/focus.h"
#include "model/proposal.h"
#include "model/selection.h"
#include "pages/fonts.h"
#include "pages/labels.h"
#include "pages/rows.h"
#include "pages/show_document.h"
#include "pages/titles.h"
#include "pages/totals.h"
#include "platform/numbers.h"
#include "unit/fake_desk.h"
#include "unit/item_pages.h"

using namespace quillane;
using quillane::test::FakeDesk;
using quillane::test::MakeItemPages;

namespace {

class Planner {
 public:
  Planner() {
    MakeItemPages();
    tax.TaxRate = 7.5F;
  }

  QString Step() {
    Page& there = page(Below(5));
    editing.CurrentPage = there.pageIndex;
    switch (Below(11)) {
      case 0:
        return Select(there);
      case 1:
        return Do("copy", [] { CopyCommand(); });
      case 2:
        return Do("cut", [&] { CutTextContents(there); });
      case 3:
        return Paste(there);
      case 4:
        return Do("delete", [&] { DeleteTextContents(there); });
      case 5:
        return Do("undo", [] { UndoDelete(); });
      case 6:
        return Do("down", [&] { MoveContentsDown(there); });
      case 7:
        return Do("up", [&] { MoveContentsUp(there); });
      case 8:
        return Columns(there);
      case 9:
        return Do("deselect", [&] { DeselectAll(there); });
      default:
        return Type(there);
    }
  }

  /// What rows do not have: labels, titles, the user's font, the deposit, weight, texts that are no figures.
  void Restyle() {
    Page& there = page(Below(IndexedPages));
    Control& label = there.lbl[Below(there.lbl.size())];
    Control& area = there.txt[Below(there.txt.size())];
    switch (Below(6)) {
      case 0:
        label.SetLeft(static_cast<float>(Below(9000)));
        label.SetFont(
            {"Georgia", static_cast<float>(6 + Below(12)), Below(2) == 0, Below(2) == 0, Below(2) == 0});
        if (label.Index() != 0 && !IsCurrencySign(there, label.Index()))
          label.SetCaption(QString::number(Below(99)));
        return StoreLabel(there, label.Index());
      case 1:
        return SaveTitles({Below(2) ? "Party %1" : QString(), QStringLiteral("Sub %1 - ").arg(Below(9))});
      case 2:
        proposal.UDP = {"Georgia", static_cast<float>(8 + Below(4)), Below(256), Below(2) == 0};
        return ApplyUserFont();
      case 3:
        SetFocus(page(5).txt[4]);
        return page(5).txt[4].SetText(SingleText(static_cast<float>(Below(4000)) / 4));
      case 4:
        editing.CurrentPage = there.pageIndex;
        editing.CurrentArea = area.Index();
        return area.GetFont().bold ? MakeNormal() : MakeBold();
      default:
        if (!there.IsItemPage() || editing.AreasSelected) return;
        return area.SetText(Below(2) ? QStringLiteral(" 12.5.7") : QStringLiteral("  Vows "));
    }
  }

  int Below(int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(random_); }

 private:
  template <class Body>
  QString Do(const char* what, Body body) {
    desk_.answers.clear();
    desk_.answers.enqueue(Below(2) ? Answer::Yes : Answer::No);
    body();
    FinishMove(editing.CurrentForm());
    return QString::fromLatin1(what);
  }

  QString Select(Page& there) {
    return Do("select", [&] {
      const int first = there.FirstRow() + Below(there.LastRow() - there.FirstRow() + 1);
      const int last = std::min(there.LastRow(), first + Below(4));
      const float right = Below(4) ? 12000.0F : 9800.0F;
      RubberBandSelect(there, {0, Area(there, first).Top() - 1, right, Area(there, last).Top() + 256});
    });
  }
  QString Paste(Page& there) {
    return Do("paste", [&] {
      editing.CurrentArea = Below(there.LastText() + 1);
      PasteTextContents(there);
    });
  }
  QString Columns(Page& there) {
    return Do("columns", [&] {
      if (editing.AreasSelected) return;
      const int row = there.FirstRow() + Below(there.LastRow() - there.FirstRow() + 1);
      editing.CurrentArea = row;
      ToggleColumns();
      if (!there.HasColumns(row)) return;
      there.txtQty[row].SetText(QString::number(Below(90)));
      there.txtAmt[row].SetText(SingleText(static_cast<float>(Below(4000)) / 4));
      // A product written on leaving a quantity waits for its amount to be left, so it is left here.
      SetFocus(Area(there, row + there.AmountOffset()));
      SetFocus(Area(there, row));
    });
  }
  QString Type(Page& there) {
    return Do("type", [&] {
      if (editing.AreasSelected) return;
      const int row = there.FirstRow() + Below(there.LastRow() - there.FirstRow() + 1);
      Control& amount = Area(there, row + there.AmountOffset());
      Area(there, row).SetText(Below(5) ? QStringLiteral("Item %1").arg(Below(1000)) : QString());
      SetFocus(amount);
      // Quarters of a dollar add exactly in single precision, so that any difference is a fault.
      amount.SetText(Below(5) ? SingleText(static_cast<float>(Below(8000) - 1000) / 4) : QString());
      SetFocus(Area(there, row));
      if (Below(4) == 0) {
        there.imgNoTax[amount.Index()].SetShown(Below(2) == 0);
        CalculateMyTotals(there);
        RecalculateTotals(0);
      }
    });
  }

  FakeDesk desk_;
  std::mt19937 random_{20261122};
};

std::string Disagreement() {
  for (int window = 0; window < ItemPages; ++window) {
    Page& there = page(window);
    for (int area = 0; area <= there.LastText(); ++area) {
      if (!there.IsAmount(area)) continue;
      const QString text = Area(there, area).Text();
      const float shown = text.isEmpty() ? 0 : ToSingle(text);
      if (proposal.AreaAmount[window][area] != shown)
        return (Area(there, area).FullName() + " is worth another sum than it shows").toStdString();
      if (there.CurrencyLabel(area).Visible() == text.isEmpty())
        return (Area(there, area).FullName() + " and its currency sign disagree").toStdString();
    }
  }
  const float fast = proposal.SubTotal, fastTaxable = proposal.TaxableAmount;
  CheckAddition();
  const float slow = proposal.SubTotal, slowTaxable = proposal.TaxableAmount;
  RecalculateTotals(0);
  if (fast != slow || fastTaxable != slowTaxable)
    return QStringLiteral("fast %1/%2, slow %3/%4")
        .arg(fast)
        .arg(fastTaxable)
        .arg(slow)
        .arg(slowTaxable)
        .toStdString();
  return {};
}

std::string FileDifference() {
  const EventFields fields = ReadEventFields(EventFileBytes(ReadPages()));
  for (int window = 0; window < ItemPages; ++window)
    for (int area = 0; area <= page(window).LastText(); ++area) {
      QString text = fields.text[window][area].trimmed();
      const bool marked = text.startsWith(QChar(0xD8));
      if (marked) text.remove(0, 1);
      Page& there = page(window);
      if (there.IsAmount(area) && marked != there.imgNoTax[area].Visible())
        return Area(there, area).FullName().toStdString() + " loses its mark in the file";
      if (text != StoredForm(there, area).trimmed())
        return Area(there, area).FullName().toStdString() + " is another in the file";
    }
  return {};
}

TEST(RowsAsBlocks, StayTrueThroughTenThousandSteps) {
  Planner planner;
  QStringList tail;
  for (int step = 0; step < 10000; ++step) {
    tail.append(planner.Step());
    if (tail.size() > 12) tail.removeFirst();
    ASSERT_EQ(Disagreement(), "") << "step " << step << ": " << tail.join(' ').toStdString();
    if (step % 20 == 0) {
      ASSERT_EQ(FileDifference(), "") << "step " << step << ": " << tail.join(' ').toStdString();
    }
  }
}

QStringList Figures() {
  QStringList figures;
  for (const int window : {5, 6})
    for (const Control& area : page(window).txt) figures << area.Text();
  for (const float sum : {proposal.SubTotal, proposal.TaxableAmount, proposal.SalesTax, proposal.GrandTotal,
                          proposal.DepositReceived, proposal.BalanceDue})
    figures << SingleText(sum);
  return figures;
}

// Everything on the sheets that prints: what a record forgets would show here.
QStringList Print() {
  QStringList print;
  for (int window = 0; window < PageCount; ++window)
    for (const Control* control : page(window).Controls())
      if (control->Visible() && !control->Hidden())
        print << control->FullName() + control->Text() + control->Caption() +
                     QStringLiteral(" %1 %2 %3 %4 %5%6%7 %8")
                         .arg(control->Left())
                         .arg(control->Width())
                         .arg(control->GetFont().name)
                         .arg(control->GetFont().size)
                         .arg(control->GetFont().bold)
                         .arg(control->GetFont().italic && window != CopyOfPage6)
                         .arg(control->GetFont().underline && window != CopyOfPage6)
                         .arg(control->GetKind() == Kind::Label ? control->ForeColor() : 0);
  return print;
}

TEST(Documents, ArePutBackAsTheyWere) {
  struct Kept {
    Document document;
    QStringList figures;
    QStringList print;
  };
  Planner planner;
  std::vector<Kept> kept;
  for (int round = 0; round < 60; ++round) {
    for (int step = 0; step < 40; ++step) planner.Step(), planner.Restyle();
    DeselectAll(page(0));
    RewriteDeposit();
    CalculateAllPages();
    RecalculateTotals(0);
    UpdateEventNameLabels();
    kept.push_back({ReadPages(), Figures(), Print()});
    const Kept& back = kept[static_cast<size_t>(planner.Below(static_cast<int>(kept.size())))];
    ShowDocument(back.document);
    ASSERT_TRUE(ReadPages() == back.document) << round;
    ASSERT_EQ(Figures(), back.figures) << round;
    const QStringList print = Print();
    for (int i = 0; i < back.print.size(); ++i)
      ASSERT_EQ(print.value(i).toStdString(), back.print[i].toStdString()) << round;
  }
}

}  // namespace
