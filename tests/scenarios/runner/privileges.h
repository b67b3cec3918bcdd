// A superuser writes where nobody may; a scenario about a read-only folder must not.
#pragma once

namespace quillane::scenario {

/// Gives up the superuser's leave to pass over the permissions of files, for the rest of this process.
void ObeyPermissions();

}  // namespace quillane::scenario
