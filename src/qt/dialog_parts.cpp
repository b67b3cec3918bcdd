#include "qt/dialog_parts.h"

#include <QGridLayout>
#include <QLabel>
#include <QPainter>
#include <QSignalBlocker>

#include "editing/colours.h"
#include "platform/codepage.h"
#include "qt/painter_surface.h"
#include "ui/desk.h"
#include "ui/font_twins.h"

namespace quillane {

QLabel* PlainLabel(const QString& name, const QString& text) {
  auto* label = Named(new QLabel(text), name);
  label->setTextFormat(Qt::PlainText);
  return label;
}

QPushButton* AddButton(QDialogButtonBox& buttons, const char* name, const char* caption,
                       QDialogButtonBox::ButtonRole role) {
  QPushButton* button =
      Named(buttons.addButton(QString::fromLatin1(caption), role), QString::fromLatin1(name));
  button->setAutoDefault(false);
  if (role == QDialogButtonBox::AcceptRole) button->setDefault(true);
  return button;
}

ColourButton::ColourButton(Color color, const QString& colourName) : color_(color) {
  setAccessibleName(colourName);
  setToolTip(colourName);
  setCheckable(true);
  setFocusPolicy(Qt::StrongFocus);
  setBackgroundRole(QPalette::Button);
  QPalette colours = palette();
  colours.setColor(QPalette::Button, ToQColor(color));
  setPalette(colours);
}

QSize ColourButton::sizeHint() const {
  const int unit = fontMetrics().height();
  return {unit * 5 / 2, unit * 2};
}

void ColourButton::paintEvent(QPaintEvent*) {
  constexpr double gap = 3, radius = 3;
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QRectF whole = QRectF(rect()).adjusted(1, 1, -1, -1);
  if (isChecked() || hasFocus()) {
    painter.setPen(QPen(palette().color(isChecked() ? QPalette::WindowText : QPalette::Highlight), 1.5,
                        hasFocus() ? Qt::DotLine : Qt::SolidLine));
    painter.drawRoundedRect(whole, radius + gap - 1, radius + gap - 1);
  }
  QColor edge = palette().color(QPalette::WindowText);
  edge.setAlpha(110);
  painter.setPen(QPen(edge, 1));
  painter.setBrush(isDown() ? ToQColor(color_).darker(120) : ToQColor(color_));
  painter.drawRoundedRect(whole.adjusted(gap, gap, -gap, -gap), radius, radius);
}

ColourChoice::ColourChoice(const std::function<void(Color)>& chosen) {
  constexpr int perRow = 4;
  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setSpacing(4);
  for (size_t i = 0; i < ButtonColours.size(); ++i) {
    const int number = static_cast<int>(i);
    auto* button = Named(new ColourButton(ButtonColours[i].color, QString::fromLatin1(ButtonColours[i].name)),
                         QStringLiteral("cmdColor(%1)").arg(number));
    connect(button, &QAbstractButton::clicked, this, [this, button, chosen] {
      chosen(button->GetColor());
      ShowColour(button->GetColor());
    });
    grid->addWidget(button, number / perRow, number % perRow);
    buttons_.push_back(button);
  }
}

void ColourChoice::ShowColour(Color color) {
  for (ColourButton* button : buttons_) button->setChecked(button->GetColor() == color);
}

FontList::FontList(const std::function<void(const QString&)>& chosen) {
  Named(this, QStringLiteral("lstFont"), QStringLiteral("Font"));
  setUniformItemSizes(true);
  // The name goes into the proposal's files, so it must be one that they can hold.
  QStringList names = WithTwins(desk().ScreenFonts());
  names.sort(Qt::CaseInsensitive);
  for (const QString& name : names)
    if (FoldToCodePage(name) == name) addItem(name);
  connect(this, &QListWidget::itemSelectionChanged, this, [this, chosen] {
    const QList<QListWidgetItem*> selected = selectedItems();
    if (!selected.isEmpty()) chosen(selected.first()->text());
  });
}

void FontList::ShowFont(const QString& name) {
  const QSignalBlocker quiet(this);
  const QList<QListWidgetItem*> found = findItems(name, Qt::MatchFixedString);
  setCurrentItem(found.isEmpty() ? nullptr : found.first());
  if (found.isEmpty()) return clearSelection();
  scrollToItem(found.first(), QAbstractItemView::PositionAtCenter);
}

// A list that gets the focus makes its first row the current one; here that would look like a choice.
void FontList::focusInEvent(QFocusEvent* event) {
  const bool chosen = !selectedItems().isEmpty();
  QListWidget::focusInEvent(event);
  if (!chosen) setCurrentItem(nullptr);
}

}  // namespace quillane
