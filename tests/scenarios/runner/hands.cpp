#include "hands.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QDropEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QScrollBar>
#include <QTest>
#include <QTreeView>
#include <algorithm>
#include <cmath>

#include "failure.h"
#include "keys.h"
#include "model/frame.h"
#include "model/page.h"
#include "sheet/sheet_view.h"
#include "windows/frame_window.h"

namespace quillane::scenario {

namespace {

QWindow* Native(QWidget* widget) {
  QWidget* window = widget->window();
  if (!window->windowHandle()) window->winId();
  return window->windowHandle();
}

void RequireReachable(QWidget* widget, const QString& name) {
  QWidget* modal = QApplication::activeModalWidget();
  QWidget* window = widget->window();
  if (modal && window != modal && !modal->isAncestorOf(window))
    throw Failure(name + QStringLiteral(" can be reached"),
                  modal->objectName() + QStringLiteral(" stands in front"));
  if (!widget->isVisible()) throw Failure(name + QStringLiteral(" shows"), QStringLiteral("it is hidden"));
  if (!widget->isEnabled())
    throw Failure(name + QStringLiteral(" is enabled"), QStringLiteral("it is disabled"));
}

/// The scroll area around a widget must show it; a person would scroll there.
QPoint InWindow(QWidget* widget, QPoint place) {
  return widget->mapTo(widget->window(), place);
}

}  // namespace

void Hands::BringToFront(const Page& page) const {
  if (stage_.Sheet().CurrentWindow() == page.window) return;
  Click(Find(stage_, QStringLiteral("frmMain.imgPage(%1)").arg(page.window)), Qt::LeftButton);
  if (stage_.Sheet().CurrentWindow() != page.window)
    throw Failure(page.form.name + QStringLiteral(" comes to the front"),
                  QStringLiteral("window %1 stands in front").arg(stage_.Sheet().CurrentWindow()));
}

void Hands::Reveal(const Page& page, double top, double bottom) const {
  BringToFront(page);
  SheetView& sheet = stage_.Sheet();
  const auto shows = [&](double twips) {
    const int y = sheet.ToPixels({0, twips}).y();
    return y >= 0 && y < sheet.height();
  };
  if (shows(top) && shows(bottom)) return;
  auto* bar = stage_.Frame().findChild<QScrollBar*>(QStringLiteral("VScroll1"));
  if (!bar)
    throw Failure(QStringLiteral("frmMain.VScroll1"), QStringLiteral("the main window has no scroll bar"));
  const double middle = (top + bottom) / 2, half = sheet.height() * sheet.TwipsPerPixel() / 2;
  bar->setValue(std::clamp(static_cast<int>(std::lround(middle - half)), bar->minimum(), bar->maximum()));
}

Hands::Spot Hands::SpotOn(const Page& page, QPointF twips) const {
  Reveal(page, twips.y(), twips.y());
  return {&stage_.Sheet(), stage_.Sheet().ToPixels(twips)};
}

Hands::Spot Hands::SpotOf(const Target& target) const {
  if (target.control && target.page) {
    const Control& control = *target.control;
    if (!control.Visible())
      throw Failure(target.name + QStringLiteral(" shows"), QStringLiteral("it is hidden"));
    Reveal(*target.page, static_cast<double>(control.Top()),
           static_cast<double>(control.Top() + control.Height()));
    return {&stage_.Sheet(), stage_.Sheet().PixelRect(control).center()};
  }
  if (target.isWindow && target.page) return SpotOn(*target.page, {200, 200});
  if (!target.widget)
    throw Failure(target.name + QStringLiteral(" can be clicked"), QStringLiteral("no widget shows it"));
  RequireReachable(target.widget, target.name);
  return {target.widget, target.widget->rect().center()};
}

void Hands::ClickAt(Spot spot, Qt::MouseButton button, Clicks clicks) const {
  QWindow* window = Native(spot.widget);
  const QPoint place = InWindow(spot.widget, spot.place);
  if (clicks == Clicks::Double)
    QTest::mouseDClick(window, button, {}, place);
  else
    QTest::mouseClick(window, button, {}, place);
}

void Hands::Click(const Target& target, Qt::MouseButton button, Clicks clicks) const {
  ClickAt(SpotOf(target), button, clicks);
}

void Hands::Focus(const Target& target) const {
  const bool pressable = qobject_cast<QAbstractButton*>(target.widget) ||
                         qobject_cast<QComboBox*>(target.widget) ||
                         qobject_cast<QAbstractItemView*>(target.widget);
  if (!pressable) return Click(target, Qt::LeftButton);
  RequireReachable(target.widget, target.name);
  target.widget->setFocus(Qt::OtherFocusReason);
}

void Hands::Hover(const Target& target) const {
  const Spot spot = SpotOf(target);
  QTest::mouseMove(Native(spot.widget), InWindow(spot.widget, spot.place));
}

void Hands::Drag(Page& page, QPointF from, QPointF to) const {
  const Spot spot = SpotOn(page, from);
  SheetView& sheet = stage_.Sheet();
  QWindow* window = Native(&sheet);
  const auto place = [&](double part) { return InWindow(&sheet, sheet.ToPixels(from + (to - from) * part)); };
  QTest::mousePress(window, Qt::LeftButton, {}, InWindow(spot.widget, spot.place));
  for (const double part : {0.05, 0.25, 0.5, 0.75, 1.0}) QTest::mouseMove(window, place(part));
  QTest::mouseRelease(window, Qt::LeftButton, {}, place(1));
}

void Hands::Drop(QWidget* source, const QString& row, const Target& target) const {
  const Spot spot = SpotOf(target);
  QMimeData data;
  data.setText(row);
  const auto* list = qobject_cast<QAbstractItemView*>(source);
  const Qt::DropActions actions = Qt::CopyAction | Qt::MoveAction;
  if (list && list->currentIndex().isValid())
    if (const std::unique_ptr<QMimeData> own{list->model()->mimeData({list->currentIndex()})}; own)
      for (const QString& format : own->formats()) data.setData(format, own->data(format));
  QDragEnterEvent enter(spot.place, actions, &data, Qt::LeftButton, {});
  QApplication::sendEvent(spot.widget, &enter);
  QDragMoveEvent move(spot.place, actions, &data, Qt::LeftButton, {});
  QApplication::sendEvent(spot.widget, &move);
  if (!move.isAccepted()) return;
  QDropEvent drop(spot.place, actions, &data, Qt::LeftButton, {});
  QApplication::sendEvent(spot.widget, &drop);
}

namespace {

/// The index of the n-th row that shows, a tree's open branches included.
QModelIndex IndexOfRow(const QAbstractItemView& view, int row) {
  QModelIndex at = view.model()->index(0, 0, view.rootIndex());
  if (const auto* tree = qobject_cast<const QTreeView*>(&view)) {
    for (int left = row; left > 0 && at.isValid(); --left) at = tree->indexBelow(at);
    return at;
  }
  return view.model()->index(row, 0, view.rootIndex());
}

}  // namespace

void Hands::Choose(const Target& target, int row, Clicks clicks) const {
  RequireReachable(target.widget, target.name);
  if (auto* box = qobject_cast<QComboBox*>(target.widget)) {
    box->setFocus(Qt::MouseFocusReason);
    box->setCurrentIndex(row);
    QMetaObject::invokeMethod(box, "activated", Q_ARG(int, row));
    QMetaObject::invokeMethod(box, "textActivated", Q_ARG(QString, box->itemText(row)));
    return;
  }
  auto* view = qobject_cast<QAbstractItemView*>(target.widget);
  const QModelIndex index = view ? IndexOfRow(*view, row) : QModelIndex();
  if (!index.isValid())
    throw Failure(QStringLiteral("%1 has a row %2").arg(target.name).arg(row), QStringLiteral("it has none"));
  view->scrollTo(index);
  const QRect place = view->visualRect(index);
  // A row as wide as its text may be narrower than a click in the middle of the list: its left end is always
  // there.
  ClickAt({view->viewport(), {place.left() + std::min(place.width() / 2, 12), place.center().y()}},
          Qt::LeftButton, clicks);
}

QWindow* Hands::KeyWindow() const {
  if (QWidget* popup = QApplication::activePopupWidget()) return Native(popup);
  if (QWidget* modal = QApplication::activeModalWidget()) {
    if (!modal->isActiveWindow()) modal->activateWindow();
    return Native(modal);
  }
  if (QWidget* focus = QApplication::focusWidget()) return Native(focus);
  if (QWidget* front = stage_.Front()) return Native(front);
  throw Failure(QStringLiteral("a window takes keys"), QStringLiteral("no window is open"));
}

void Hands::Key(const QString& combination, int times) const {
  const std::optional<KeyPress> press = ReadKey(combination);
  if (!press)
    throw Failure(QStringLiteral("a key of the name ") + combination, QStringLiteral("there is none"));
  const std::vector<Qt::Key> held = ModifierKeys(press->modifiers);
  QWindow* window = KeyWindow();
  Qt::KeyboardModifiers down;
  // As a keyboard tells it: with the keys that were held before this one went down or up.
  for (const Qt::Key key : held) {
    qt_handleKeyEvent(window, QEvent::KeyPress, key, down);
    down |= ModifierOf(key);
  }
  for (int count = 0; count < times; ++count) {
    // The key may have opened or closed a window: its release and the next press go to the one in front.
    qt_handleKeyEvent(KeyWindow(), QEvent::KeyPress, press->key, press->modifiers, press->text);
    qt_handleKeyEvent(KeyWindow(), QEvent::KeyRelease, press->key, press->modifiers, press->text);
  }
  for (auto key = held.rbegin(); key != held.rend(); ++key) {
    qt_handleKeyEvent(KeyWindow(), QEvent::KeyRelease, *key, down);
    down &= ~ModifierOf(*key);
  }
}

void Hands::Type(const QString& text) const {
  for (const QChar letter : text) {
    const KeyPress press = KeyOf(letter);
    qt_handleKeyEvent(KeyWindow(), QEvent::KeyPress, press.key, press.modifiers, press.text);
    qt_handleKeyEvent(KeyWindow(), QEvent::KeyRelease, press.key, press.modifiers, press.text);
  }
}

void Hands::SelectAll(const Target& target) const {
  if (target.control)
    target.control->SetSelection(0, static_cast<int>(target.control->Text().size()));
  else if (auto* edit = qobject_cast<QLineEdit*>(target.widget))
    edit->selectAll();
  else
    Key(QStringLiteral("Ctrl+A"), 1);
}

}  // namespace quillane::scenario
