// "More Colors": any colour, mixed of red, green and blue.  The window itself shows the colour.
#include <QApplication>
#include <QDialog>
#include <QFormLayout>
#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>

#include "editing/colours.h"
#include "model/report.h"
#include "qt/dialog_parts.h"
#include "qt/painter_surface.h"
#include "qt/windows.h"

namespace quillane {

namespace {

class ColourWindow : public QDialog {
 public:
  explicit ColourWindow(QWidget* parent);

 private:
  struct Mixer {
    QScrollBar* bar = nullptr;
    QLabel *decimal = nullptr, *hex = nullptr;
  };
  Mixer AddBar(QGridLayout& grid, int column, const QString& bar, const QString& label,
               const QString& colour);
  QGridLayout* MakeBars();
  QFormLayout* MakeTexts();
  QLineEdit* AddText(QFormLayout& form, const QString& caption, const QString& name);
  QVBoxLayout* MakeSteps();
  QDialogButtonBox* MakeButtons();
  void SetBars(const ColourBars& bars);
  void Mix();

  std::array<Mixer, 3> mixers_;
  QLineEdit *txtHexValue_ = nullptr, *txtIntValue_ = nullptr, *txtHttpValue_ = nullptr;
  Color color_ = 0;
};

ColourWindow::ColourWindow(QWidget* parent) : QDialog(parent) {
  setObjectName(QStringLiteral("frmRGB"));
  setWindowTitle(QStringLiteral("More Colors"));
  // The controls stand on a panel of the desktop's own colours, so that they can be read on any colour.
  auto* panel = new QFrame;
  panel->setAutoFillBackground(true);
  QPalette own = QApplication::palette();
  own.setColor(QPalette::Window, own.color(QPalette::Window));  // said here, so that it is not inherited
  panel->setPalette(own);
  panel->setFrameShape(QFrame::StyledPanel);
  auto* inside = new QVBoxLayout(panel);
  inside->setContentsMargins(16, 14, 16, 14);
  inside->setSpacing(12);
  auto* upper = new QHBoxLayout;
  upper->setSpacing(24);
  upper->addLayout(MakeBars());
  auto* texts = new QVBoxLayout;
  texts->addLayout(MakeTexts());
  texts->addStretch(1);
  texts->addLayout(MakeSteps());
  upper->addLayout(texts, 1);
  inside->addLayout(upper);
  inside->addWidget(MakeButtons());
  auto* layout = new QVBoxLayout(this);
  constexpr int edge = 18, top = 96;
  layout->setContentsMargins(edge, top, edge, edge);
  layout->addWidget(panel);
  SetBars(BarsOf(ColourToMix()));
  mixers_[0].bar->setFocus();
}

ColourWindow::Mixer ColourWindow::AddBar(QGridLayout& grid, int column, const QString& bar,
                                         const QString& label, const QString& colour) {
  auto* scroll = Named(new QScrollBar(Qt::Vertical), bar, colour);
  scroll->setRange(0, TopOfBar);
  scroll->setPageStep(NormalStep);
  scroll->setInvertedAppearance(true);  // more of a colour is further up
  scroll->setInvertedControls(false);
  scroll->setFocusPolicy(Qt::StrongFocus);
  scroll->setMinimumHeight(170);
  const auto number = [&](int index, const QString& spoken) {
    auto* text = PlainLabel(QStringLiteral("%1(%2)").arg(label).arg(index), {});
    text->setAccessibleName(spoken);
    text->setAlignment(Qt::AlignCenter);
    text->setMinimumWidth(fontMetrics().horizontalAdvance(QStringLiteral("00000")));
    return text;
  };
  Mixer mixer{scroll, number(0, colour + QStringLiteral(", decimal")),
              number(1, colour + QStringLiteral(", hexadecimal"))};
  auto* caption = PlainLabel(QStringLiteral("lbl") + bar, colour);
  caption->setAlignment(Qt::AlignCenter);
  grid.addWidget(caption, 0, column);
  grid.addWidget(scroll, 1, column, Qt::AlignHCenter);
  grid.addWidget(mixer.decimal, 2, column);
  grid.addWidget(mixer.hex, 3, column);
  grid.setRowStretch(1, 1);
  connect(scroll, &QScrollBar::valueChanged, this, [this] { Mix(); });
  // A bar does not show by itself that it has the keys.
  connect(qApp, &QApplication::focusChanged, caption, [caption, scroll](const QWidget*, const QWidget* now) {
    QFont font = caption->font();
    font.setBold(now == scroll);
    caption->setFont(font);
  });
  return mixer;
}

QGridLayout* ColourWindow::MakeBars() {
  auto* grid = new QGridLayout;
  grid->setHorizontalSpacing(14);
  grid->setVerticalSpacing(6);
  mixers_ = {
      AddBar(*grid, 0, QStringLiteral("Red"), QStringLiteral("lblR"), QStringLiteral("Red")),
      AddBar(*grid, 1, QStringLiteral("Grn"), QStringLiteral("lblG"), QStringLiteral("Green")),
      AddBar(*grid, 2, QStringLiteral("Blu"), QStringLiteral("lblB"), QStringLiteral("Blue")),
  };
  return grid;
}

QLineEdit* ColourWindow::AddText(QFormLayout& form, const QString& caption, const QString& name) {
  auto* box = Named(new QLineEdit, name);
  box->setReadOnly(true);
  box->setMinimumWidth(fontMetrics().horizontalAdvance(QLatin1Char('0')) * 15);
  form.addRow(caption, box);
  return box;
}

QFormLayout* ColourWindow::MakeTexts() {
  auto* form = new QFormLayout;
  form->setVerticalSpacing(10);
  txtHexValue_ = AddText(*form, QStringLiteral("He&xadecimal"), QStringLiteral("txtHexValue"));
  txtIntValue_ = AddText(*form, QStringLiteral("&Number"), QStringLiteral("txtIntValue"));
  txtHttpValue_ = AddText(*form, QStringLiteral("&Web page"), QStringLiteral("txtHttpValue"));
  return form;
}

QVBoxLayout* ColourWindow::MakeSteps() {
  auto* column = new QVBoxLayout;
  column->setSpacing(6);
  const auto add = [&](const QString& name, const QString& caption, int step) {
    auto* button = Named(new QPushButton(caption), name);
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, [this, step] {
      for (const Mixer& mixer : mixers_) mixer.bar->setPageStep(step);
    });
    column->addWidget(button);
  };
  add(QStringLiteral("cmdSmInc"), QStringLiteral("&Small Increments"), SmallStep);
  add(QStringLiteral("cmdNormInc"), QStringLiteral("N&ormal Increments"), NormalStep);
  return column;
}

QDialogButtonBox* ColourWindow::MakeButtons() {
  auto* buttons = new QDialogButtonBox;
  AddButton(*buttons, "cmdOK", "Apply", QDialogButtonBox::AcceptRole);
  AddButton(*buttons, "cmdCancel", "Cancel", QDialogButtonBox::RejectRole);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  connect(buttons, &QDialogButtonBox::accepted, this, [this] {
    Guarded("RGB_OK", [this] { ApplyMixedColour(color_); });
    accept();
  });
  return buttons;
}

void ColourWindow::SetBars(const ColourBars& bars) {
  const std::array values = {bars.red, bars.green, bars.blue};
  for (size_t i = 0; i < values.size(); ++i)
    Quietly(mixers_[i].bar, [&](QScrollBar& bar) { bar.setValue(values[i]); });
  Mix();
}

void ColourWindow::Mix() {
  const MixedColour mixed =
      Mixed({mixers_[0].bar->value(), mixers_[1].bar->value(), mixers_[2].bar->value()});
  for (size_t i = 0; i < mixers_.size(); ++i) {
    mixers_[i].decimal->setText(mixed.decimal[i]);
    mixers_[i].hex->setText(mixed.hex[i]);
  }
  txtHexValue_->setText(mixed.hexValue);
  txtIntValue_->setText(mixed.intValue);
  txtHttpValue_->setText(mixed.httpValue);
  color_ = mixed.color;
  QPalette colours = palette();
  colours.setColor(QPalette::Window, ToQColor(color_));
  setPalette(colours);
}

const RegisteredWindow registered("frmRGB", Make<ColourWindow>);

}  // namespace

}  // namespace quillane
