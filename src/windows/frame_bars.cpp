// How the main window is put together.
#include <QApplication>
#include <QHBoxLayout>
#include <QPainter>
#include <QPointer>
#include <QPushButton>
#include <QScrollBar>
#include <QTimer>
#include <QToolButton>

#include "app/commands.h"
#include "model/proposal.h"
#include "model/strip.h"
#include "qt/elided_label.h"
#include "qt/icons.h"
#include "sheet/sheet_view.h"
#include "windows/frame_window.h"
#include "windows/strip_bar.h"

namespace quillane {

namespace {

constexpr int ToolSize = 24, PageSize = 28, TextSize = 16;  // pixels of the drawings

struct Drawing {
  const char *control, *source;
};
constexpr Drawing Drawings[] = {
    {"imgNew", "new"},       {"imgOpen", "open"},           {"imgFootNotes", "footnotes"},
    {"imgSave", "save"},     {"imgSaveAs", "save-as"},      {"imgPrint", "print"},
    {"imgSearch", "search"}, {"imgSpellCheck", "spelling"}, {"imgTime", "clock"},
};

QString DrawingOf(const QString& control) {
  for (const Drawing& drawing : Drawings)
    if (control == QLatin1String(drawing.control))
      return QStringLiteral(":/icons/%1.svg").arg(QLatin1String(drawing.source));
  return {};
}

/// Images that act when the button goes down, as pressing them opens something.
bool ActsOnPress(const QString& name) {
  return name == QLatin1String("imgNew") || name == QLatin1String("imgOpen") ||
         name == QLatin1String("imgFootNotes");
}

/// An image that acts.  Where the window is narrow it gives up the room around its drawing first.
class ImageButton : public QToolButton {
 public:
  explicit ImageButton(int size) {
    setIconSize({size, size});
    setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
  }
  QSize minimumSizeHint() const override {
    constexpr int room = 2;
    return {iconSize().width() + room, sizeHint().height()};
  }
};

/// A button whose caption may grow without pushing its neighbours about.  Where the window is narrow it gives
/// up the room beside its words before the buttons would lie over each other.
class CaptionButton : public QPushButton {
 public:
  explicit CaptionButton(QString longest) : longest_(std::move(longest)) {
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
  }
  QSize sizeHint() const override { return WithRoom(QStringLiteral("Resume Editing"), 28); }
  QSize minimumSizeHint() const override { return WithRoom(longest_, 10); }

 private:
  QSize WithRoom(const QString& words, int room) const {
    const int longest = qMax(fontMetrics().horizontalAdvance(words), fontMetrics().horizontalAdvance(text()));
    return {longest + room, qMax(30, fontMetrics().height() + 12)};
  }
  QString longest_;
};

/// A drawing that does nothing.  It is painted anew each time, so that it follows the desktop's colours and
/// the scale of the screen that the window is on.
class Decoration : public QWidget {
 public:
  explicit Decoration(QIcon icon) : icon_(std::move(icon)) { setFixedSize(TextSize, TextSize); }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    icon_.paint(&painter, rect());
  }

 private:
  QIcon icon_;
};

QString LongestCaption(const QString& button) {
  if (button == QLatin1String("cmdTaxRate")) return QStringLiteral("Tax Rate: 8.875%");
  if (button == QLatin1String("cmdPreview")) return QStringLiteral("Resume Editing");
  return frame()[button].Caption();
}

/// A window that a command has opened swallows the release of the image that was pressed for it.
void ClearPressedBorder(QToolButton& button) {
  if (QApplication::mouseButtons() != Qt::NoButton) return;
  button.setDown(false);
  editing.ButtonPressed = false;
}

QFrame* MakeRule(QFrame::Shape shape) {
  auto* rule = new QFrame;
  rule->setFrameShape(shape);
  rule->setFrameShadow(QFrame::Plain);
  rule->setForegroundRole(QPalette::Mid);
  return rule;
}

QHBoxLayout* MakeRow(QWidget& bar, int margin, int spacing) {
  auto* row = new QHBoxLayout(&bar);
  row->setContentsMargins(10, margin, 10, margin);
  row->setSpacing(spacing);
  return row;
}

}  // namespace

void FrameWindow::Keep(const QString& name, QWidget* widget) {
  Control& control = frame()[name];
  widget->setObjectName(name);
  // A label speaks its words, and a button its caption; an image has no words but what its tool tip says.
  if (qobject_cast<QToolButton*>(widget)) widget->setAccessibleName(control.ToolTip());
  widgets_.insert(&control, widget);
  Follow(control, *widget);
}

void FrameWindow::AddImage(QHBoxLayout& row, const QString& name, int size) {
  auto* button = new ImageButton(size);
  button->setAutoRaise(true);
  button->setFocusPolicy(Qt::NoFocus);
  button->setCursor(Qt::PointingHandCursor);
  if (const QString drawing = DrawingOf(name); !drawing.isEmpty()) button->setIcon(IconOf(drawing));
  connect(button, &QToolButton::pressed, this, [] { editing.ButtonPressed = true; });
  connect(button, &QToolButton::released, this, [] { editing.ButtonPressed = false; });
  if (ActsOnPress(name)) {
    // After the press has been dealt with, as the command may open a window.
    connect(button, &QToolButton::pressed, this, [this, name, button] {
      QTimer::singleShot(0, this, [name, button = QPointer(button)] {
        FrameClicked(name);
        if (button) ClearPressedBorder(*button);
      });
    });
  } else {
    connect(button, &QToolButton::clicked, this, [name] { FrameClicked(name); });
  }
  row.addWidget(button);
  Keep(name, button);
}

