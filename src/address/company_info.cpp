#include "address/company_info.h"

#include <array>

#include "address/book.h"
#include "address/book_window.h"
#include "model/proposal.h"
#include "model/report.h"
#include "settings/preferences.h"
#include "ui/desk.h"

namespace quillane {

namespace {

AddressBook& book = addressBook;

/// A detail: its field, its label and where it is kept.
struct Detail {
  int field;
  const char* label;
  Setting setting;
  QString Preferences::*value;
};
constexpr std::array<Detail, 9> Details = {
    {{field::Name, "Company Name", Setting::CompanyName, &Preferences::CompanyName},
     {field::Address1, "Address 1", Setting::CompanyAddress1, &Preferences::CompanyAddress1},
     {field::Address2, "Address 2", Setting::CompanyAddress2, &Preferences::CompanyAddress2},
     {field::City, "City, State Zip", Setting::CompanyCity, &Preferences::CompanyCity},
     {field::Phone, "Phone", Setting::CompanyPhone, &Preferences::CompanyPhone},
     {field::SecondPhone, "Fax", Setting::CompanyFax, &Preferences::CompanyFax},
     {field::Cell, "Company Website", Setting::CompanyWebsite, &Preferences::CompanyWebsite},
     {field::Contact, "Company Email Address", Setting::CompanyEmail, &Preferences::CompanyEmail},
     {field::Email, "Page 1 Title", Setting::PageTitle, &Preferences::PageTitle}}};

void LoadCompanyInfo() {
  book = AddressBook();
  book.CompanyInfoMode = true;
  book.Caption = QStringLiteral("Company Information");
  for (const Detail& detail : Details) book.txt[detail.field].Text = prefs.*detail.value;
  SetBookLabels();
}

}  // namespace

QString CompanyInfoLabel(int index) {
  for (const Detail& detail : Details)
    if (detail.field == index) return QString::fromLatin1(detail.label);
  return {};
}

void EditCompanyInfoCommand() {
  if (book.AddressBookOpen)
    return Tell(QStringLiteral("Address Book must be closed before you can edit Company Info."));
  if (!book.CompanyInfoMode) LoadCompanyInfo();
  desk().ShowWindow(QStringLiteral("frmAddress"), Modality::Modeless);
}

bool SaveCompanyInfo() {
  // Another program may have written other lines meanwhile, and they stay.
  GetUserPreferences();
  if (!prefs.Read) return false;
  PreferenceValues values;
  for (const Detail& detail : Details)
    values.emplace_back(SettingKey(detail.setting), book.txt[detail.field].Text);
  bool saved = false;
  Guarded("mnuFileSave_Click", [&] { saved = StorePreferences(values); });
  if (!saved) return false;
  Tell(QStringLiteral("Changes will be applied in the next \"New\" or \"Open\" session."));
  UnloadAddressWindow();
  desk().CloseWindow(QStringLiteral("frmAddress"));
  return true;
}

}  // namespace quillane
