#pragma once

#include <windows.h>

#include "base/geometry.h"
#include "framework/window.h"

namespace korvane::launch {

// The window through which the pages of the options are seen on a screen that is too small for them. It scrolls by its
// bars, by the wheel, and to whatever control the keyboard goes.
class PageView final : public fw::Window<PageView> {
public:
    static constexpr fw::WindowClass kClass{.name = L"OptionPageView_WndClass"};
    // Posted to itself: the window in wparam gets the focus.
    static constexpr UINT kFocusMoved = WM_APP + 1;

    static constexpr auto Messages() {
        return fw::MessageMap{
            fw::On<WM_VSCROLL>(&PageView::OnVerticalBar), fw::On<WM_HSCROLL>(&PageView::OnHorizontalBar),
            fw::On<WM_MOUSEWHEEL>(&PageView::OnWheel),    fw::On<WM_ERASEBKGND>(&PageView::OnEraseBackground),
            fw::On<kFocusMoved>(&PageView::OnFocusMoved), fw::On<WM_NCDESTROY>(&PageView::OnGone),
        };
    }

    ~PageView() override;

    // Has its turn in the tab order behind `before`, a control of the dialog.
    [[nodiscard]] bool Open(HWND dialog, HWND before);
    // Takes its place in the dialog, which holds as much as it can of pages of the given size, and shows their
    // beginning. The pages are its children.
    void Show(const base::Rect& place, base::Size page);

private:
    fw::Reply OnVerticalBar(const fw::Message& message);
    fw::Reply OnHorizontalBar(const fw::Message& message);
    void OnWheel(const fw::Message& message);
    bool OnEraseBackground(HDC dc);
    void OnFocusMoved(const fw::Message& message);
    fw::Reply OnGone(const fw::Message& message);

    [[nodiscard]] int BarPosition(int bar, UINT command, int position) const;
    void ScrollTo(base::Point position);

    base::Size page_;
    base::Point position_; // of the page, at the view's corner
    int wheel_ = 0;        // turned, and too little for a line so far
};

} // namespace korvane::launch
