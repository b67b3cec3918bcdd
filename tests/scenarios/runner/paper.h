// The sheets that were printed, and the texts on them.
#pragma once
#include <QString>

#include "model/page.h"
#include "test_desk.h"

namespace quillane::scenario {

/// Counts documents and finds the last batch: what came since the script last looked at the sheets or counted
/// them.
class Paper {
 public:
  explicit Paper(const TestDesk& desk) : desk_(desk) {}

  /// Documents since the last call.
  size_t Count();
  /// Throws Failure when the text does not begin at that place of the n-th sheet of the last batch, within 2
  /// twips.
  void ExpectText(int sheet, const QString& text, double left, double top);
  /// Throws Failure when the text is nowhere on the sheet.
  void ExpectText(int sheet, const QString& text);
  /// Throws Failure with every text of a page that the sheet does not have at its place.
  void ExpectPage(int sheet, const Page& page);

 private:
  void Look();
  QString SheetFile(int sheet);

  const TestDesk& desk_;
  size_t counted_ = 0;  ///< documents that `expect printed` has counted
  size_t batch_ = 0;    ///< the first document of the last batch
  size_t looked_ = 0;   ///< how many documents there were when the script last looked at them
};

}  // namespace quillane::scenario
