#include "framework/dpi.h"

#include "framework/gdi.h"

namespace fw {

const korvane::base::DpiScale& Scale() {
    static const korvane::base::DpiScale scale{::GetDeviceCaps(WindowDc{nullptr}.Get(), LOGPIXELSX)};
    return scale;
}

} // namespace fw
