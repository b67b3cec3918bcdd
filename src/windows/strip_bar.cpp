#include "windows/strip_bar.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QHBoxLayout>
#include <QPainter>

#include "qt/icons.h"

namespace quillane {

namespace {

constexpr int DrawingSize = 20, CloseSize = 16;  // pixels
constexpr std::chrono::seconds TimeToRead{8};
constexpr double Tint = 0.14, Edge = 0.45;  // how much of the desktop's accent the ground and its edge take

QColor Blend(const QColor& ground, const QColor& accent, double share) {
  const auto mix = [share](int from, int to) { return static_cast<int>(from + (to - from) * share); };
  return {mix(ground.red(), accent.red()), mix(ground.green(), accent.green()),
          mix(ground.blue(), accent.blue())};
}

/// What appears by itself is an alert to a screen reader, which reads it at once.
class AlertAccessible : public QAccessibleWidget {
 public:
  AlertAccessible(QWidget* widget, const QLabel* words)
      : QAccessibleWidget(widget, QAccessible::AlertMessage), words_(words) {}
  QString text(QAccessible::Text kind) const override {
    return kind == QAccessible::Name ? words_->text() : QAccessibleWidget::text(kind);
  }

 private:
  const QLabel* words_;
};

QAccessibleInterface* MakeAlert(const QString&, QObject* object) {
  if (auto* strip = qobject_cast<Strip*>(object)) return new AlertAccessible(strip, strip->Text());
  if (auto* line = qobject_cast<StatusLine*>(object))
    return new AlertAccessible(line, qobject_cast<QLabel*>(line->widget(1)));
  return nullptr;
}

void HaveRead(QWidget& widget) {
  if (!QAccessible::isActive()) return;
  for (const auto kind : {QAccessible::NameChanged, QAccessible::ObjectShow, QAccessible::Alert}) {
    QAccessibleEvent event(&widget, kind);
    QAccessible::updateAccessibility(&event);
  }
}

void InstallAlerts() {
  static const bool installed = (QAccessible::installFactory(MakeAlert), true);
  static_cast<void>(installed);
}

}  // namespace

Strip::Strip() : text_(new QLabel), close_(new QToolButton) {
  InstallAlerts();
  setObjectName(QStringLiteral("picStrip"));
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(12, 6, 8, 6);
  row->setSpacing(8);
  auto* drawing = new QLabel;
  drawing->setPixmap(IconOf(QStringLiteral(":/icons/notice.svg")).pixmap(DrawingSize));
  row->addWidget(drawing, 0, Qt::AlignTop);
  text_->setTextFormat(Qt::PlainText);
  text_->setWordWrap(true);
  text_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
  row->addWidget(text_, 1);
  for (QPushButton*& button : buttons_) {
    button = new QPushButton;
    button->setFocusPolicy(Qt::TabFocus);
    row->addWidget(button);
  }
  close_->setObjectName(QStringLiteral("cmdStripClose"));
  close_->setIcon(IconOf(QStringLiteral(":/icons/close.svg")));
  close_->setIconSize({CloseSize, CloseSize});
  close_->setAutoRaise(true);
  close_->setFocusPolicy(Qt::TabFocus);
  close_->setToolTip(tr("Close"));
  close_->setAccessibleName(tr("Close this notice"));
  row->addWidget(close_);
}

void Strip::Follow(const Control& lblStrip) {
  setVisible(lblStrip.Visible());
  if (lblStrip.Visible()) HaveRead(*this);
}

void Strip::changeEvent(QEvent* event) {
  QFrame::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) update();
}

void Strip::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const QColor ground = palette().color(QPalette::Window), accent = palette().color(QPalette::Highlight);
  painter.fillRect(rect(), Blend(ground, accent, Tint));
  painter.fillRect(QRect(0, height() - 1, width(), 1), Blend(ground, accent, Edge));
}

StatusLine::StatusLine(QWidget* labels, QWidget* line) {
  InstallAlerts();
  addWidget(labels);
  addWidget(line);
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
  timer_.setSingleShot(true);
  timer_.setInterval(TimeToRead);
  connect(&timer_, &QTimer::timeout, this, &StatusLine::Read);
}

void StatusLine::Follow(const Control& lblStatus) {
  setCurrentIndex(lblStatus.Visible() ? 1 : 0);
  if (!lblStatus.Visible()) return timer_.stop();
  timer_.start();
  HaveRead(*this);
}

}  // namespace quillane
