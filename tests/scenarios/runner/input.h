// Input events: what a person does with mouse and keyboard, as real events to the windows.
#pragma once
#include <QPoint>
#include <QPointF>
#include <QString>

#include "player.h"

namespace quillane::scenario {

enum class Clicks { Single, Double };
struct Mouse {
  Qt::MouseButton button = Qt::LeftButton;
  Clicks clicks = Clicks::Single;
  Qt::KeyboardModifiers held;
};

/// A click in the middle of a control; a page's control is brought to the front and scrolled to first, and so
/// is a window that lies behind.  Throws Failure for what does not show, is disabled or lies under another
/// window.
void Click(const Player& player, const Target& target, Mouse mouse = {});
/// A click that gives the focus and does nothing else: a button takes the focus without being pressed.
void Focus(const Player& player, const Target& target);
void Hover(const Player& player, const Target& target);
/// Press, move in steps, release, in twips of the page.
void Drag(const Player& player, const Page& page, QPointF from, QPointF to);
/// Drops a text on a control, as a drag from a list does.
void Drop(const Player& player, QWidget* source, const QString& row, const Target& target);
/// A click on a list's row, or the row of a drop-down list.  `row` counts from 0.
void Choose(const Target& target, int row, Mouse mouse = {});

void Type(const Player& player, const QString& text);
/// "Shift+Down", "Ctrl+S", "Enter": modifiers stay down over all `times`.
void Key(const Player& player, const QString& combination, int times);
/// A key goes down, or up again; a modifier counts for all keys until it goes up.
void Press(Player& player, const QString& key);
void Release(Player& player, const QString& key);
/// What an input method hands over: all texts but the last while it composes, the last for good.
void Compose(const QStringList& texts);
/// Selects the text of the control that has the focus.
void SelectAll(const Player& player, const Target& target);

/// Pulls a menu entry: of the window that the name tells, or else of the window in front or the main window.
/// Throws Failure when it is hidden, disabled, or not in a menu there.
void PullMenu(const Player& player, const QString& name);
void PullPopUp(const QString& name);
/// Closes a window by the button in its frame.
void Close(const Player& player, const QString& form);

}  // namespace quillane::scenario
