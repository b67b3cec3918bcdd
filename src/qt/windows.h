// The windows that the program opens by name.
#pragma once
#include <QDialog>
#include <functional>
#include <memory>

namespace quillane {

/// Makes the window named "frmTax" and so on; null for a name that has no window.
std::unique_ptr<QDialog> MakeWindow(const QString& name, QWidget* parent);
using WindowMaker = std::function<std::unique_ptr<QDialog>(QWidget* parent)>;
/// Each frm*.cpp registers its window under its name through one static Registration.
void RegisterWindow(const QString& name, WindowMaker maker);

}  // namespace quillane
