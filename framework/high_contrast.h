#pragma once

namespace fw {

// True while the user has a scheme of high contrast: what is drawn must then keep to the system's colours, in the pairs
// that belong together. Asked anew at every call.
[[nodiscard]] bool HighContrast();

} // namespace fw
