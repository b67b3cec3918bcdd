// The property file: how this one proposal differs from the default layout, a line a control.
#pragma once
#include <QString>
#include <QStringList>

namespace quillane {

/// Builds proposal.PropertyLines from the tables and clears the marks that it has taken.
void AssignPropChanges();
/// The lines that AssignPropChanges would build, without touching a mark.
QStringList PropertyLinesNow();
/// Writes proposal.PropertyLines to `baseName` + ".wpf".
void SavePropertyFile(const QString& baseName);
/// Reads and applies the ".wpf" of the open proposal, if there is one.
void ReadFileProperties();
void ParsePropertyFile();
/// Stores every label of every page in the table that printing reads.
void CopyLabelsToRecords();
/// Gives every text box of every page the font in proposal.UDP.
void ApplyUserFont();

}  // namespace quillane
