// Fonts of the same metrics, which the system puts in each other's place.
#pragma once
#include <QStringList>

namespace quillane {

/// The installed fonts and the names that one of them stands in for: "Arial" where "Liberation Sans" is. Text
/// set in either is as wide, so a proposal in "Arial" is at home on both computers.
QStringList WithTwins(QStringList installed);

}  // namespace quillane
