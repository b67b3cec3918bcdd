#include "model/upcalls.h"

namespace quillane {

Upcalls& upcalls() {
  static Upcalls calls;
  return calls;
}

}  // namespace quillane
