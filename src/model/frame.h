// frmMain as plain state: its labels, buttons and images, its menu entries, its scroll bar.
#pragma once
#include <QSet>
#include <functional>
#include <map>
#include <memory>

#include "ui/control.h"

namespace quillane {

/// A whole number that tells when it changes, as a scroll bar does whoever writes it.
class ScrollValue {
 public:
  std::function<void(int)> changed;
  operator int() const { return value_; }
  ScrollValue& operator=(int value) {
    if (value == value_) return *this;
    value_ = value;
    if (changed) changed(value);
    return *this;
  }

 private:
  int value_ = 0;
};

/// VScroll1: slides the sheet under the frame.  Values are twips.  Writing Value moves the sheet.
struct ScrollBar {
  ScrollValue Value;
  int Max = 0, LargeChange = 0, SmallChange = 0;
};

class Frame {
 public:
  Frame();
  Form form;  ///< name "frmMain"; its caption is the window's title
  ScrollBar VScroll1;
  std::function<void()> sheetMoved;             ///< the window: sheetTop or the scroll range has changed
  std::function<void(int)> pageBroughtToFront;  ///< the window: shows that page
  float sheetTop = 0;  ///< twips from the top of the view to that of the sheet in front; 0 or negative
  float clientHeight = 10000;  ///< twips of the sheet that show; the window keeps it up to date

  /// The control or menu entry of that name: "cmdReCalc", "lblTotal", "imgPage(3)", "mnuFileDelete".  A Menu
  /// control's Caption, Visible, Enabled and Checked are the entry's.  Throws 5 for a name that the frame
  /// does not have.
  Control& operator[](const QString& name);
  Control* Find(const QString& name);
  /// An entry without a command stays disabled, whatever a rule says of it.
  enum class Entry { WithCommand, WithoutCommand };
  Control& AddMenu(const QString& name, const QString& caption, Entry entry = Entry::WithCommand);
  bool HasCommand(const QString& name) const { return !withoutCommand_.contains(name); }
  const std::map<QString, std::unique_ptr<Control>>& Controls() const { return controls_; }

 private:
  Control& Add(Kind kind, const QString& name, const QString& caption);
  std::map<QString, std::unique_ptr<Control>> controls_;
  QSet<QString> withoutCommand_;
};

Frame& frame();
void CreateFrame();

/// The states of a menu entry; a name that the menu bar does not have is passed over, as before it is built.
void EnableMenu(const QString& name, bool enabled);
void CheckMenu(const QString& name, bool checked);

/// The red of stale totals on cmdReCalc, and its end.
void MarkTotalsStale();
void MarkTotalsFresh();
bool TotalsAreStale();

/// Told by cmdPreview's caption: the page in front stands as it will print, and no hand writes.
bool InPreview();
enum class Preview { Ended, Shows };
/// Writes that caption; the window follows it.
void MarkPreview(Preview preview);

}  // namespace quillane
