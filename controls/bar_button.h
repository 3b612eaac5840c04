#pragma once

#include "controls/app_odb_helper.h"
#include "controls/bar_host.h"
#include "controls/logic/content_layout.h"
#include "controls/logic/theme_classes.h"
#include "controls/tool_tip_helper.h"
#include "framework/dpi.h"
#include "framework/themed.h"
#include "framework/window.h"
#include "framework/windows_version.h"

namespace korvane::controls {

// Base of the owner-drawn buttons: the mix-ins, and what creation does for all. Besides what the mix-ins ask, T may
// have an `OnCreated()` of its own, called last.
template <class T>
class BarButton : public fw::Window<T>, public CAppODBHelper<T>, public CToolTipHelper<T>, public fw::Themed<T> {
public:
    static constexpr auto Messages() {
        return fw::MessageMap{
            fw::On<WM_CREATE>(&BarButton::OnCreate),
            fw::Chain<CAppODBHelper<T>>(),
            fw::Chain<CToolTipHelper<T>>(),
            fw::Chain<fw::Themed<T>>(),
        };
    }

    void OnCreated() {}

    // A button of a dialog takes the keyboard as the system's do; what is typed after a click on the bar belongs where
    // the user was.
    static constexpr bool kTakesFocusByMouse = false;

    // What a click does, without the mouse.
    void Press() const { ::SendMessageW(this->Handle(), BM_CLICK, 0, 0); }

protected:
    // What is behind the button, then its plate.
    void PaintGround(HDC dc, const base::Rect& area, ButtonState state, int part = kPlatePart) const {
        PaintBehind(this->Handle(), dc, area);
        if (this->highContrast_) {
            PaintHighContrastPlate(dc, state, area);
        } else {
            PaintPlate(dc, this->CurrentTheme(), part, state, area);
        }
    }

    // What text and arrows on that ground are drawn with. To be asked before anything else is painted on it.
    [[nodiscard]] Ink InkOn(HDC dc, const base::Rect& area, ButtonState state, BarTextColour usual) const {
        if (this->highContrast_) return {SystemColour(TextColourInHighContrast(state)), {}};
        return BarInk(dc, area, usual);
    }

private:
    LRESULT OnCreate(const fw::Message& m) {
        // Before anything else, so that the BUTTON procedure has set up its own state.
        const LRESULT result = this->Default(m);
        if (result == -1) return result;
        this->ForceOwnerDraw();
        this->OpenTheme();
        this->CreateTip(reinterpret_cast<const CREATESTRUCTW*>(m.lparam)->lpszName);
        static_cast<T&>(*this).OnCreated();
        return result;
    }
};

} // namespace korvane::controls
