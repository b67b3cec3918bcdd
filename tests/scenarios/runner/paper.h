// The sheets that were printed, and the texts on them.
#pragma once
#include <QPointF>
#include <QString>
#include <optional>

#include "model/page.h"
#include "test_desk.h"

namespace quillane::scenario {

/// Counts documents and finds the last batch: what came since the script last looked at the sheets or counted
/// them.  A sheet is "2", the first one of the second document of the batch, or "2.3", its third.
class Paper {
 public:
  explicit Paper(const TestDesk& desk) : desk_(desk) {}

  /// Documents since the last call.
  int Count();
  /// Throws Failure when the text does not begin at that place of the sheet, in twips, within 2 twips;
  /// without a place, when it is nowhere on the sheet.
  void ExpectText(const QString& sheet, const QString& text, std::optional<QPointF> place);
  /// Throws Failure with every text of a page that the sheet does not have at its place.
  void ExpectPage(const QString& sheet, const Page& page);

 private:
  void Look();
  /// The file of a sheet's document.
  QString FileOf(const QString& sheet);

  const TestDesk& desk_;
  size_t counted_ = 0;  ///< documents that `expect printed` has counted
  size_t batch_ = 0;    ///< the first document of the last batch
  size_t looked_ = 0;   ///< how many documents there were when the script last looked at them
};

}  // namespace quillane::scenario
