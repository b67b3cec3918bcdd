// The menu bar of frmAddress, and the printing of a record.
#pragma once
#include <vector>

#include "app/command.h"

namespace quillane {

const std::vector<Command>& AddressCommands();

/// mnuFilePrint: the record on the screen, without its notes, as one document.  Throws 482.
void PrintRecordCommand();

}  // namespace quillane
