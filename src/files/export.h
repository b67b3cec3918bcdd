// The proposal as plain text for other programs: a file, the clipboard, the word processor.
#pragma once
#include <QByteArray>
#include <QString>

namespace quillane {

/// The report as the pages stand: sections with rules, the items of the pages in use, the totals and the
/// contract.  Captions are read from the labels, so that a changed label changes it.  Lines end in CR LF.
QString ProposalReport();
/// The same as a file holds it.
QByteArray ProposalReportBytes();

/// Where a report goes.
enum class ReportTarget { TextFile, ToClipboard, ToWordProcessor };
/// Brings the sums up to date and compares them; asks what there is to ask; writes the report to `target`'s
/// file.  True when it was written; a refusal has been told and a failure reported.  The word processor's
/// file lies in a temporary folder, never in the place of the user's own.
bool SaveFileAsText(ReportTarget target);
/// What SaveFileAsText left in the scratch file becomes the clipboard's text.  Throws what a file can.
void CopyProposalToClipboard();
/// Writes the report as a word processor's document named after the proposal and opens it; where nothing can,
/// says where it lies.
void SaveAsWordDoc();

/// `name` as a file may be called: what no file name can hold becomes a hyphen, and it is kept short.  A name
/// of nothing becomes "Proposal".
QString SafeFileName(const QString& name);

// Commands.
void SaveAsTextCommand();
void CopyProposalCommand();
void SaveToWordCommand();

}  // namespace quillane
