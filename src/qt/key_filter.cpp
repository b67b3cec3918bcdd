#include "qt/key_filter.h"

#include <QKeyEvent>
#include <QValidator>
#include <algorithm>
#include <utility>

#include "ui/desk.h"

namespace quillane {

namespace {

bool IsAllowed(const QString& text, const QString& allowed) {
  return std::all_of(text.begin(), text.end(), [&allowed](QChar c) { return allowed.contains(c); });
}

/// Refuses what comes without a key: a paste, a drop.
class CharacterValidator : public QValidator {
 public:
  CharacterValidator(QLineEdit& box, QString allowed) : QValidator(&box), allowed_(std::move(allowed)) {}
  State validate(QString& text, int&) const override {
    return IsAllowed(text, allowed_) ? Acceptable : Invalid;
  }

 private:
  QString allowed_;
};

class KeyFilter : public QObject {
 public:
  KeyFilter(QLineEdit& box, QString allowed, RefusedKey refused)
      : QObject(&box), allowed_(std::move(allowed)), refused_(refused) {
    box.installEventFilter(this);
  }

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() != QEvent::KeyPress) return QObject::eventFilter(watched, event);
    const auto* key = static_cast<QKeyEvent*>(event);
    const QString text = key->text();
    const bool shortcut = key->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    const bool writes = !shortcut && !text.isEmpty() && text[0].isPrint();
    if (!writes || IsAllowed(text, allowed_)) return false;
    if (refused_ == RefusedKey::Beeps) desk().Beep();
    return true;
  }

 private:
  QString allowed_;
  RefusedKey refused_;
};

}  // namespace

void AllowOnly(QLineEdit& box, const QString& allowed, RefusedKey refused) {
  box.setValidator(new CharacterValidator(box, allowed));
  new KeyFilter(box, allowed, refused);  // the box owns both
}

}  // namespace quillane
