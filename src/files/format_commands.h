// The commands of the menu "File Format".
#pragma once

namespace quillane {

/// Ends the open format and starts a new proposal without one.
void ClearFormatCommand();
/// Shows the file dialog on format files.
void OpenFormatCommand();
void SaveFormatAsCommand();
/// Deletes the file of the open format, after asking, and starts a new proposal without one.
void DeleteFormatCommand();
/// Saves the format; once that has succeeded, new proposals begin with it.
void DefaultFormatCommand();

}  // namespace quillane
