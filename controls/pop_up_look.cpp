#include "controls/pop_up_look.h"

#include "controls/logic/bar_colour.h"
#include "controls/logic/calendar_month.h"
#include "controls/logic/contrast.h"
#include "framework/high_contrast.h"

namespace korvane::controls {

PopUpLook LookOn(HBRUSH bar) {
    LOGBRUSH brush{};
    ::GetObjectW(bar, sizeof brush, &brush);
    const base::Colour ground{brush.lbColor};
    if (fw::HighContrast())
        return {bar,
                ground,
                {SystemColour(TextColourInHighContrast(ButtonState::kNormal)), {}},
                {SystemColour(TextColourInHighContrast(ButtonState::kDisabled)), {}}};
    const base::Colour text = SystemColour(TextColourOn(ground));
    const base::Colour dim = Between(ground, text);
    return {bar, ground, {text, OutlineOf(text, ground)}, {dim, OutlineOf(dim, ground, kReceding)}};
}

} // namespace korvane::controls
