// "Label Properties": every control acts on the page at once; Cancel, Escape and the close box put it back.
#include <QCheckBox>
#include <QDialog>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>

#include "editing/label_props.h"
#include "model/report.h"
#include "platform/codepage.h"
#include "qt/dialog_parts.h"
#include "qt/windows.h"
#include "ui/desk.h"

namespace quillane {

namespace {

/// What a person should know before typing into the caption; empty for a label of her own words.
QString RemarkOn(CaptionWords words) {
  switch (words) {
    case CaptionWords::Title:
      return QStringLiteral("This is the title of the proposal. It changes on all pages.");
    case CaptionWords::SubTitle:
      return QStringLiteral(
          "The words before the page number are the subtitle. Change them with "
          "\"Proposal Page Titles and Subtitles\" in the Edit menu.");
    case CaptionWords::PageNumber:
      return QStringLiteral("Pages are counted for you; this line is always up to date.");
    default:
      return {};
  }
}

/// On the window's ground, so that nobody tries to type there.
void LookReadOnly(QLineEdit& box) {
  QPalette colours = box.palette();
  colours.setColor(QPalette::Base, colours.color(QPalette::Window));
  box.setPalette(colours);
}

class LabelPropsWindow : public QDialog {
 public:
  explicit LabelPropsWindow(QWidget* parent);
  void done(int result) override;

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  QGridLayout* MakeCaption();
  QGroupBox* MakeFonts();
  QGroupBox* MakeSizes();
  QGroupBox* MakeStyles();
  QGroupBox* MakeColours();
  QDialogButtonBox* MakeButtons();
  QCheckBox* MakeStyle(const QString& name, const QString& caption, bool checked, void (*set)(bool));
  void CaptionTyped(const QString& text);

