#include "windows/frame_window.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCloseEvent>
#include <QCursor>
#include <QKeyEvent>
#include <QLabel>
#include <QScreen>
#include <QScrollBar>
#include <QShortcut>
#include <QToolButton>
#include <QVBoxLayout>

#include "app/commands.h"
#include "editing/areas.h"
#include "editing/navigation.h"
#include "model/proposal.h"
#include "model/upcalls.h"
#include "qt/icons.h"
#include "qt/window_place.h"
#include "sheet/rubber_band.h"
#include "sheet/sheet_view.h"
#include "windows/strip_bar.h"

namespace quillane {

namespace {

FrameWindow* theWindow = nullptr;  // not owned

/// At the pointer that was pressed; under the control when a key asks, wherever the pointer rests.
QPoint MenuPlace(const SheetView& sheet, const Control& control) {
  const QRect place = sheet.PixelRect(control).translated(sheet.mapToGlobal(QPoint()));
  return place.contains(QCursor::pos()) ? QCursor::pos() : place.bottomLeft();
}
void PopUpMenu(const QString& name, Control& control) {
  if (!theWindow) return;
  if (auto* menu = theWindow->findChild<QMenu*>(name)) menu->popup(MenuPlace(*TheSheetView(), control));
}

void RedrawPage(int window) {
  if (SheetView* sheet = TheSheetView(); sheet && sheet->CurrentWindow() == window) sheet->update();
}

QColor ToQColor(Color color) {
  return QColor(color & 0xFF, (color >> 8) & 0xFF, (color >> 16) & 0xFF);
}

/// A colour in which words can be read on the desktop's windows: on dark ones pure blue is next to black.
QColor Readable(QColor colour) {
  constexpr int lightEnough = 200;
  if (GroundIsDark() && colour.lightness() < lightEnough)
    colour.setHsl(colour.hslHue(), colour.hslSaturation(), lightEnough);
  return colour;
}

}  // namespace

FrameWindow::FrameWindow() {
  setObjectName(QStringLiteral("frmMain"));
  setWindowIcon(IconOf(QStringLiteral(":/icons/quillane.svg")));
  auto* centre = new QWidget(this);
  auto* rows = new QVBoxLayout(centre);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->setSpacing(0);
  rows->addWidget(MakeToolBar());
  rows->addWidget(MakeInfoBar());
  rows->addWidget(MakeStrip());
  rows->addWidget(MakeSheetRow(), 1);
  rows->addWidget(MakeStatusBar());
  setCentralWidget(centre);
  MakeMenus();
  AddPageKeys();
  ConnectModel();
  qApp->installEventFilter(this);
}

FrameWindow::~FrameWindow() {
  theWindow = nullptr;
  frame().form.observer = nullptr;
  frame().sheetMoved = nullptr;
  frame().pageBroughtToFront = nullptr;
}

void FrameWindow::MakeMenus() {
  const auto stateOf = [](const Command& command) {
    const Control& entry = frame()[QString::fromLatin1(command.name)];
    return EntryState{entry.Caption(), entry.Visible(), entry.Enabled(), entry.Checked()};
  };
  const auto run = [](const Command& command) { RunCommand(QString::fromLatin1(command.name)); };
  menus_ = std::make_unique<Menus>(*menuBar(), Commands(), Menus::Owner{stateOf, run});
  // What the text menu offers depends on the area and on what is selected in it at this moment.
  QMenu* text = menus_->Menu(QStringLiteral("mnuEditTextBox"));
  connect(text, &QMenu::aboutToShow, text, [] { SetEditMenuState(); });
}

/// What the page buttons are to the pointer: Ctrl with Page Up and Page Down turns to the page beside.
void FrameWindow::AddPageKeys() {
  for (const auto& [key, step] : {std::pair{Qt::Key_PageUp, -1}, std::pair{Qt::Key_PageDown, 1}}) {
    auto* turn = new QShortcut(QKeySequence(Qt::CTRL | key), this);
    connect(turn, &QShortcut::activated, this, [step = step] {
      const int beside = editing.FrontWindow() + step;
      if (beside >= 0 && beside < PageCount) FrameClicked(QStringLiteral("imgPage(%1)").arg(beside));
    });
  }
}

void FrameWindow::ConnectModel() {
  theWindow = this;
  frame().form.observer = this;
  frame().sheetMoved = [this] { FollowScroll(); };
  frame().pageBroughtToFront = [this](int window) {
    sheet_->ShowPage(window);
    FollowScroll();
  };
  upcalls().PopUpMenu = PopUpMenu;
  upcalls().RedrawPage = RedrawPage;
  sheet_->scrollTo = [](int value) { frame().VScroll1.Value = qBound(0, value, frame().VScroll1.Max); };
  auto* band = new RubberBand(*sheet_);  // lives as long as the sheet's view
  labelInput_ = std::make_unique<LabelInput>(*sheet_);
  sheet_->pageMouse = [this, band](const PageMouseEvent& event) {
    if (event.control)
      labelInput_->Handle(event);
    else
      band->Handle(event);
  };
  connect(scrollBar_, &QScrollBar::valueChanged, this, [](int value) { frame().VScroll1.Value = value; });
  FollowTitle();
}

void FrameWindow::ShowAsBefore() {
  if (RestorePlace(*this, objectName())) return show();
  // The size for desktops that do not maximise, and for the day the window is made smaller.
  resize(screen()->availableSize() * 0.95);
  showMaximized();
}

void FrameWindow::AfterChange(Control& control, Aspect) {
  if (control.GetKind() == Kind::Menu) return menus_->Follow(control.Array());
  if (QWidget* widget = widgets_.value(&control)) Follow(control, *widget);
  if (control.Array() == QLatin1String("cmdPreview"))
    sheet_->SetDrawMode(InPreview() ? DrawMode::Printing : DrawMode::Editing);
  if (control.Array() != QLatin1String("lblEvent")) return;
  if (windowTitle() != frame().form.caption) setWindowTitle(frame().form.caption);
  // While a name is typed the caption is written right after the title's label; one look when all is done
  // serves both.
  if (std::exchange(titleStale_, true)) return;
  QMetaObject::invokeMethod(
      this, [this] { FollowTitle(); }, Qt::QueuedConnection);
}

void FrameWindow::Follow(Control& control, QWidget& widget) {
  widget.setVisible(control.Visible());
  widget.setEnabled(control.Enabled());
  widget.setToolTip(control.ToolTip());
  if (auto* label = qobject_cast<QLabel*>(&widget)) label->setText(control.Caption());
  if (auto* image = qobject_cast<QToolButton*>(&widget)) {
    if (!control.GetPicture().source.isEmpty()) image->setIcon(IconOf(control.GetPicture().source));
  } else if (auto* button = qobject_cast<QAbstractButton*>(&widget)) {
    button->setText(control.Caption());
    if (button->accessibleName() != control.Caption()) button->setAccessibleName(control.Caption());
  }
  FollowColours(control, widget);
  FollowStrip(control);
}

void FrameWindow::FollowStrip(const Control& control) {
  if (strip_ && control.Array() == QLatin1String("lblStrip")) strip_->Follow(control);
  if (statusLine_ && control.Array() == QLatin1String("lblStatus")) statusLine_->Follow(control);
}

/// Colours that mean something are shown; black on white is the desktop's own text and ground.
void FrameWindow::FollowColours(const Control& control, QWidget& widget) const {
  QPalette palette;
  if (control.GetKind() == Kind::Button && control.BackColor() != colors::ButtonFace) {
    // Styles light a button from above; a shade darker it stays plainly its colour, and white reads on it.
    palette.setColor(QPalette::Button, ToQColor(control.BackColor()).darker(130));
    palette.setColor(QPalette::ButtonText, Qt::white);
  } else if (control.ForeColor() != colors::Black) {
    palette.setColor(QPalette::WindowText, Readable(ToQColor(control.ForeColor())));
  }
  widget.setPalette(palette);
}

void FrameWindow::FollowScroll() {
  const ScrollBar& bar = frame().VScroll1;
  const QSignalBlocker quiet(scrollBar_);
  scrollBar_->setRange(0, bar.Max);
  scrollBar_->setPageStep(bar.LargeChange);
  scrollBar_->setSingleStep(bar.SmallChange);
  scrollBar_->setValue(bar.Value);
  sheet_->SetScroll(static_cast<int>(-frame().sheetTop));
}

void FrameWindow::FollowTitle() {
  titleStale_ = false;
  setWindowTitle(frame().form.caption);
}

bool FrameWindow::eventFilter(QObject* watched, QEvent* event) {
  switch (event->type()) {
    case QEvent::ShortcutOverride: {
      // The editor would keep keys like Shift+Delete for itself; an entry that can run comes first.
      const auto* key = static_cast<QKeyEvent*>(event);
      const auto* widget = qobject_cast<QWidget*>(watched);
      if (widget && widget->window() == this && menus_->Owns(QKeySequence(key->keyCombination()))) {
        event->ignore();
        return true;
      }
      break;
    }
    case QEvent::Resize:
      if (watched == sheet_) FrameResized(static_cast<float>(sheet_->height() * sheet_->TwipsPerPixel()));
      break;
    case QEvent::Enter:
      // The folder is cut where it is long; its tool tip shows all of it.
      if (Control& folder = frame()[QStringLiteral("lblDir")]; watched == widgets_.value(&folder))
        folder.SetToolTip(folder.Caption());
      break;
    case QEvent::KeyPress:
      if (qobject_cast<QAbstractButton*>(watched) &&
          centralWidget()->isAncestorOf(static_cast<QWidget*>(watched)))
        return ReturnToSheet(*event);
      break;
    default:
      break;
  }
  return QMainWindow::eventFilter(watched, event);
}

/// From a button of the tool bar the keys that leave a field lead back to the page.
bool FrameWindow::ReturnToSheet(const QEvent& event) {
  const int key = static_cast<const QKeyEvent&>(event).key();
  if (key != Qt::Key_Tab && key != Qt::Key_Backtab && key != Qt::Key_Escape) return false;
  FocusPage(page(editing.FrontWindow()));
  return true;
}

void FrameWindow::closeEvent(QCloseEvent* event) {
  KeepPlace(*this, objectName());
  if (!editing.Quitting) RunCommand(QStringLiteral("mnuFileExit"));
  event->setAccepted(editing.Quitting);
}

void FrameWindow::changeEvent(QEvent* event) {
  QMainWindow::changeEvent(event);
  if (event->type() == QEvent::PaletteChange)
    for (auto shown = widgets_.cbegin(); shown != widgets_.cend(); ++shown)
      FollowColours(*shown.key(), *shown.value());
  if (event->type() != QEvent::WindowStateChange) return;
  const auto before = static_cast<QWindowStateChangeEvent*>(event)->oldState();
  if (before.testFlag(Qt::WindowMaximized) && windowState() == Qt::WindowNoState) CenterForm();
}

void FrameWindow::CenterForm() {
  QRect place = frameGeometry();
  place.moveCenter(screen()->availableGeometry().center());
  move(place.topLeft());
}

}  // namespace quillane
