#pragma once

#include <string>

#include "framework/window.h"
#include "search/one_line_edit.h"

namespace korvane::search {

// One of the two boxes of the bar: an edit control of one line, of any length, with a tooltip of its own. The click
// that brings the keyboard into it selects all; the next one places the caret.
class CEditEx final : public fw::Window<CEditEx>, public OneLineEdit<CEditEx> {
public:
    static constexpr fw::WindowClass kClass{.name = L"EditEx_WndClass", .base = L"EDIT"};

    static constexpr auto Messages() {
        return fw::MessageMap{
            fw::On<WM_DESTROY>(&CEditEx::OnDestroy),   fw::On<WM_MOUSEACTIVATE>(&CEditEx::OnMouseActivate),
            fw::On<WM_LBUTTONDOWN>(&CEditEx::OnPress), fw::On<WM_LBUTTONUP>(&CEditEx::OnRelease),
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
    // Empties the box as typing would, so that it can be undone.
    void EmptyUndoably();

    // True while the input method holds text that is not yet in the box; Enter is then the method's own.
    [[nodiscard]] bool Composing() const;

    // Null when there is none. Goes with the box.
    [[nodiscard]] HWND ToolTip() const { return toolTip_; }

private:
    fw::Reply OnDestroy();
    fw::Reply OnMouseActivate(const fw::Message& message);
    fw::Reply OnPress(const fw::Message& message);
    LRESULT OnRelease(const fw::Message& message);
    void AddToolTip(const std::wstring& tip);

    HWND toolTip_ = nullptr;
    // The press under way brings the keyboard here; the activation that comes before it gives the box the focus
    // already.
    bool activating_ = false;
    bool entering_ = false;
};

} // namespace korvane::search
