#pragma once

#include <functional>

namespace fw {

// Runs `work` on a thread of its own, which nobody waits for: what it uses must be its own or outlive the process.
// False when Windows has no thread to give; `work` is then not run. `work` must not throw.
[[nodiscard]] bool StartThread(std::function<void()> work);

} // namespace fw
