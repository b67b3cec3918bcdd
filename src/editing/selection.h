// Whole areas selected by a rectangle, and what is done with them: copy, cut, paste, delete, undo, move.
#pragma once
#include "model/page.h"

namespace quillane {

/// A rectangle on a page, twips.
struct Band {
  float left, top, right, bottom;
};

/// Selects the description and amount areas that lie wholly inside the band, and copies them to the memory.
void RubberBandSelect(Page& page, const Band& band);
/// Whether a description row of the page is selected.
bool HasBlueRow(const Page& page);
enum class Scan { Rows, Nothing };
/// Reads the blue runs off the page.  Nothing, after telling the user, when only amounts are selected.
Scan ScanSelection(Page& page);
void CopySelectionToMemory(Page& page);
/// Puts every area of all pages to rest and forgets ranges and memory.
void ClearSelection();
/// The command behind cmdClearMem and mnuEditTextDeselect.
void DeselectAll(Page& page);

void CopyCommand();
void CutTextContents(Page& page);
void PasteTextContents(Page& page);
void DeleteTextContents(Page& page);
void UndoDelete();

/// Rewrites the areas of the last paste, or all item rows after a move, so that the change handlers catch up.
enum class Refire { Pasted, AllRows };
void RefireChanges(Page& page, Refire what);

/// Moves the selected block by one row; refuses with a message and leaves everything as it was.
enum class Direction { Up, Down };
void MoveContents(Page& page, Direction direction);
inline void MoveContentsDown(Page& page) {
  MoveContents(page, Direction::Down);
}
inline void MoveContentsUp(Page& page) {
  MoveContents(page, Direction::Up);
}
/// The menu's move: leaves the catch-up to the next key release on a page.
void MoveCommand(Direction direction);
/// Lets the change handlers catch up after moves; nothing when none is pending.
void FinishMove(Page& page);

// The character and weight commands of the area that has the focus.
enum class LetterCase { Lower, Proper, Upper };
void ChangeCase(LetterCase to);
void MakeBold();
void MakeNormal();

}  // namespace quillane
