// The one reporter behind every procedure that has no error words of its own.
#pragma once
#include <exception>
#include <new>
#include <utility>

#include "platform/runtime_error.h"

namespace quillane {

/// Shows the error under the title "Program Error" and appends it to Error.log in the program's folder.  The
/// log wraps to its start once it is 32767 bytes long; a log that cannot be written loses the report and
/// nothing else.
void ReportProgramError(const QString& procedure, const RuntimeError& error);

/// Shows the three-line box of a command that has its own words: `firstLine`, the number, the description.
void ReportInOwnWords(const QString& firstLine, const RuntimeError& error);

/// The common error route: runs `body`; an error goes to the reporter under `procedure`.  True when there was
/// none.
template <class Body>
bool Guarded(const char* procedure, Body&& body) {
  try {
    std::forward<Body>(body)();
    return true;
  } catch (const RuntimeError& error) {
    ReportProgramError(QString::fromLatin1(procedure), error);
  } catch (const std::bad_alloc&) {
    ReportProgramError(QString::fromLatin1(procedure), RuntimeError(7, QStringLiteral("Out of memory")));
  }
  return false;
}

}  // namespace quillane
