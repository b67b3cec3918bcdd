#include "pages/titles.h"

namespace quillane {
void FindHighestPage() {}
void UpdatePageNumbers(Titles) {}
void UpdateEventNameLabels() {}
}  // namespace quillane