  QLineEdit* txtCaption_ = nullptr;
  FontList* lstFont_ = nullptr;
  ColourChoice* colours_ = nullptr;
  QLabel *lblFont_ = nullptr, *lblFontSize_ = nullptr;
};

LabelPropsWindow::LabelPropsWindow(QWidget* parent) : QDialog(parent) {
  setObjectName(QStringLiteral("frmLabelProps"));
  setWindowTitle(QStringLiteral("Label Properties"));
  LoadLabelProps();
  auto* grid = new QGridLayout(this);
  grid->setHorizontalSpacing(14);
  grid->setVerticalSpacing(12);
  grid->addLayout(MakeCaption(), 0, 0, 1, 2);
  grid->addWidget(MakeFonts(), 1, 0, 3, 1);
  grid->addWidget(MakeSizes(), 1, 1);
  grid->addWidget(MakeStyles(), 2, 1);
  grid->addWidget(MakeColours(), 3, 1);
  grid->addWidget(MakeButtons(), 4, 0, 1, 2);
  grid->setColumnStretch(0, 1);
  grid->setRowStretch(3, 1);
  if (txtCaption_->isReadOnly()) {
    lstFont_->setFocus();
  } else {
    txtCaption_->setFocus();
    txtCaption_->selectAll();
  }
}

QGridLayout* LabelPropsWindow::MakeCaption() {
  txtCaption_ = Named(new QLineEdit(labelEdit.LabelCaption), QStringLiteral("txtCaption"));
  txtCaption_->setAccessibleName(QStringLiteral("Caption"));
  const CaptionWords words = WordsOfCaption();
  txtCaption_->setReadOnly(words != CaptionWords::Own && words != CaptionWords::Title);
  if (txtCaption_->isReadOnly()) LookReadOnly(*txtCaption_);
  if (words == CaptionWords::OfEachLabel) {
    txtCaption_->setPlaceholderText(QStringLiteral("Several labels are selected; each keeps its own words."));
    txtCaption_->clear();
  }
  connect(txtCaption_, &QLineEdit::textChanged, this, [this](const QString& text) { CaptionTyped(text); });
  auto* label = PlainLabel(QStringLiteral("lblCaption"), QStringLiteral("&Caption"));
  label->setBuddy(txtCaption_);
  auto* layout = new QGridLayout;
  layout->setHorizontalSpacing(10);
  layout->setVerticalSpacing(6);
  layout->addWidget(label, 0, 0);
  layout->addWidget(txtCaption_, 0, 1);
  if (const QString remark = RemarkOn(words); !remark.isEmpty()) {
    auto* text = PlainLabel(QStringLiteral("lblRemark"), remark);
    text->setWordWrap(true);
    txtCaption_->setAccessibleDescription(remark);
    layout->addWidget(text, 1, 1);
  }
  return layout;
}

void LabelPropsWindow::CaptionTyped(const QString& text) {
  const QString kept = FoldToCodePage(text);
  if (kept != text) {
    const int caret = txtCaption_->cursorPosition();
    Quietly(txtCaption_, [&](QLineEdit& box) { box.setText(kept); });
    txtCaption_->setCursorPosition(caret);
  }
  Guarded("txtCaption_Change", [&] { SetLabelCaption(kept); });
}

QGroupBox* LabelPropsWindow::MakeFonts() {
  auto* box = new QGroupBox(QStringLiteral("Font"));
  lblFont_ = PlainLabel(QStringLiteral("lblFont"), LabelFontLine());
  lblFont_->setWordWrap(true);
  lstFont_ = new FontList([this](const QString& name) {
    Guarded("lstFont_Click", [&] { SetLabelFontName(name); });
    lblFont_->setText(LabelFontLine());
  });
  lstFont_->ShowFont(labelEdit.CurrentLabelRec.FontName);
  auto* layout = new QVBoxLayout(box);
  layout->addWidget(lblFont_);
  layout->addWidget(lstFont_, 1);
  return box;
}

QGroupBox* LabelPropsWindow::MakeSizes() {
  constexpr int perRow = 5;
  auto* box = new QGroupBox(QStringLiteral("Size"));
  lblFontSize_ = PlainLabel(QStringLiteral("lblFontSize"), LabelSizeLine());
  auto* layout = new QGridLayout(box);
  layout->setSpacing(4);
  layout->addWidget(lblFontSize_, 0, 0, 1, perRow);
  layout->setRowMinimumHeight(0, fontMetrics().height() * 3 / 2);
  int number = 0;
  for (const int size : LabelSizes) {
    auto* button = Named(new QPushButton(QString::number(size)), QStringLiteral("cmdSize(%1)").arg(number),
                         QStringLiteral("Size %1").arg(size));
    button->setAutoDefault(false);
    button->setFixedWidth(fontMetrics().horizontalAdvance(QStringLiteral("00000")));
    connect(button, &QPushButton::clicked, this, [this, size] {
      Guarded("cmdSize_Click", [size] { SetLabelFontSize(static_cast<float>(size)); });
      lblFontSize_->setText(LabelSizeLine());
    });
    layout->addWidget(button, 1 + number / perRow, number % perRow);
    ++number;
  }
  return box;
}

QCheckBox* LabelPropsWindow::MakeStyle(const QString& name, const QString& caption, bool checked,
                                       void (*set)(bool)) {
  auto* box = Named(new QCheckBox(caption), name);
  box->setChecked(checked);
  connect(box, &QCheckBox::toggled, this, [set](bool on) { Guarded("chk_Click", [&] { set(on); }); });
  return box;
}

QGroupBox* LabelPropsWindow::MakeStyles() {
  const LabelValues& shown = labelEdit.CurrentLabelRec;
  auto* box = new QGroupBox(QStringLiteral("Style"));
  auto* layout = new QHBoxLayout(box);
  layout->addWidget(
      MakeStyle(QStringLiteral("chkBold"), QStringLiteral("&Bold"), shown.FontBold, SetLabelBold));
  layout->addWidget(
      MakeStyle(QStringLiteral("chkItalic"), QStringLiteral("&Italic"), shown.FontItalic, SetLabelItalic));
  layout->addWidget(MakeStyle(QStringLiteral("chkUnderline"), QStringLiteral("&Underline"),
                              shown.FontUnderline, SetLabelUnderline));
  return box;
}

QGroupBox* LabelPropsWindow::MakeColours() {
  auto* box = new QGroupBox(QStringLiteral("Color"));
  colours_ =
      new ColourChoice([](Color color) { Guarded("cmdColor_Click", [color] { SetLabelColor(color); }); });
  colours_->ShowColour(labelEdit.LabelColor);
  auto* more = Named(new QPushButton(QStringLiteral("More Colors")), QStringLiteral("cmdColors"));
  more->setAutoDefault(false);
  connect(more, &QPushButton::clicked, this, [this] {
    labelEdit.LabelColorMode = true;
    desk().ShowWindow(QStringLiteral("frmRGB"), Modality::Modal);
    colours_->ShowColour(labelEdit.LabelColor);
  });
  auto* layout = new QVBoxLayout(box);
  layout->addWidget(colours_, 0, Qt::AlignLeft);
  layout->addWidget(more);
  layout->addStretch(1);
  return box;
}

QDialogButtonBox* LabelPropsWindow::MakeButtons() {
  auto* buttons = new QDialogButtonBox;
  AddButton(*buttons, "cmdOK", "OK", QDialogButtonBox::AcceptRole);
  AddButton(*buttons, "cmdCancel", "Cancel", QDialogButtonBox::RejectRole);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  return buttons;
}

/// Beside the label, not over it: whoever changes it wants to watch.
void LabelPropsWindow::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  const QWidget* frameWindow = parentWidget();
  if (!frameWindow) return;
  constexpr int margin = 24;
  const QRect frame = frameWindow->window()->frameGeometry();
  const bool labelIsLeft = labelEdit.CurrentLabelRec.Left < sheet::Centre;
  move(labelIsLeft ? frame.right() - frameGeometry().width() - margin : frame.left() + margin,
       frame.center().y() - height() / 2);
}

void LabelPropsWindow::done(int result) {
  if (result != Accepted) labelEdit.LabelDialogCancelled = true;
  Guarded("UnloadLabelProps", UnloadLabelProps);
  QDialog::done(result);
}

std::unique_ptr<QDialog> MakeLabelPropsWindow(QWidget* parent) {
  std::unique_ptr<QDialog> window;
  Guarded("LoadLabelProps", [&] { window = std::make_unique<LabelPropsWindow>(parent); });
  return window;
}

const RegisteredWindow registered("frmLabelProps", MakeLabelPropsWindow);

}  // namespace

}  // namespace quillane
