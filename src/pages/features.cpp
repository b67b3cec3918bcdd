#include "pages/features.h"

namespace quillane {
void SaveTextBoxFeatures() {}
void SyncQtyFlags() {}
QString StoredForm(const Page&, int) {
  return {};
}
}  // namespace quillane
