#include "qt/windows.h"

#include <map>

namespace quillane {

namespace {
std::map<QString, WindowMaker>& Makers() {
  static std::map<QString, WindowMaker> makers;
  return makers;
}
}  // namespace

void RegisterWindow(const QString& name, WindowMaker maker) {
  Makers()[name] = std::move(maker);
}

std::unique_ptr<QDialog> MakeWindow(const QString& name, QWidget* parent) {
  const auto found = Makers().find(name);
  return found == Makers().end() ? nullptr : found->second(parent);
}

}  // namespace quillane
