// The address window cut down to the business's own details, which every letterhead carries.
#pragma once
#include <QString>

namespace quillane {

/// mnuEditCompInfo: shows the details, or brings them to the front as they are.  Refused while the address
/// book is open.
void EditCompanyInfoCommand();
/// Stores the details in the preferences, says when they will count, and closes the window.  False after a
/// failure, which is reported and leaves it open.
bool SaveCompanyInfo();

/// The label of a field in this window; empty for the two that it does not show.
QString CompanyInfoLabel(int index);

}  // namespace quillane
