// A whole proposal as one value: what its files hold, what is compared to find unsaved work, and what can be
// copied and put back on the pages.
#pragma once
#include <QString>
#include <optional>

#include "model/shape.h"
#include "platform/array.h"
#include "ui/font.h"

namespace quillane {

/// What an area of a page holds.
struct TextAreaRecord {
  QString Text;  ///< as it was typed, blanks at its ends included
  bool FontBold = false;
  bool QtyBox = false;         ///< the row has columns
  QString QtyValue, AmtValue;  ///< their texts, prompts included; empty where the row has none
  float AreaAmount = 0;        ///< of an amount: the last text that was a number
  bool TaxExempt = false;
  bool operator==(const TextAreaRecord&) const = default;
};

/// How a label stands on its page.
struct LabelValues {
  float Left = 0, Top = 0;  ///< twips
  QString Caption, FontName;
  float FontSize = 0;  ///< points
  bool FontBold = false;
  Color ForeColor = 0;
  bool FontItalic = false, FontUnderline = false;
  bool operator==(const LabelValues&) const = default;
};

struct LabelRecord : LabelValues {
  bool Changed = false;  ///< differs from the default layout: the property file has a line for it
  bool operator==(const LabelRecord&) const = default;
};

using TextTable = FixedArray<FixedArray<TextAreaRecord, AreasPerPage>, IndexedPages>;
using LabelTable = FixedArray<FixedArray<LabelRecord, LabelsPerPage>, IndexedPages>;

/// The font that areas take.
struct UserFont {
  QString FontName = QStringLiteral("Arial");
  float FontSize = 10;
  Color FontColor = 0;
  bool FontItalic = false;
  bool operator==(const UserFont&) const = default;
};

/// A picture and its place on the first page, twips; no path for none.
struct LogoRecord {
  QString LogoPath;
  float LogoLeft = 0, LogoTop = 0;
  bool operator==(const LogoRecord&) const = default;
};

struct Document {
  TextTable TextRec;
  LabelTable LabelRec;
  UserFont UDP;
  LogoRecord Logo;
  QString Title;             ///< "Proposal for Emily Carter"
  QString SubTitleText;      ///< "Alder Events - Event Proposal - "
  bool TitleByHand = false;  ///< a title made by hand stays until New or Open
  float DepositReceived = 0;
  bool operator==(const Document&) const = default;
};

/// What a format says of an area or a label that no page shows.
struct FormatTextRecord {
  bool HasFormatText = false;  ///< the open format fixes this area's text
  bool operator==(const FormatTextRecord&) const = default;
};
struct FormatLabelRecord {
  bool Changed = false;  ///< the format has a line for it
  bool operator==(const FormatLabelRecord&) const = default;
};
using FormatTextTable = FixedArray<FixedArray<FormatTextRecord, AreasPerPage>, IndexedPages>;
using FormatLabelTable = FixedArray<FixedArray<FormatLabelRecord, LabelsPerPage>, IndexedPages>;

/// The prompts of a row's quantity and each-price.  They are no figures: each stands until one is typed.
inline const QString QuantityPrompt = QStringLiteral("Qty.");
inline const QString EachPrompt = QStringLiteral("Amt.");

/// The text of an area as it is filed: trimmed, or the three parts of a row with columns.
QString StoredForm(const TextAreaRecord& area);

/// A row with columns as it is stored: the quantity and the description between and behind two yen signs, the
/// each-price behind a section sign.
struct ColumnTexts {
  QString quantity, description, each;
};
/// The parts of a stored text; nothing when a sign is missing or the first one is not in front.
std::optional<ColumnTexts> SplitColumns(const QString& stored);
/// The stored text of a row without columns that holds one of the signs all the same.
bool HasStrayMark(const QString& stored);

/// The value of an amount's text; nothing for words, and for a figure that single precision cannot hold.
std::optional<float> AmountIn(const QString& text);

/// "Proposal for " and the client's name; empty without one.
QString TitleFor(const QString& client);
inline const QString TitleWithoutName = QStringLiteral("Proposal for (Client's Name)");
/// True for a title that was made of some client's name.
bool IsTitleOfName(const QString& title);

}  // namespace quillane