void FrameWindow::AddDecoration(QHBoxLayout& row, const QString& name) {
  auto* image = new Decoration(IconOf(DrawingOf(name)));
  row.addWidget(image);
  image->setObjectName(name);
}

void FrameWindow::AddButton(QHBoxLayout& row, const QString& name) {
  auto* button = new CaptionButton(LongestCaption(name));
  button->setFocusPolicy(Qt::ClickFocus);
  connect(button, &QPushButton::clicked, this, [name] { FrameClicked(name); });
  row.addWidget(button);
  Keep(name, button);
}

QWidget* FrameWindow::AddLabel(const QString& name, Qt::TextElideMode elide, Qt::Alignment alignment) {
  auto* label = new ElidedLabel(elide);
  label->setAlignment(alignment | Qt::AlignVCenter);
  Keep(name, label);
  return label;
}

QWidget* FrameWindow::MakeToolBar() {
  auto* bar = new QWidget;
  bar->setObjectName(QStringLiteral("picTop"));
  QHBoxLayout* row = MakeRow(*bar, 6, 3);
  for (const char* name : {"imgNew", "imgOpen", "imgFootNotes", "imgSave", "imgSaveAs", "imgPrint"})
    AddImage(*row, QString::fromLatin1(name), ToolSize);
  row->addWidget(MakeRule(QFrame::VLine));
  for (const char* name : {"imgSearch", "imgSpellCheck"}) AddImage(*row, QString::fromLatin1(name), ToolSize);
  row->addWidget(MakeRule(QFrame::VLine));
  for (const char* name : {"cmdTaxRate", "cmdReCalc", "cmdPreview", "cmdClearMem"})
    AddButton(*row, QString::fromLatin1(name));
  row->addStretch();
  QWidget* caption = AddLabel(QStringLiteral("lblPage"), Qt::ElideRight, Qt::AlignRight);
  caption->setFont(QFont(QStringLiteral("Arial"), caption->font().pointSize()));
  row->addWidget(caption);
  row->addSpacing(4);
  for (int k = 0; k < PageCount; ++k) AddImage(*row, QStringLiteral("imgPage(%1)").arg(k), PageSize);
  return bar;
}

QWidget* FrameWindow::MakeInfoBar() {
  auto* bar = new QWidget;
  bar->setObjectName(QStringLiteral("picInfo"));
  QHBoxLayout* row = MakeRow(*bar, 4, 8);
  row->addWidget(AddLabel(QStringLiteral("lblDir"), Qt::ElideMiddle, Qt::AlignLeft));
  row->addStretch();
  AddDecoration(*row, QStringLiteral("imgTime"));
  row->addWidget(AddLabel(QStringLiteral("lblEvent"), Qt::ElideRight, Qt::AlignRight));
  return bar;
}

QWidget* FrameWindow::MakeStrip() {
  strip_ = new Strip;
  Keep(QStringLiteral("lblStrip"), strip_->Text());
  for (int k = 0; k < Strip::Buttons; ++k) {
    const QString name = QStringLiteral("cmdStrip(%1)").arg(k);
    connect(strip_->Button(k), &QPushButton::clicked, this, [name] { FrameClicked(name); });
    Keep(name, strip_->Button(k));
  }
  connect(strip_->Close(), &QToolButton::clicked, this, [] { CloseStrip(); });
  strip_->Follow(frame()[QStringLiteral("lblStrip")]);
  return strip_;
}

QWidget* FrameWindow::MakeSheetRow() {
  auto* bar = new QWidget;
  auto* row = new QHBoxLayout(bar);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(0);
  sheet_ = new SheetView;
  row->addWidget(sheet_, 1);
  scrollBar_ = new QScrollBar(Qt::Vertical);
  scrollBar_->setObjectName(QStringLiteral("VScroll1"));
  scrollBar_->setAccessibleName(tr("Slides the sheet"));
  row->addWidget(scrollBar_);
  return bar;
}

QWidget* FrameWindow::MakeStatusBar() {
  auto* bar = new QWidget;
  bar->setObjectName(QStringLiteral("picBottom"));
  QHBoxLayout* row = MakeRow(*bar, 4, 16);
  auto* labels = new QWidget;
  auto* inside = new QHBoxLayout(labels);
  inside->setContentsMargins(0, 0, 0, 0);
  inside->setSpacing(16);
  for (const char* name : {"lblTextPos", "lblHighestPage", "lblCurPos", "lblTextNum"})
    inside->addWidget(AddLabel(QString::fromLatin1(name), Qt::ElideRight, Qt::AlignLeft), 1);
  statusLine_ = new StatusLine(labels, AddLabel(QStringLiteral("lblStatus"), Qt::ElideRight, Qt::AlignLeft));
  connect(statusLine_, &StatusLine::Read, this, [] { ClearStatusBar(); });
  row->addWidget(statusLine_, 4);
  row->addWidget(AddLabel(QStringLiteral("lblTotal"), Qt::ElideRight, Qt::AlignRight), 1);
  return bar;
}

}  // namespace quillane
