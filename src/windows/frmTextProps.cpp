// The font of all text areas: tried on a sample here, and given to the pages by "Apply Changes" only.
#include <QCheckBox>
#include <QDialog>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>

#include "editing/colours.h"
#include "editing/user_font.h"
#include "model/proposal.h"
#include "model/report.h"
#include "qt/dialog_parts.h"
#include "qt/painter_surface.h"
#include "qt/windows.h"
#include "ui/desk.h"

namespace quillane {

namespace {

class TextPropsWindow : public QDialog {
 public:
  explicit TextPropsWindow(QWidget* parent);
  /// Every way out but "Apply Changes" puts the font back that was there.
  void done(int result) override;

 private:
  QGroupBox* MakeFonts();
  QGroupBox* MakeSizes();
  QGroupBox* MakeColours();
  QWidget* MakeSample();
  QDialogButtonBox* MakeButtons();
  void ShowAll();
  void Touched();

  const UserFont before_ = proposal.UDP;
  FontList* lstFont_ = nullptr;
  ColourChoice* colours_ = nullptr;
  QCheckBox* chkItalic_ = nullptr;
  std::vector<QRadioButton*> optFontSize_;
  QLabel *lblFontName_ = nullptr, *lblFontColor_ = nullptr;
  QLineEdit* txtSample_ = nullptr;
};

TextPropsWindow::TextPropsWindow(QWidget* parent) : QDialog(parent) {
  setObjectName(QStringLiteral("frmTextProps"));
  setWindowTitle(QStringLiteral("User-Defined Font"));
  auto* grid = new QGridLayout(this);
  grid->setHorizontalSpacing(14);
  grid->setVerticalSpacing(12);
  grid->addWidget(MakeFonts(), 0, 0, 2, 1);
  grid->addWidget(MakeSizes(), 0, 1);
  grid->addWidget(MakeColours(), 1, 1);
  grid->addWidget(MakeSample(), 2, 0, 1, 2);
  grid->addWidget(MakeButtons(), 3, 0, 1, 2);
  grid->setColumnStretch(0, 1);
  grid->setRowStretch(1, 1);
  ShowAll();
  lstFont_->setFocus();
}

QGroupBox* TextPropsWindow::MakeFonts() {
  auto* box = new QGroupBox(QStringLiteral("Font"));
  lstFont_ = new FontList([this](const QString& name) {
    proposal.UDP.FontName = name;
    Touched();
  });
  lblFontName_ = PlainLabel(QStringLiteral("lblFontName"), {});
  lblFontName_->setWordWrap(true);
  chkItalic_ = Named(new QCheckBox(QStringLiteral("&Italic")), QStringLiteral("chkItalic"));
  connect(chkItalic_, &QCheckBox::toggled, this, [this](bool italic) {
    proposal.UDP.FontItalic = italic;
    Touched();
  });
  auto* layout = new QVBoxLayout(box);
  layout->addWidget(lblFontName_);
  layout->addWidget(lstFont_, 1);
  layout->addWidget(chkItalic_, 0, Qt::AlignLeft);
  return box;
}

QGroupBox* TextPropsWindow::MakeSizes() {
  auto* box = new QGroupBox(QStringLiteral("Size"));
  auto* layout = new QVBoxLayout(box);
  for (const char* text : FontSizeCaptions) {
    const QString caption = QString::fromLatin1(text);
    auto* option = Named(new QRadioButton(caption),
                         QStringLiteral("optFontSize(%1)").arg(static_cast<int>(optFontSize_.size())));
    connect(option, &QRadioButton::clicked, this, [this, caption] {
      proposal.UDP.FontSize = SizeInCaption(caption);
      Touched();
    });
    layout->addWidget(option, 0, Qt::AlignLeft);
    optFontSize_.push_back(option);
  }
  return box;
}

QGroupBox* TextPropsWindow::MakeColours() {
  auto* box = new QGroupBox(QStringLiteral("Color"));
  lblFontColor_ = PlainLabel(QStringLiteral("lblFontColor"), {});
  colours_ = new ColourChoice([this](Color color) {
    proposal.UDP.FontColor = color;
    Touched();
  });
  auto* more = Named(new QPushButton(QStringLiteral("More Colors")), QStringLiteral("cmdColors"));
  more->setAutoDefault(false);
  connect(more, &QPushButton::clicked, this, [this] {
    desk().ShowWindow(QStringLiteral("frmRGB"), Modality::Modal);
    Touched();
  });
  auto* layout = new QVBoxLayout(box);
  layout->addWidget(lblFontColor_);
  layout->addWidget(colours_, 0, Qt::AlignLeft);
  layout->addWidget(more);
  layout->addStretch(1);
  return box;
}

/// White as paper, whatever the desktop's colours, since that is where the text will stand.
QWidget* TextPropsWindow::MakeSample() {
  txtSample_ = Named(new QLineEdit, QStringLiteral("txtSample"), QStringLiteral("Sample"));
  txtSample_->setReadOnly(true);
  txtSample_->setFocusPolicy(Qt::ClickFocus);
  txtSample_->setMinimumHeight(fontMetrics().height() * 3);
  txtSample_->setTextMargins(8, 0, 8, 0);
  return txtSample_;
}

QDialogButtonBox* TextPropsWindow::MakeButtons() {
  auto* buttons = new QDialogButtonBox;
  QPushButton* byDefault =
      AddButton(*buttons, "cmdDefault", "Set these Font Properties as Default", QDialogButtonBox::ResetRole);
  AddButton(*buttons, "cmdOK", "Apply Changes", QDialogButtonBox::AcceptRole);
  AddButton(*buttons, "cmdCancel", "Cancel", QDialogButtonBox::RejectRole);
  connect(byDefault, &QPushButton::clicked, this, [] { Guarded("cmdDefault_Click", MakeUserFontDefault); });
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  return buttons;
}

void TextPropsWindow::ShowAll() {
  const UserFont& font = proposal.UDP;
  lstFont_->ShowFont(font.FontName);
  Quietly(chkItalic_, [&](QCheckBox& box) { box.setChecked(font.FontItalic); });
  for (QRadioButton* option : optFontSize_)
    option->setChecked(SizeInCaption(option->text()) == font.FontSize);
  Touched();
}

void TextPropsWindow::Touched() {
  const UserFontTexts texts = ShownUserFont();
  lblFontName_->setText(texts.name);
  lblFontColor_->setText(texts.color);
  colours_->ShowColour(proposal.UDP.FontColor);
  QFont sample(texts.font.name);
  if (texts.font.size > 0) sample.setPointSizeF(static_cast<double>(texts.font.size));
  sample.setItalic(texts.font.italic);
  txtSample_->setFont(sample);
  QPalette paper = palette();
  paper.setColor(QPalette::Base, Qt::white);
  paper.setColor(QPalette::Text, ToQColor(proposal.UDP.FontColor));
  txtSample_->setPalette(paper);
  txtSample_->setText(texts.sample);
  txtSample_->setCursorPosition(0);
}

void TextPropsWindow::done(int result) {
  if (result == Accepted)
    Guarded("ApplyUserFont", GiveUserFontToPages);
  else
    proposal.UDP = before_;
  QDialog::done(result);
}

const RegisteredWindow registered("frmTextProps", Make<TextPropsWindow>);

}  // namespace

}  // namespace quillane
