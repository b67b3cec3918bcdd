// All sheets of the proposal in one PDF file, to be mailed or kept.
#pragma once

namespace quillane {

/// Writes the sheets in use, in the order in which they are read, into one file beside the proposal.  Asks
/// before it replaces a file.  It is no printing: it needs no printer, and neither a printer's offsets nor a
/// cancelled print touch it.
void SaveAsPdfCommand();

}  // namespace quillane
