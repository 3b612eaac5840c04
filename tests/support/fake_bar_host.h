#pragma once

#include <windows.h>

#include <functional>
#include <string>

#include "base/format_text.h"
#include "controls/bar_host.h"
#include "framework/handle.h"

namespace korvane::test {

// A bar that shows no menu: it writes down what it was asked to show, and answers as the test told it.
class FakeBarHost final : public controls::BarHost {
public:
    FakeBarHost() : font_{MakeFont(DEFAULT_QUALITY)} {}

    // Without smoothing every pixel of a text is in the very colour of the text. For buttons that are yet to be made.
    void TakeRoughFont() { font_ = MakeFont(NONANTIALIASED_QUALITY); }

    // Three pop-ups with two, three and four items, of which the last two have one separator each.
    [[nodiscard]] HMENU Popup(int position) const override { return ::GetSubMenu(menu_.Get(), position); }
    [[nodiscard]] HFONT BarFont() const override { return font_.Get(); }

    UINT TrackPopup(int position, UINT flags, POINT at) override {
        log += base::FormatText(L"popup %d flags %u at %d,%d; ", position, flags, static_cast<int>(at.x),
                                static_cast<int>(at.y));
        if (whileOpen) whileOpen();
        return answer;
    }

    // The command "chosen" from every menu.
    UINT answer = 0;
    // Runs while a menu is "open".
    std::function<void()> whileOpen;
    std::wstring log;

private:
    static fw::UniqueFont MakeFont(DWORD quality) {
        return fw::UniqueFont{
            ::CreateFontW(-12, 0, 0, 0, FW_NORMAL, 0, 0, 0, DEFAULT_CHARSET, 0, 0, quality, 0, L"Meiryo UI")};
    }
    static HMENU MakeMenu() {
        const HMENU bar = ::CreateMenu();
        for (int popup = 0; popup < 3; ++popup) {
            const HMENU menu = ::CreatePopupMenu();
            for (int item = 0; item < 2 + popup; ++item)
                ::AppendMenuW(menu, popup > 0 && item == 1 ? MF_SEPARATOR : MF_STRING, static_cast<UINT_PTR>(1 + item),
                              L"item");
            ::AppendMenuW(bar, MF_POPUP, reinterpret_cast<UINT_PTR>(menu), L"popup");
        }
        return bar;
    }

    fw::UniqueFont font_;
    fw::UniqueMenu menu_{MakeMenu()};
};

} // namespace korvane::test
