#include "qt/windows.h"

#include <map>

namespace quillane {

namespace {
std::map<QString, WindowMaker>& Makers() {
  static std::map<QString, WindowMaker> makers;
  return makers;
}
}  // namespace

RegisteredWindow::RegisteredWindow(const char* name, WindowMaker maker) {
  Makers()[QString::fromLatin1(name)] = std::move(maker);
}

std::unique_ptr<QDialog> MakeWindow(const QString& name, QWidget* parent) {
  const auto found = Makers().find(name);
  return found == Makers().end() ? nullptr : found->second(parent);
}

}  // namespace quillane
