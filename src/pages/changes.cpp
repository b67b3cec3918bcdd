#include "pages/changes.h"

namespace quillane {
bool TextHasChanged() {
  return false;
}
bool PropertiesHaveChanged() {
  return false;
}
}  // namespace quillane
