#include "stage.h"

#include <QAction>
#include <QApplication>
#include <QMenu>
#include <QMenuBar>

#include "failure.h"
#include "model/frame.h"
#include "model/page.h"
#include "model/proposal.h"
#include "windows/frame_window.h"

namespace quillane::scenario {

namespace {

bool Same(const QString& a, const QString& b) {
  return a.compare(b, Qt::CaseInsensitive) == 0;
}

QWidget* ChildNamed(QWidget* window, const QString& name) {
  for (QWidget* child : window->findChildren<QWidget*>())
    if (Same(child->objectName(), name)) return child;
  return nullptr;
}

/// "txt(35)" in the page's own spelling; a control that stands alone may be written with the index 0 or
/// without.
Control* PageControl(Page& page, const QString& name) {
  for (Control* control : page.Controls()) {
    const QString own = control->FullName().section(QLatin1Char('.'), 1);
    if (Same(own, name) || Same(own, name + QLatin1String("(0)")) || Same(own + QLatin1String("(0)"), name))
      return control;
  }
  return nullptr;
}

Control* FrameControl(const QString& name) {
  if (Control* found = frame().Find(name)) return found;
  for (const auto& [own, control] : frame().Controls())
    if (Same(own, name)) return control.get();
  return nullptr;
}

bool InFrame(Target& target, const Stage& stage, const QString& name) {
  if (!stage.Running() || !stage.program->Window()) return false;
  QWidget* window = stage.program->Window();
  target.control = FrameControl(name);
  target.widget = ChildNamed(window, name);
  target.action = FindAction(window, name);
  return target.control || target.widget || target.action;
}

bool InWindow(Target& target, QWidget* window, const QString& name) {
  target.widget = ChildNamed(window, name);
  target.action = FindAction(window, name);
  return target.widget || target.action;
}

bool InForm(Target& target, const Stage& stage, const QString& form, const QString& name) {
  target.page = FindPage(form);
  if (target.page) {
    target.control = PageControl(*target.page, name);
    return target.control != nullptr;
  }
  if (Same(form, QStringLiteral("frmMain"))) return InFrame(target, stage, name);
  QWidget* window = stage.Window(form);
  if (!window) throw Failure(form + QStringLiteral(" is open"), QStringLiteral("it is not open"));
  return InWindow(target, window, name);
}

/// Without a form: the window in front, then the main window, then the page in front.
bool Anywhere(Target& target, const Stage& stage, const QString& name) {
  QWidget* front = stage.Front();
  if (front && InWindow(target, front, name) && front->objectName() != QLatin1String("frmMain")) return true;
  if (InFrame(target, stage, name)) return true;
  target.page = &page(editing.FrontWindow);
  target.control = PageControl(*target.page, name);
  return target.control != nullptr;
}

}  // namespace

FrameWindow& Stage::Frame() const {
  if (!program || !program->Window())
    throw Failure(QStringLiteral("the main window is open"), QStringLiteral("the program is not running"));
  return *program->Window();
}

SheetView& Stage::Sheet() const {
  SheetView* sheet = Frame().Sheet();
  if (!sheet) throw Failure(QStringLiteral("a page is in front"), QStringLiteral("no page shows"));
  return *sheet;
}

QWidget* Stage::Window(const QString& name) const {
  if (!program) return nullptr;
  if (Same(name, QStringLiteral("frmMain"))) {
    FrameWindow* window = program->Window();
    return window && window->isVisible() ? window : nullptr;
  }
  for (const QString& open : desk.OpenWindows())
    if (Same(open, name)) return desk.OpenWindow(open);
  return nullptr;
}

void Stage::KeepActive() const {
  QWidget* active = QApplication::activeWindow();
  if (QApplication::activePopupWidget() || (active && active->isVisible())) return;
  QWidget* front = Front();
  if (!front || !front->isVisible()) return;
  front->activateWindow();
  QCoreApplication::processEvents();
}

QWidget* Stage::Front() const {
  if (QWidget* modal = QApplication::activeModalWidget()) return modal;
  QWidget* active = QApplication::activeWindow();
  if (active && active->isVisible()) return active;
  return program ? program->Window() : nullptr;
}

Page* FindPage(const QString& form) {
  for (int window = 0; window < PageCount; ++window)
    if (Same(page(window).form.name, form)) return &page(window);
  return nullptr;
}

QAction* FindAction(QWidget* window, const QString& name) {
  for (QAction* action : window->findChildren<QAction*>())
    if (Same(action->objectName(), name)) return action;
  return nullptr;
}

QMenu* MenuOf(QWidget* window, QAction* action) {
  for (QMenu* menu : window->findChildren<QMenu*>())
    if (menu->actions().contains(action)) return menu;
  return nullptr;
}

Target Find(const Stage& stage, const ControlName& name) {
  Target target;
  target.name = name.Full();
  if (name.control.isEmpty()) {
    target.isWindow = true;
    target.page = FindPage(name.form);
    target.widget = target.page ? nullptr : stage.Window(name.form);
    if (target.page || target.widget) return target;
    throw Failure(name.form + QStringLiteral(" is open"), QStringLiteral("it is not open"));
  }
  const bool found = name.form.isEmpty() ? Anywhere(target, stage, name.control)
                                         : InForm(target, stage, name.form, name.control);
  if (!found) throw Failure(QStringLiteral("a control ") + target.name, QStringLiteral("there is none"));
  return target;
}

Target Find(const Stage& stage, const QString& name) {
  return Find(stage, ParseControl(name, Property::None));
}

}  // namespace quillane::scenario
