#pragma once

#include "framework/message_map.h"
#include "framework/theme.h"

namespace fw {

// Mix-in of a window T that draws with a visual style. T says which with `const wchar_t* ThemeClasses() const` and
// calls OpenTheme once it is created; the theme is then opened anew whenever the user changes the style.
template <class T>
class Themed {
public:
    static constexpr auto Messages() {
        return MessageMap{
            On<WM_THEMECHANGED>(&Themed::OnThemeChanged),
            On<WM_DESTROY>(&Themed::OnDestroy),
        };
    }

    [[nodiscard]] const Theme& CurrentTheme() const { return theme_; }

protected:
    void OpenTheme() {
        auto& self = static_cast<T&>(*this);
        theme_.Open(self.Handle(), self.ThemeClasses());
    }

private:
    Reply OnThemeChanged() {
        OpenTheme();
        return kPassOn;
    }
    Reply OnDestroy() {
        theme_.Close();
        return kPassOn;
    }

    Theme theme_;
};

} // namespace fw
