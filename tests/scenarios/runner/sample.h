// A sample proposal on the pages, compared with what its independent writer says of it.
#pragma once
#include <QString>

namespace quillane::scenario {

/// Compares every text, column, mark and total and the number of pages with the entry of that name in
/// "expected.json" of a folder.  Throws Failure with all that differs.
void ExpectSample(const QString& folder, const QString& name);

}  // namespace quillane::scenario
