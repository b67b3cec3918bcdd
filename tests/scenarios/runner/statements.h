// The statements of the script language.
#pragma once
#include "player.h"

namespace quillane::scenario {

/// A script goes on after a statement that only looks has failed.
enum class Looks { No, Yes };

/// Does what a statement says and tells whether it only looks.  Throws Failure for one that no pattern fits,
/// and for what is not as it says.
void Perform(Player& player, const Statement& statement, Looks& looks);

/// Every statement with its pattern and what it does, a line each.
QString Language();

}  // namespace quillane::scenario
