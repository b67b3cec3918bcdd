// The windows that the program opens by name.
#pragma once
#include <QDialog>
#include <functional>
#include <memory>

namespace quillane {

/// Makes the window named "frmTax" and so on; null for a name that has no window.
std::unique_ptr<QDialog> MakeWindow(const QString& name, QWidget* parent);
using WindowMaker = std::function<std::unique_ptr<QDialog>(QWidget* parent)>;

/// Each frm*.cpp makes its window known under its name through one static object of this kind.
struct RegisteredWindow {
  RegisteredWindow(const char* name, WindowMaker maker);
};
/// The maker of a window that is a class of its own.
template <class Window>
std::unique_ptr<QDialog> Make(QWidget* parent) {
  return std::make_unique<Window>(parent);
}

}  // namespace quillane
