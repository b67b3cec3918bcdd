#include "pages/default_labels.h"

#include <iterator>

#include "model/proposal.h"

namespace quillane {

namespace {

constexpr float PlainSize = 9.75F, NameSize = 12, HeadingSize = 14;
constexpr float FooterTop = 15030;
enum class Weight { Plain, Bold };

struct Place {
  float left, top;
};

void Put(Control& label, Place place, const QString& caption, Weight weight, float size = PlainSize) {
  label.SetFont({QStringLiteral("Times New Roman"), size, weight == Weight::Bold, true, false});
  label.SetForeColor(colors::Black);
  label.SetCaption(caption);
  label.SetLeft(place.left);
  label.SetTop(place.top);
}

Control& Label(Page& page, int index) {
  return page.lbl[index];
}

/// `count` currency signs from label `first` on, one under the other.
void PutCurrencySigns(Page& page, int first, int count, Place top) {
  for (int i = 0; i < count; ++i, top.top += 360)
    Put(Label(page, first + i), top, prefs.CurrencySymbol, Weight::Bold);
}

/// The last three labels of an item page: its number, where it goes on, and the title.
void PutFooter(Page& page) {
  const int first = page.LastLabel() - 2;
  const int number = page.window + 1;
  Put(Label(page, first), {720, FooterTop}, QStringLiteral("Page %1 of 6").arg(number), Weight::Bold);
  Control& next = Label(page, first + 1);
  Put(next, {0, FooterTop}, QStringLiteral("Continued on Page %1").arg(number + 1), Weight::Bold);
  const Control& amount = page.txt.back();
  next.SetLeft(amount.Left() + amount.Width() - next.Width());
  Put(Label(page, first + 2), {4860, FooterTop}, TitleWithoutName, Weight::Bold);
}

// --- frmP1
// ---------------------------------------------------------------------------------------------------------

struct CompanyLabel {
  Place place;
  float size;
  QString Preferences::*caption;  // null: a spare one
};
constexpr CompanyLabel CompanyBlock[] = {
    {{3420, 720}, NameSize, &Preferences::CompanyName},
    {{3420, 990}, PlainSize, &Preferences::CompanyAddress1},
    {{3420, 1260}, PlainSize, &Preferences::CompanyAddress2},
    {{3420, 1530}, PlainSize, &Preferences::CompanyCity},
    {{3420, 1800}, PlainSize, &Preferences::CompanyPhone},
    {{3420, 2070}, PlainSize, &Preferences::CompanyFax},
    {{7500, 720}, PlainSize, &Preferences::CompanyWebsite},
    {{7500, 990}, PlainSize, &Preferences::CompanyEmail},
    {{7500, 1260}, PlainSize, nullptr},
    {{7500, 1530}, PlainSize, nullptr},
    {{4500, 2880}, NameSize, &Preferences::PageTitle},
};

// The alternative first page leaves its letterhead to the paper: empty labels that a person may fill.
constexpr Place AlternativeCompanyBlock[] = {{1080, 1080}, {1080, 1440}, {1080, 1800},
                                             {1080, 2160}, {1080, 2520}, {1080, 2880},
                                             {7560, 2160}, {7560, 2520}, {7560, 2880}};

struct ClientLabel {
  Place place;
  Weight weight;
  const char* caption;
};
// From lbl(11) on: headings are bold, what names a field is not.
constexpr ClientLabel ClientBlock[] = {
    {{720, 3060}, Weight::Bold, "Wedding Date"},      {{10350, 3060}, Weight::Bold, "Wedding Time"},
    {{720, 4140}, Weight::Bold, "Bride Information"}, {{900, 4680}, Weight::Plain, "Bride's Name:"},
    {{900, 5040}, Weight::Plain, "Street Address:"},  {{900, 5400}, Weight::Plain, "City, State Zip:"},
    {{6300, 4680}, Weight::Plain, "Home Phone:"},     {{6300, 5040}, Weight::Plain, "Cell Phone:"},
    {{6300, 5400}, Weight::Plain, "Email Address:"},  {{720, 6300}, Weight::Bold, "Groom Information"},
    {{900, 6840}, Weight::Plain, "Groom's Name:"},    {{900, 7200}, Weight::Plain, "Street Address:"},
    {{900, 7560}, Weight::Plain, "City, State Zip:"}, {{6300, 6840}, Weight::Plain, "Home Phone:"},
    {{6300, 7200}, Weight::Plain, "Cell Phone:"},     {{6300, 7560}, Weight::Plain, "Email Address:"},
    {{720, 8460}, Weight::Bold, "Ceremony"},          {{900, 9000}, Weight::Plain, "Location:"},
    {{6300, 9000}, Weight::Plain, "Address:"},        {{720, 9885}, Weight::Bold, "Reception Information"},
    {{900, 10425}, Weight::Plain, "Location:"},       {{6300, 10425}, Weight::Plain, "Address:"},
    {{900, 10785}, Weight::Plain, "Date:"},           {{6300, 10785}, Weight::Plain, "Time:"},
};

void PutCompanyBlock(Page& page) {
  for (int i = 0; i < static_cast<int>(std::size(CompanyBlock)); ++i) {
    const CompanyLabel& item = CompanyBlock[i];
    Control& label = Label(page, i);
    if (prefs.SnfSettings) {
      const bool moved = i < static_cast<int>(std::size(AlternativeCompanyBlock));
      Put(label, moved ? AlternativeCompanyBlock[i] : item.place, QString(), Weight::Bold);
      continue;
    }
    const QString caption = item.caption ? prefs.*item.caption : QStringLiteral("Spare");
    Put(label, item.place, caption, item.size == NameSize ? Weight::Bold : Weight::Plain, item.size);
  }
}

void PlaceFirstPage(Page& page) {
  PutCompanyBlock(page);
  int index = static_cast<int>(std::size(CompanyBlock));
  for (const ClientLabel& item : ClientBlock)
    Put(Label(page, index++), item.place, QString::fromLatin1(item.caption), item.weight);
  PutCurrencySigns(page, index, 8, {10080, 11655});
  PutFooter(page);
}

// --- frmP2 to frmP5
// ------------------------------------------------------------------------------------------------

void PlaceItemPage(Page& page) {
  const QString heading = proposal.SubTitleText + QStringLiteral("Page %1").arg(page.window + 1);
  Put(Label(page, labels::Heading), {3130, 540}, heading, Weight::Plain, HeadingSize);
  PutCurrencySigns(page, 1, 35, {9900, 1800});
  PutFooter(page);
}

// --- frmP6 and its copy
// --------------------------------------------------------------------------------------------

// The stock contract that the alternative layout carries; %1 is the company's name.
constexpr const char* StockContract[] = {
    "All creative ideas in this proposal are the sole property of %1",
    "A deposit of $_____________ is required to reserve your date.",
    "This deposit should have been received prior to the creation of this contract unless other arrangements "
    "have been",
    "made.",
    "Deposits are Non-refundable.",
    "Initial the following please:",
    "___A 3% Surcharge will be added to amounts exceeding $2,000.00 paid by credit card.",
    "___The table count is due 10 days before the event.",
    "That date is ___________________.",
    "___ The balance is then calculated and due at that time.",
    "___Linen counts may not be reduced after this date ________________________ and client will be",
    "charged for all linens ordered.",
    "___If linen count is increased after this date__________________________ additional charges will be ",
    "added i.e. shipping, over-nighting of items.",
    "___The client is responsible for costs incurred as a result of any damage, breakage, or lost rental "
    "items /",
    "please understand that the event location is not responsible whatsoever for any rental items brought",
    "into their facilities.",
    "All rental china is to be returned from the event rinsed of all food substances. If they are not "
    "rinsed, the client "
    "will",
    "be charged a 15% surcharge on the rental amount.",
    "%1 is not responsible for lighting candles at the event except for those candles out of ordinary",
    "reach, i.e. ceilings, etc.",
    "If the event exceeds the agreed time, the client will be charged a fee of $50.00 for each additional "
    "half hour",
    "required.",
    "The scheduled teardown time for the event will be _______________.",
    "Once you have OK'd your prototype, we begin work on your event. No major changes shall be made after",
    "production has been started.",
    "Both %1 and the Client have read and understood the terms, conditions, and prices as ",
    "demonstrated within this document and agree to enter into contract as such. Both parties' signatures "
    "are",
    "required below. Note to the Client: Please sign and return the copy to %1",
    "** Please note that if this is not returned by ____________ there can not be any major changes made to "
    "this event.",
};

constexpr int ContractLineTotal = labels::ContractLast - labels::ContractFirst + 1;

QString ContractPlaceholder(int number) {
  return QStringLiteral(
             " Contract Language Line %1 - Edit this Label by right-clicking or by opening the Contract "
             "Language Editor under Manage.")
      .arg(number);
}

/// lbl(1) to lbl(12): what the six figures are, and their currency signs.
void PutFigureLabels(Page& page) {
  constexpr const char* Names[] = {"Sub-Total", "Taxable Amount",   "Sales Tax",
                                   "Total",     "Deposit Received", "Balance Due"};
  for (int i = 0; i < 6; ++i) {
    const bool right = i >= 3;
    const Place place{right ? 7560.0F : 1080.0F, 1440 + 360 * static_cast<float>(i % 3)};
    Put(Label(page, 1 + i % 3 + (right ? 6 : 0)), place, QString::fromLatin1(Names[i]), Weight::Bold);
  }
  PutCurrencySigns(page, 4, 3, {3060, 1440});
  PutCurrencySigns(page, 10, 3, {9720, 1440});
}

void PutContract(Page& page) {
  Place place{720, 2880};
  int index = labels::ContractFirst;
  for (const QString& line : DefaultContractLines()) {
    Put(Label(page, index++), place, line, Weight::Plain);
    place.top += 270;
  }
}

/// lbl(48) to lbl(55): two signatures, each with a date beside it.
void PutSignatures(Page& page) {
  const QString signature(44, QLatin1Char('_')), date(15, QLatin1Char('_'));
  const QString signers[] = {QStringLiteral("Client's Signature"),
                             QStringLiteral("Representative for ") + prefs.CompanyName};
  for (int i = 0; i < 2; ++i) {
    const float top = i == 0 ? 12960 : 13860;
    Put(Label(page, 48 + 2 * i), {720, top}, signature, Weight::Plain);
    Put(Label(page, 49 + 2 * i), {720, top + 270}, signers[i], Weight::Plain);
    Put(Label(page, 52 + 2 * i), {5850, top}, date, Weight::Plain);
    Put(Label(page, 53 + 2 * i), {5850, top + 270}, QStringLiteral("Date"), Weight::Plain);
  }
}

/// lbl(56) to lbl(62): where the money goes.  A second address line is rare; the city stands in its place
/// without one.
void PutRemittance(Page& page) {
  Put(Label(page, 56), {8010, 12690}, QStringLiteral("Please remit payment to:"), Weight::Plain);
  const QString lines[] = {prefs.CompanyName, prefs.CompanyAddress1, prefs.CompanyAddress2,
                           prefs.CompanyCity, prefs.CompanyPhone,    prefs.CompanyFax};
  float top = 13050;
  for (int i = 0; i < 6; ++i) {
    Put(Label(page, 57 + i), {8010, top}, lines[i], Weight::Plain);
    const bool cityOnTheSameHeight = i == 2 && prefs.CompanyAddress2.isEmpty();
    if (!cityOnTheSameHeight) top += 270;
  }
}

void PlaceTotalsPage(Page& page) {
  // No proposal shows this heading: the page number follows the pages in use as soon as they are counted.
  Put(Label(page, labels::Heading), {3060, 540},
      prefs.CompanyName + QStringLiteral(" - Event Proposal - Page 7"), Weight::Plain, HeadingSize);
  PutFigureLabels(page);
  PutContract(page);
  PutSignatures(page);
  PutRemittance(page);
  Put(Label(page, 63), {900, FooterTop}, QStringLiteral("Page 6 of 6"), Weight::Bold);
  const QString copy =
      page.window == CopyOfPage6 ? QStringLiteral(" - Client's Copy") : QStringLiteral(" - Our Copy");
  Put(Label(page, 64), {5310, FooterTop}, TitleWithoutName + copy, Weight::Bold);
}

// --- Rules
// ---------------------------------------------------------------------------------------------------------

constexpr Color RuleColor = 0x707070;  // grey: a rule orders the text and does not compete with it

struct Rule {
  float left, top, width, height;
};
constexpr float MarginLeft = 720, MarginWidth = 10800;  // the titles' centre line is in their middle

// By array index: of each block of five the first stands under the heading and the third closes the block,
// both as far from the fields between them.
constexpr Rule FirstPageRules[] = {
    {MarginLeft, 4425, MarginWidth, 0},  {}, {MarginLeft, 5910, MarginWidth, 0},  {}, {},
    {MarginLeft, 6585, MarginWidth, 0},  {}, {MarginLeft, 8070, MarginWidth, 0},  {}, {},
    {MarginLeft, 8745, MarginWidth, 0},  {}, {MarginLeft, 9510, MarginWidth, 0},  {}, {},
    {MarginLeft, 10170, MarginWidth, 0}, {}, {MarginLeft, 11310, MarginWidth, 0}, {}, {},
};

constexpr Rule TotalsPageRules[] = {
    // One under each figure, from its currency sign to its end; the balance, where the sum ends, has a second
    // one.
    {3060, 1725, 1440, 0},
    {3060, 2085, 1440, 0},
    {3060, 2445, 1440, 0},
    {9720, 1725, 1440, 0},
    {9720, 2085, 1440, 0},
    {9720, 2445, 1440, 0},
    {9720, 2475, 1440, 0},
    // The contract language between two, the heading above and the footer below.
    {MarginLeft, 2700, MarginWidth, 0},
    {MarginLeft, 12480, MarginWidth, 0},
    {MarginLeft, 1110, MarginWidth, 0},
    {MarginLeft, 14820, MarginWidth, 0},
    // Signatures to the left, remittance to the right; each signature apart from its date and from the other
    // one.
    {7665, 12480, 0, 2340},
    {MarginLeft, 13650, 6945, 0},
    {5430, 12480, 0, 1170},
    {5430, 13650, 0, 1170},
    {8010, 12960, 3510, 0},
};

}  // namespace

void PlaceDefaultLabels(Page& page) {
  if (page.window == 0)
    PlaceFirstPage(page);
  else if (page.IsItemPage())
    PlaceItemPage(page);
  else
    PlaceTotalsPage(page);
}

QStringList DefaultContractLines() {
  QStringList lines;
  for (int i = 0; i < ContractLineTotal; ++i) {
    if (!prefs.SnfSettings)
      lines.append(ContractPlaceholder(i + 1));
    else if (i < static_cast<int>(std::size(StockContract)))
      lines.append(QString::fromLatin1(StockContract[i]).replace(QLatin1String("%1"), prefs.CompanyName));
    else
      lines.append(QString());
  }
  return lines;
}

void PlaceRules(Page& page) {
  const Rule* rules = page.window == 0 ? FirstPageRules : TotalsPageRules;
  for (Control& line : page.lne) {
    const Rule& rule = rules[line.Index()];
    line.SetLeft(rule.left);
    line.SetTop(rule.top);
    line.SetWidth(rule.width);
    line.SetHeight(rule.height);
    line.SetForeColor(RuleColor);
  }
}

}  // namespace quillane
