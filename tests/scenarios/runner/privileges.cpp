#include "privileges.h"

#include <linux/capability.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <array>

namespace quillane::scenario {

void ObeyPermissions() {
  __user_cap_header_struct header{_LINUX_CAPABILITY_VERSION_3, 0};
  std::array<__user_cap_data_struct, _LINUX_CAPABILITY_U32S_3> sets{};
  if (syscall(SYS_capget, &header, sets.data()) != 0) return;
  sets[0].effective &= ~((1U << CAP_DAC_OVERRIDE) | (1U << CAP_DAC_READ_SEARCH));
  syscall(SYS_capset, &header, sets.data());
}

}  // namespace quillane::scenario
