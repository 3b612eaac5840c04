#include "controls/pop_up_look.h"

#include "controls/bar_painting.h"
#include "controls/logic/bar_colour.h"

namespace korvane::controls {

PopUpLook LookOn(HBRUSH bar) {
    LOGBRUSH brush{};
    ::GetObjectW(bar, sizeof brush, &brush);
    const base::Colour ground{brush.lbColor};
    return {bar, ground, {::GetSysColor(SystemColourIndex(TextColourOn(ground)))}};
}

} // namespace korvane::controls
