// The strip above the sheet and the line in the status bar: what must be noticed and must stop nobody.
#pragma once
#include <QString>
#include <functional>
#include <vector>

namespace quillane {

/// Up to three buttons of the strip, cmdStrip(0) to cmdStrip(2).
struct StripButton {
  QString caption;
  std::function<void()> pressed;  ///< runs after the notice has been taken away
};

/// How long a notice holds: a matter of the open proposal ends with it.
enum class Matter { OfProposal, OfProgram };

struct Notice {
  QString topic;  ///< a word of the caller's own; one notice a topic stands at a time
  QString text;
  std::vector<StripButton> buttons;
  Matter matter = Matter::OfProposal;
};

/// Shows a notice in the strip.  The latest is in front; earlier ones come back when it ends.  One of the
/// same topic is replaced.
void ShowNotice(Notice notice);
/// The matter is over; nothing for a topic that has no notice.
void EndNotice(const QString& topic);
/// New and Open: nothing of the last proposal is told any more.
void EndProposalNotices();
bool NoticeStands(const QString& topic);

/// A press of cmdStrip(button): takes the notice in front away and does what the button says.
void PressStripButton(int button);
/// The strip's close button: takes the notice in front away.
void CloseStrip();
/// Forgets every notice, for a fresh start of the program's state.
void ResetStrip();

/// Says in the status bar what a command has done.  The window takes it away after some seconds.
void TellInStatusBar(const QString& text);
void ClearStatusBar();

}  // namespace quillane
