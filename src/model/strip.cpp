#include "model/strip.h"

#include <algorithm>
#include <utility>

#include "model/frame.h"

namespace quillane {

namespace {

constexpr int MostButtons = 3;

std::vector<Notice>& Notices() {
  static std::vector<Notice> notices;  // the last one is in front
  return notices;
}

Control& ButtonOf(int button) {
  return frame()[QStringLiteral("cmdStrip(%1)").arg(button)];
}

void ShowFront() {
  const bool any = !Notices().empty();
  const std::vector<StripButton> none;
  const std::vector<StripButton>& buttons = any ? Notices().back().buttons : none;
  for (int k = 0; k < MostButtons; ++k) {
    const bool used = k < static_cast<int>(buttons.size());
    if (used) ButtonOf(k).SetCaption(buttons[static_cast<size_t>(k)].caption);
    ButtonOf(k).SetVisible(used);
  }
  Control& text = frame()[QStringLiteral("lblStrip")];
  text.SetCaption(any ? Notices().back().text : QString());
  text.SetVisible(any);
}

bool IsOf(const Notice& notice, const QString& topic) {
  return notice.topic == topic;
}

}  // namespace

void ShowNotice(Notice notice) {
  std::erase_if(Notices(), [&](const Notice& other) { return IsOf(other, notice.topic); });
  Notices().push_back(std::move(notice));
  ShowFront();
}

void EndNotice(const QString& topic) {
  if (std::erase_if(Notices(), [&](const Notice& notice) { return IsOf(notice, topic); }) > 0) ShowFront();
}

void EndProposalNotices() {
  if (std::erase_if(Notices(), [](const Notice& notice) { return notice.matter == Matter::OfProposal; }) > 0)
    ShowFront();
}

bool NoticeStands(const QString& topic) {
  return std::ranges::any_of(Notices(), [&](const Notice& notice) { return IsOf(notice, topic); });
}

void PressStripButton(int button) {
  if (Notices().empty() || button < 0 || button >= static_cast<int>(Notices().back().buttons.size())) return;
  const StripButton pressed = Notices().back().buttons[static_cast<size_t>(button)];
  CloseStrip();
  if (pressed.pressed) pressed.pressed();
}

void CloseStrip() {
  if (Notices().empty()) return;
  Notices().pop_back();
  ShowFront();
}

void ResetStrip() {
  Notices().clear();
}

void TellInStatusBar(const QString& text) {
  Control& label = frame()[QStringLiteral("lblStatus")];
  label.SetVisible(false);  // the same words said again are said anew
  label.SetCaption(text);
  label.SetVisible(!text.isEmpty());
}

void ClearStatusBar() {
  frame()[QStringLiteral("lblStatus")].SetVisible(false);
}

}  // namespace quillane
