// Entries of a menu bar, and the words in which a window's table of them is written.
#pragma once

namespace quillane {

/// One entry of the menu bar.  An entry without a `run` opens a sub-menu, or its command is not part of the
/// program yet and the entry stays disabled.
struct Command {
  const char* name;     ///< "mnuFileSaveEvent"
  const char* caption;  ///< with '&' before the access key
  const char* key;      ///< "Ctrl+S", or empty
  const char* parent;   ///< the sub-menu that holds it; empty for the menu bar
  bool visible, enabled;
  bool checkable, checked;
  bool isMenu;  ///< opens a sub-menu
  void (*run)();
};

namespace entries {

/// A menu of the menu bar, or one inside another.
constexpr Command Menu(const char* parent, const char* name, const char* caption) {
  return {name, caption, "", parent, true, true, false, false, true, nullptr};
}
/// An entry; one without a procedure waits for its command and is disabled.
constexpr Command Entry(const char* parent, const char* name, const char* caption, const char* key,
                        void (*run)()) {
  return {name, caption, key, parent, true, run != nullptr, false, false, false, run};
}
constexpr Command Off(Command command) {
  command.enabled = false;
  return command;
}
constexpr Command Hidden(Command command) {
  command.visible = false;
  return command;
}
enum class Check { Off, On };
constexpr Command Checkable(Command command, Check check) {
  command.checkable = true;
  command.checked = check == Check::On;
  return command;
}
/// A rule between groups of entries.
constexpr Command Rule(const char* parent) {
  return {"", "-", "", parent, true, false, false, false, false, nullptr};
}

}  // namespace entries

}  // namespace quillane
