#include "input.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QScrollBar>
#include <QTest>
#include <algorithm>
#include <cmath>

#include "keys.h"
#include "model/frame.h"
#include "model/page.h"
#include "properties.h"
#include "sheet/sheet_view.h"
#include "windows/frame_window.h"

namespace quillane::scenario {

namespace {

struct Spot {
  QWidget* widget;
  QPoint place;  ///< in the widget
  QPoint InWindow() const { return widget->mapTo(widget->window(), place); }
};

QWindow* Native(const QWidget* widget) {
  QWidget* window = widget->window();
  if (!window->windowHandle()) window->winId();
  return window->windowHandle();
}

void RequireUsable(bool visible, bool enabled, const QString& name) {
  if (!visible) throw Failure(name + QStringLiteral(" shows"), QStringLiteral("it is hidden"));
  if (!enabled) throw Failure(name + QStringLiteral(" is enabled"), QStringLiteral("it is disabled"));
}

void RequireReachable(const QWidget& widget, const QString& name) {
  const QWidget* modal = QApplication::activeModalWidget();
  if (modal && widget.window() != modal && !modal->isAncestorOf(widget.window()))
    throw Failure(name + QStringLiteral(" can be reached"),
                  modal->objectName() + QStringLiteral(" stands in front"));
  RequireUsable(widget.isVisible(), widget.isEnabled(), name);
}

void BringToFront(const Player& player, const Page& page) {
  if (player.Sheet().CurrentWindow() == page.window) return;
  Click(player, player.Find(QStringLiteral("frmMain.imgPage(%1)").arg(page.window)));
  if (player.Sheet().CurrentWindow() != page.window)
    throw Failure(page.form.name + QStringLiteral(" comes to the front"),
                  QStringLiteral("window %1 stands in front").arg(player.Sheet().CurrentWindow()));
}

/// Scrolls until the part of the page between two heights shows, as a person would.
void Reveal(const Player& player, const Page& page, double top, double bottom) {
  BringToFront(player, page);
  const SheetView& sheet = player.Sheet();
  const auto shows = [&](double twips) {
    const int y = sheet.ToPixels({0, twips}).y();
    return y >= 0 && y < sheet.height();
  };
  if (shows(top) && shows(bottom)) return;
  auto* bar = qobject_cast<QScrollBar*>(player.Find(QStringLiteral("frmMain.VScroll1")).widget);
  const double middle = (top + bottom) / 2, half = sheet.height() * sheet.TwipsPerPixel() / 2;
  bar->setValue(std::clamp(static_cast<int>(std::lround(middle - half)), bar->minimum(), bar->maximum()));
}

Spot SpotOn(const Player& player, const Page& page, QPointF twips) {
  Reveal(player, page, twips.y(), twips.y());
  return {&player.Sheet(), player.Sheet().ToPixels(twips)};
}

Spot SpotOf(const Player& player, const Target& target) {
  if (target.control && target.page) {
    const Control& control = *target.control;
    RequireUsable(control.Visible(), true, target.name);
    const auto top = static_cast<double>(control.Top());
    Reveal(player, *target.page, top, top + static_cast<double>(control.Height()));
    return {&player.Sheet(), player.Sheet().PixelRect(control).center()};
  }
  if (target.isWindow && target.page) return SpotOn(player, *target.page, {200, 200});
  if (!target.widget)
    throw Failure(target.name + QStringLiteral(" can be clicked"), QStringLiteral("no widget shows it"));
  RequireReachable(*target.widget, target.name);
  return {target.widget, target.widget->rect().center()};
}

void ClickAt(Spot spot, Mouse mouse) {
  QWidget* window = spot.widget->window();
  // A click on a window that lies behind brings it to the front and gives it the keys first.
  if (!QApplication::activePopupWidget() && !window->isActiveWindow()) {
    window->raise();
    window->activateWindow();
  }
  if (mouse.clicks == Clicks::Double)
    QTest::mouseDClick(Native(window), mouse.button, mouse.held, spot.InWindow());
  else
    QTest::mouseClick(Native(window), mouse.button, mouse.held, spot.InWindow());
}

/// The index of the n-th row that shows, a tree's open branches included.
QModelIndex IndexOfRow(const QAbstractItemView& view, int row) {
  const QList<QModelIndex> rows = RowIndexes(view);
  return row >= 0 && row < rows.size() ? rows[row] : QModelIndex();
}

QWindow* KeyWindow(const Player& player) {
  if (QWidget* popup = QApplication::activePopupWidget()) return Native(popup);
  if (QWidget* modal = QApplication::activeModalWidget()) {
    if (!modal->isActiveWindow()) modal->activateWindow();
    return Native(modal);
  }
  if (QWidget* focus = QApplication::focusWidget()) return Native(focus);
  if (QWidget* front = player.Front()) return Native(front);
  throw Failure(QStringLiteral("a window takes keys"), QStringLiteral("no window is open"));
}

/// A key may have opened or closed a window: its release and the next press go to the one in front.
void Send(const Player& player, QEvent::Type type, const KeyPress& press) {
  qt_handleKeyEvent(KeyWindow(player), type, press.key, press.modifiers | player.held, press.text);
}

void Strike(const Player& player, const KeyPress& press) {
  Send(player, QEvent::KeyPress, press);
  Send(player, QEvent::KeyRelease, press);
}

KeyPress KeyNamed(const QString& name) {
  if (const std::optional<KeyPress> press = ReadKey(name)) return *press;
  throw Failure(QStringLiteral("a key of the name ") + name, QStringLiteral("there is none"));
}

Qt::KeyboardModifiers ModifierOf(Qt::Key key) {
  for (const Modifier& one : Modifiers)
    if (one.key == key) return one.modifier;
  return {};
}

/// What a person sees who opens the menus down to an entry: each is about to show in turn.
void OpenMenus(const QWidget& window, QAction* action) {
  const QList<QMenu*> menus = window.findChildren<QMenu*>();
  const auto found = std::find_if(menus.begin(), menus.end(),
                                  [&](const QMenu* menu) { return menu->actions().contains(action); });
  if (found == menus.end()) return;
  QAction* own = (*found)->menuAction();
  OpenMenus(window, own);
  RequireUsable(own->isVisible(), own->isEnabled(), QStringLiteral("the menu ") + (*found)->title());
  QMetaObject::invokeMethod(*found, "aboutToShow");
}

/// The windows in whose menus an entry is looked for.
std::vector<QWidget*> MenuWindows(const Player& player, const QString& form) {
  if (!form.isEmpty()) {
    RequireReachable(player.OpenWindow(form), form);
    return {player.Window(form)};
  }
  if (QWidget* modal = QApplication::activeModalWidget()) return {modal};
  // A small window on top, such as a list of terms, leaves the main window's menus in reach.
  return {player.Front(), &player.Frame()};
}

}  // namespace

void Click(const Player& player, const Target& target, Mouse mouse) {
  ClickAt(SpotOf(player, target), mouse);
}

void Focus(const Player& player, const Target& target) {
  const bool pressable = qobject_cast<QAbstractButton*>(target.widget) ||
                         qobject_cast<QComboBox*>(target.widget) ||
                         qobject_cast<QAbstractItemView*>(target.widget);
  if (!pressable) return Click(player, target);
  RequireReachable(*target.widget, target.name);
  target.widget->activateWindow();
  target.widget->setFocus(Qt::OtherFocusReason);
}

void Hover(const Player& player, const Target& target) {
  const Spot spot = SpotOf(player, target);
  QTest::mouseMove(Native(spot.widget), spot.InWindow());
}

void Drag(const Player& player, const Page& page, QPointF from, QPointF to) {
  const Spot start = SpotOn(player, page, from);
  const SheetView& sheet = player.Sheet();
  QWindow* window = Native(&sheet);
  const auto place = [&](double part) {
    return Spot{start.widget, sheet.ToPixels(from + (to - from) * part)}.InWindow();
  };
  QTest::mousePress(window, Qt::LeftButton, {}, start.InWindow());
  for (const double part : {0.05, 0.25, 0.5, 0.75, 1.0}) QTest::mouseMove(window, place(part));
  QTest::mouseRelease(window, Qt::LeftButton, {}, place(1));
}

void Drop(const Player& player, QWidget* source, const QString& row, const Target& target) {
  const Spot spot = SpotOf(player, target);
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

void Choose(const Target& target, int row, Mouse mouse) {
  RequireReachable(*target.widget, target.name);
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
  ClickAt({view->viewport(), {place.left() + std::min(place.width() / 2, 12), place.center().y()}}, mouse);
}

void Type(const Player& player, const QString& text) {
  for (const QChar letter : text) Strike(player, KeyOf(letter));
}

void Key(const Player& player, const QString& combination, int times) {
  const KeyPress press = KeyNamed(combination);
  // As a keyboard tells it: with the keys that were held before this one went down or up.
  Qt::KeyboardModifiers down;
  std::vector<KeyPress> holding;
  for (const Modifier& one : Modifiers) {
    if (!(press.modifiers & one.modifier) || player.held & one.modifier) continue;
    holding.push_back({one.key, down, {}});
    Send(player, QEvent::KeyPress, holding.back());
    down |= one.modifier;
  }
  for (int count = 0; count < times; ++count) Strike(player, press);
  for (; !holding.empty(); holding.pop_back()) {
    holding.back().modifiers = down;
    Send(player, QEvent::KeyRelease, holding.back());
    down &= ~ModifierOf(holding.back().key);
  }
}

void Press(Player& player, const QString& key) {
  const KeyPress press = KeyNamed(key);
  Send(player, QEvent::KeyPress, press);
  player.held |= ModifierOf(press.key);
}

void Release(Player& player, const QString& key) {
  const KeyPress press = KeyNamed(key);
  Send(player, QEvent::KeyRelease, press);
  player.held &= ~ModifierOf(press.key);
}

void Compose(const QStringList& texts) {
  QObject* focus = QGuiApplication::focusObject();
  QInputMethodQueryEvent query(Qt::ImEnabled);
  if (focus) QApplication::sendEvent(focus, &query);
  if (!query.value(Qt::ImEnabled).toBool())
    throw Failure(QStringLiteral("the focus in a field that takes an input method"),
                  focus ? focus->objectName() : QStringLiteral("nothing has the focus"));
  for (qsizetype at = 0; at < texts.size(); ++at) {
    const bool last = at + 1 == texts.size();
    QInputMethodEvent event(last ? QString() : texts[at], {});
    if (last) event.setCommitString(texts[at]);
    QApplication::sendEvent(focus, &event);
  }
}

void SelectAll(const Player& player, const Target& target) {
  if (target.control)
    target.control->SetSelection(0, static_cast<int>(target.control->Text().size()));
  else if (auto* edit = qobject_cast<QLineEdit*>(target.widget))
    edit->selectAll();
  else
    Key(player, QStringLiteral("Ctrl+A"), 1);
}

void PullMenu(const Player& player, const QString& name) {
  const ControlName entry = ParseControl(name, Property::None);
  for (const QWidget* window : MenuWindows(player, entry.form)) {
    QAction* action = window ? FindAction(*window, entry.control) : nullptr;
    if (!action) continue;
    OpenMenus(*window, action);
    RequireUsable(action->isVisible(), action->isEnabled(), name);
    return action->trigger();
  }
  throw Failure(QStringLiteral("an entry %1 in the menu of the window in front").arg(name),
                QStringLiteral("there is none"));
}

void PullPopUp(const QString& name) {
  auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  if (!menu) throw Failure(QStringLiteral("a pop-up menu is open"), QStringLiteral("none is"));
  const QString entry = ParseControl(name, Property::None).control;
  for (QAction* action : menu->actions()) {
    if (action->objectName().compare(entry, Qt::CaseInsensitive) != 0) continue;
    RequireUsable(action->isVisible(), action->isEnabled(), name);
    QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(action).center());
    return;
  }
  throw Failure(QStringLiteral("an entry %1 in the pop-up menu").arg(name), QStringLiteral("there is none"));
}

void Close(const Player& player, const QString& form) {
  QWidget& window = player.OpenWindow(form);
  RequireReachable(window, form);
  window.close();
}

}  // namespace quillane::scenario
