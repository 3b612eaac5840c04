#pragma once

#include "base/dpi.h"

namespace fw {

// The system's scale. The process is system-DPI aware, so it does not change while the program runs.
[[nodiscard]] const korvane::base::DpiScale& Scale();

} // namespace fw
