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

protected:
    // What is behind the button, then its plate.
    void PaintGround(HDC dc, const base::Rect& area, ButtonState state, int part = kPlatePart) const {
        PaintBehind(this->Handle(), dc, area);
        PaintPlate(dc, this->CurrentTheme(), part, state, area);
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
