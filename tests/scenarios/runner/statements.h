// The statements of the script language, each a function on the world.
#pragma once
#include <functional>
#include <map>

#include "world.h"

namespace quillane::scenario {

using Handler = std::function<void(World&, const Statement&)>;
using Handlers = std::map<QString, Handler>;

/// What sets a scene before the start: home, pref, clock, screen, printers, and the files.
const Handlers& SceneStatements();
/// What a person does: start, focus, type, click, menu ...
const Handlers& ActionStatements();
/// What must be true: expect, message, nomessage, file.  A script goes on after one of these has failed.
const Handlers& ExpectationStatements();

}  // namespace quillane::scenario
