// A person at the keyboard: calls the pages' handlers in the order in which a viewer does, and edits as an
// editor would.
#pragma once
#include "cases.h"
#include "editing/areas.h"
#include "fake_desk.h"
#include "model/focus.h"
#include "model/frame.h"
#include "model/proposal.h"
#include "model/upcalls.h"

namespace quillane::test {

inline Control& At(const char* fullName) {
  return *FindPageControl(QString::fromLatin1(fullName));
}

inline QString FocusName() {
  return editing.Focus ? editing.Focus->FullName() : QString();
}

/// A fresh program with its handlers connected, a desk and text a hundred twips a character wide.
class Typist {
 public:
  Typist() {
    ResetState();
    upcalls() = {};
    focusHandlers() = {};
    InstallPageHandlers();
  }

  FakeDesk desk;

  void Press(const KeyEvent& event) {
    Control* control = editing.Focus;
    Page* owner = PageOf(*control);
    if (FormKeyDown(*owner, event) == Handled::No && KeyDown(*control, event) == Handled::No &&
        KeyPress(*control, event) == Handled::No)
      Edit(*control, event);
    Release(event);
  }

  void Key(int key, bool shift = false) {
    KeyEvent event;
    event.key = key;
    event.shift = shift;
    Press(event);
  }

  void Type(const QString& text) {
    for (QChar character : text) {
      KeyEvent event;
      event.key = character.toUpper().unicode();
      event.text = QString(character);
      Press(event);
    }
  }

  void CtrlV() {
    KeyEvent event;
    event.key = 'V';
    event.ctrl = true;
    Press(event);
  }

 private:
  static void Release(const KeyEvent& event) {
    if (!editing.Focus) return;
    KeyUp(*editing.Focus);
    FormKeyUp(*PageOf(*editing.Focus), event);
  }

  static void Edit(Control& control, const KeyEvent& event) {
    if (!AcceptsTyping(control)) return;
    QString text = control.Text();
    const int caret = control.SelStart();
    if (event.key == keys::Backspace && caret > 0) {
      control.Typed(text.remove(caret - 1, 1), caret - 1);
    } else if (!event.text.isEmpty()) {
      text.replace(caret, control.SelLength(), event.text);
      control.Typed(text, caret + static_cast<int>(event.text.size()));
    }
  }
};

/// `words` characters of four-letter words with blanks between them: "word word wor", cut to length.
inline QString Words(int length) {
  QString text;
  while (text.size() < length) text += QStringLiteral("word ");
  return text.left(length);
}

}  // namespace quillane::test
