#include "pages/defaults.h"

#include "platform/runtime_error.h"
#include <QStringList>
namespace quillane {
void SetUpPages() {}
void ShowDefaultPages() {}
void StoreDefaultLabels() {}
void ShowPageControls(Page&) {}
void LoadColumns(Page&) {}
void ShowRowColumns(Page&, int, bool) {}
void SetMyFonts(Page&) {}
QStringList DefaultContractLines() { return {}; }
}  // namespace quillane
