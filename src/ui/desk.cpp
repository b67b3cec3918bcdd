#include "ui/desk.h"

namespace quillane {

namespace {
Desk* current = nullptr;  // not owned: main, or a test, keeps the desk alive for the whole run
}

Desk& desk() {
  return *current;
}
void SetDesk(Desk* desk) {
  current = desk;
}

void Tell(const QString& text, const QString& title) {
  current->MessageBox(text, title, Buttons::Ok);
}

bool AskYesNo(const QString& text, const QString& title) {
  return current->MessageBox(text, title, Buttons::YesNo) == Answer::Yes;
}

}  // namespace quillane
