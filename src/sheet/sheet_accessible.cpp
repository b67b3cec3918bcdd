#include "sheet/sheet_accessible.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <map>
#include <vector>

#include "model/focus.h"
#include "model/report.h"
#include "pages/area_name.h"
#include "sheet/sheet_view.h"

namespace quillane {

namespace {

/// An area that is only painted; the one with the focus is the live editor, which speaks for itself.
class AreaAccessible : public QAccessibleInterface, public QAccessibleActionInterface {
 public:
  AreaAccessible(SheetView& view, Control& area) : view_(view), area_(area) {}

  bool isValid() const override { return true; }
  QObject* object() const override { return nullptr; }
  QWindow* window() const override { return view_.window()->windowHandle(); }
  QAccessibleInterface* parent() const override { return QAccessible::queryAccessibleInterface(&view_); }
  QAccessibleInterface* child(int) const override { return nullptr; }
  QAccessibleInterface* childAt(int, int) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface*) const override { return -1; }
  QAccessible::Role role() const override { return QAccessible::EditableText; }
  // A screen reader does not write behind the back of the area's own handlers.
  void setText(QAccessible::Text, const QString&) override {}

  QRect rect() const override {
    const QRect place = view_.PixelRect(area_);
    return QRect(view_.mapToGlobal(place.topLeft()), place.size());
  }

  QString text(QAccessible::Text kind) const override {
    const Page& owner = page(view_.CurrentWindow());
    if (kind == QAccessible::Name) return AreaName(owner, area_);
    if (kind == QAccessible::Value) return area_.Text();
    if (kind == QAccessible::Help) return area_.ToolTip();
    return kind == QAccessible::Description ? AreaRemark(owner, area_) : QString();
  }

  QAccessible::State state() const override {
    QAccessible::State state;
    state.focusable = true;
    state.editable = !area_.Locked();
    state.readOnly = area_.Locked();
    state.selectable = state.selected = area_.BackColor() == colors::Blue;
    return state;
  }

  void* interface_cast(QAccessible::InterfaceType type) override {
    return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this) : nullptr;
  }
  QStringList actionNames() const override { return {setFocusAction()}; }
  QStringList keyBindingsForAction(const QString&) const override { return {}; }
  void doAction(const QString& action) override {
    if (action == setFocusAction()) Guarded("txt_GotFocus", [this] { SetFocus(area_); });
  }

 private:
  SheetView& view_;
  Control& area_;
};

class SheetAccessible : public QAccessibleWidget {
 public:
  explicit SheetAccessible(SheetView& view) : QAccessibleWidget(&view, QAccessible::Document), view_(view) {}
  ~SheetAccessible() override {
    for (const auto& [area, id] : known_) QAccessible::deleteAccessibleInterface(id);
  }

  QString text(QAccessible::Text kind) const override {
    if (kind != QAccessible::Name) return QAccessibleWidget::text(kind);
    const Page& shown = page(view_.CurrentWindow());
    return QStringLiteral("Page %1%2")
        .arg(shown.pageIndex + 1)
        .arg(shown.window == CopyOfPage6 ? QStringLiteral(" copy") : QString());
  }

  int childCount() const override { return Areas().size(); }

  QAccessibleInterface* child(int index) const override {
    const Array<Control*> areas = Areas();
    if (index < 0 || index >= areas.size()) return nullptr;
    Control* area = areas[index];
    return area == view_.Focused() ? QAccessible::queryAccessibleInterface(view_.Editor()) : Painted(*area);
  }

  int indexOfChild(const QAccessibleInterface* wanted) const override {
    for (int i = 0; i < childCount(); ++i)
      if (child(i) == wanted) return i;
    return -1;
  }

  QAccessibleInterface* childAt(int x, int y) const override {
    const Control* under = view_.ControlAt(view_.ToTwips(view_.mapFromGlobal(QPoint(x, y))));
    const Array<Control*> areas = Areas();
    for (int i = 0; i < areas.size(); ++i)
      if (areas[i] == under) return child(i);
    return nullptr;
  }

  QAccessibleInterface* focusChild() const override {
    return view_.Focused() ? QAccessible::queryAccessibleInterface(view_.Editor()) : nullptr;
  }

 private:
  Array<Control*> Areas() const {
    Array<Control*> areas;
    for (Control* control : page(view_.CurrentWindow()).Controls())
      if (control->GetKind() == Kind::TextBox && control->Visible()) areas.push_back(control);
    return areas;
  }

  QAccessibleInterface* Painted(Control& area) const {
    const auto found = known_.find(&area);
    if (found != known_.end()) return QAccessible::accessibleInterface(found->second);
    auto* made = new AreaAccessible(view_, area);  // the toolkit's registry owns it
    known_[&area] = QAccessible::registerAccessibleInterface(made);
    return made;
  }

  SheetView& view_;
  mutable std::map<const Control*, QAccessible::Id> known_;
};

QAccessibleInterface* MakeAccessible(const QString&, QObject* object) {
  auto* view = qobject_cast<SheetView*>(object);
  return view ? new SheetAccessible(*view) : nullptr;
}

}  // namespace

void InstallSheetAccessible() {
  static const bool installed = [] {
    QAccessible::installFactory(MakeAccessible);
    return true;
  }();
  static_cast<void>(installed);
}

void LeaveArea(QWidget& editor) {
  if (!QAccessible::isActive()) return;
  QAccessible::deleteAccessibleInterface(
      QAccessible::uniqueId(QAccessible::queryAccessibleInterface(&editor)));
}

void TellAreaFocused(QWidget& editor) {
  if (!QAccessible::isActive()) return;
  QAccessibleEvent focus(&editor, QAccessible::Focus);
  QAccessible::updateAccessibility(&focus);
}

void TellPageShown(QWidget& view) {
  if (!QAccessible::isActive()) return;
  QAccessibleEvent name(&view, QAccessible::NameChanged);
  QAccessible::updateAccessibility(&name);
}

}  // namespace quillane
