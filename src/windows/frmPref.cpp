// The user preferences.
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QPushButton>
#include <QVBoxLayout>
#include <array>

#include "model/report.h"
#include "qt/windows.h"
#include "settings/preferences.h"

namespace quillane {

namespace {

struct Box {
  const char *name, *caption;
  bool PreferenceBoxes::*checked;
};
constexpr std::array<Box, 7> Boxes = {{
    {"chkShowFUT", "Do Not Show Frequently Used Terms List at Start Up", &PreferenceBoxes::ShowFUT},
    {"chkMinimizeFUT", "Load Frequently Used Terms at Minimized State", &PreferenceBoxes::MinimizeFUT},
    {"chkShowCalc", "Do Not Show Calculator at Start Up", &PreferenceBoxes::ShowCalc},
    {"chkACEnable", "Disable Automatic Word Complete at Start Up", &PreferenceBoxes::ACEnable},
    {"chkACStart", "Remember Current Auto Word Complete Start Position", &PreferenceBoxes::ACStart},
    {"chkLoadDefaultFormat", "Do Not Load Default File Format for New Proposals",
     &PreferenceBoxes::LoadDefaultFormat},
    {"chkLoadFUT", "Always Load the Default Frequent Terms List at Start Up", &PreferenceBoxes::LoadFUT},
}};

void AddBoxes(QVBoxLayout& layout) {
  const PreferenceBoxes shown = BoxesFromPreferences();
  for (const Box& box : Boxes) {
    auto check = std::make_unique<QCheckBox>(QString::fromLatin1(box.caption));
    check->setObjectName(QLatin1String(box.name));
    check->setChecked(shown.*box.checked);
    layout.addWidget(check.release());
  }
}

PreferenceBoxes ReadBoxes(const QDialog& dialog) {
  PreferenceBoxes boxes{};
  for (const Box& box : Boxes)
    boxes.*box.checked = dialog.findChild<QCheckBox*>(QLatin1String(box.name))->isChecked();
  return boxes;
}

std::unique_ptr<QDialog> MakePreferencesWindow(QWidget* parent) {
  auto window = std::make_unique<QDialog>(parent);
  QDialog* dialog = window.get();
  dialog->setObjectName("frmPref");
  dialog->setWindowTitle(QStringLiteral("User Preferences"));

  auto* layout = new QVBoxLayout(dialog);
  AddBoxes(*layout);
  auto* buttons = new QDialogButtonBox;
  QPushButton* save = buttons->addButton(QStringLiteral("Save and Exit"), QDialogButtonBox::AcceptRole);
  save->setObjectName("cmdSave");
  save->setDefault(true);
  QPushButton* exit = buttons->addButton(QStringLiteral("Exit without Saving"), QDialogButtonBox::RejectRole);
  exit->setObjectName("cmdExit");
  layout->addWidget(buttons);

  QObject::connect(buttons, &QDialogButtonBox::rejected, dialog, &QDialog::reject);
  QObject::connect(buttons, &QDialogButtonBox::accepted, dialog, [dialog] {
    // What could not be saved stays in view, to be tried again or left.
    bool saved = false;
    Guarded("SaveUserPreferences", [&] { saved = SavePreferenceBoxes(ReadBoxes(*dialog)); });
    if (saved) dialog->accept();
  });
  return window;
}

const RegisteredWindow registered("frmPref", MakePreferencesWindow);

}  // namespace

}  // namespace quillane
