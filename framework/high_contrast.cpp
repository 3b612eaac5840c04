#include "framework/high_contrast.h"

#include <windows.h>

namespace fw {

bool HighContrast() {
    HIGHCONTRASTW setting{};
    setting.cbSize = sizeof setting;
    return ::SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof setting, &setting, 0) &&
           (setting.dwFlags & HCF_HIGHCONTRASTON) != 0;
}

} // namespace fw
