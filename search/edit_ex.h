#pragma once

#include <string>

#include "framework/window.h"
#include "search/one_line_edit.h"

namespace korvane::search {

// One of the two boxes of the bar: an edit control of one line, of any length, with a tooltip of its own.
class CEditEx final : public fw::Window<CEditEx>, public OneLineEdit<CEditEx> {
public:
    static constexpr fw::WindowClass kClass{.name = L"EditEx_WndClass", .base = L"EDIT"};

    static constexpr auto Messages() {
        return fw::MessageMap{
            fw::On<WM_DESTROY>(&CEditEx::OnDestroy),
            fw::Chain<OneLineEdit<CEditEx>>(),
        };
    }

    // Creates the box with its font (borrowed) and its tooltip. `place` is in pixels of the parent's client area. False
    // when Windows refused the box itself; without a tooltip it works all the same.
    [[nodiscard]] bool CreateBox(HWND parent, UINT_PTR id, const RECT& place, HFONT font, const std::wstring& tip);

    // The whole text, as it stands.
    [[nodiscard]] std::wstring Text() const;
    // The text comes in as it is given; the caret goes to its end.
    void SetText(const std::wstring& text);
    [[nodiscard]] bool Empty() const;
    void SelectAll();

    // True while the input method holds text that is not yet in the box; Enter is then the method's own.
    [[nodiscard]] bool Composing() const;

    // Null when there is none. Goes with the box.
    [[nodiscard]] HWND ToolTip() const { return toolTip_; }

private:
    fw::Reply OnDestroy();
    void AddToolTip(const std::wstring& tip);

    HWND toolTip_ = nullptr;
};

} // namespace korvane::search
