#pragma once

#include <windows.h>

#include <functional>
#include <initializer_list>
#include <utility>
#include <vector>

#include "framework/window.h"

namespace korvane::test {

// A window that opens menus and presses keys in them.
class MenuOwner final : public fw::Window<MenuOwner> {
public:
    static constexpr fw::WindowClass kClass{.name = L"KorvaneTestMenuOwner_WndClass"};

    static constexpr UINT kAllKeysRead = WM_APP + 1;

    static constexpr auto Messages() {
        return fw::MessageMap{
            fw::On<WM_INITMENUPOPUP>(&MenuOwner::OnInitMenuPopup), fw::On<WM_MEASUREITEM>(&MenuOwner::OnMeasureItem),
            fw::On<WM_DRAWITEM>(&MenuOwner::OnDrawItem),           fw::On<WM_ENTERIDLE>(&MenuOwner::OnEnterIdle),
            fw::On<kAllKeysRead>(&MenuOwner::OnAllKeysRead),
        };
    }

    std::function<void(HMENU)> init;
    std::function<fw::Reply(MEASUREITEMSTRUCT&)> measure;
    std::function<fw::Reply(const DRAWITEMSTRUCT&)> draw;
    // Called with the open menu's window, once it has been drawn.
    std::function<void(HWND)> shown;

    // Opens the menu, presses keys once it waits for one, and gives the command that was chosen; 0 when the keys chose
    // none. A letter or digit is a character, anything else a virtual key.
    UINT Choose(HMENU popup, std::initializer_list<UINT> keys) {
        keys_ = keys;
        const auto chosen = ::TrackPopupMenuEx(popup, TPM_RETURNCMD, 100, 100, Handle(), nullptr);
        // What the menu has not read must not end the next one.
        MSG unread{};
        while (::PeekMessageW(&unread, Handle(), 0, 0, PM_REMOVE)) {
        }
        return static_cast<UINT>(chosen);
    }

private:
    void OnInitMenuPopup(const fw::Message& m) {
        if (init) init(reinterpret_cast<HMENU>(m.wparam));
    }
    fw::Reply OnMeasureItem(MEASUREITEMSTRUCT& item) { return measure ? measure(item) : fw::kPassOn; }
    fw::Reply OnDrawItem(const DRAWITEMSTRUCT& item) { return draw ? draw(item) : fw::kPassOn; }
    void OnEnterIdle(const fw::Message& m) {
        if (shown) shown(reinterpret_cast<HWND>(m.lparam));
        for (const UINT key : std::exchange(keys_, {})) {
            const bool character = key >= '0' && key <= 'Z';
            ::PostMessageW(Handle(), character ? WM_CHAR : WM_KEYDOWN, key, 0);
        }
        ::PostMessageW(Handle(), kAllKeysRead, 0, 0);
    }
    // Ends a menu that the keys have left open; behind the character that a key may have become meanwhile.
    void OnAllKeysRead(const fw::Message&) { ::PostMessageW(Handle(), WM_CANCELMODE, 0, 0); }

    std::vector<UINT> keys_;
};

} // namespace korvane::test
