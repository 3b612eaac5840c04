#include "controls/sample_time_bar.h"

#include <utility>

#include "controls/bar_painting.h"
#include "controls/list_item_look.h"
#include "framework/gdi.h"
#include "framework/placeholder.h"
#include "framework/string_table.h"

namespace korvane::controls {

bool CSampleTimeBar::Replace(HWND dialog, int id) {
    return fw::TakePlace(*this, dialog, id, {.without = SS_TYPEMASK, .with = SS_OWNERDRAW});
}

void CSampleTimeBar::SetFormat(unsigned formatId) {
    formatId_ = formatId;
    if (Handle()) Update();
}

const wchar_t* CSampleTimeBar::ThemeClasses() const {
    return kListTheme;
}

LRESULT CSampleTimeBar::OnCreate(const fw::Message& message) {
    const LRESULT result = Default(message);
    if (result == -1) return result;
    OpenTheme();
    text_ = reinterpret_cast<const CREATESTRUCTW*>(message.lparam)->lpszName;
    timerId_ = static_cast<UINT_PTR>(::GetDlgCtrlID(Handle()));
    Run(::IsWindowVisible(::GetParent(Handle())) != FALSE);
    return result;
}

void CSampleTimeBar::Run(bool seen) {
    if (!Handle()) return;
    Update();
    if (!seen) return timer_.Stop();
    timer_.Start(Handle(), timerId_, kPeriod);
}

fw::Reply CSampleTimeBar::OnTimer(UINT_PTR id) {
    if (id != timerId_) return fw::kPassOn;
    Update();
    return LRESULT{0};
}

fw::Reply CSampleTimeBar::OnDestroy(const fw::Message&) {
    timer_.Stop();
    return fw::kPassOn;
}

void CSampleTimeBar::Update() {
    auto text = ClockText(formatId_, fw::LoadText(formatId_), clock_.Now());
    if (!text || *text == text_) return;
    text_ = std::move(*text);
    // For screen readers. The control's own way of taking a text would paint it as well.
    ::DefWindowProcW(Handle(), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text_.c_str()));
    Redraw();
}

// The draw step covers the whole control.
bool CSampleTimeBar::OnEraseBackground(HDC) {
    return true;
}

fw::Reply CSampleTimeBar::OnStyleChanged(const fw::Message&) {
    ::InvalidateRect(Handle(), nullptr, FALSE);
    return fw::kPassOn;
}

bool CSampleTimeBar::OnDrawItem(const DRAWITEMSTRUCT& item) {
    const base::Rect area = fw::FromWindows(item.rcItem);
    if (area.Empty()) return true;
    const PaintBuffer buffer{item.hDC, area};
    const fw::SavedDc saved{buffer.Dc()};
    Paint(buffer.Dc(), area);
    return true;
}

void CSampleTimeBar::Paint(HDC dc, const base::Rect& area) const {
    PaintBehind(Handle(), dc, area);
    PaintItemFrame(CurrentTheme(), dc, area);

    if (auto* const font = reinterpret_cast<HFONT>(::SendMessageW(Handle(), WM_GETFONT, 0, 0)))
        ::SelectObject(dc, font);
    ::SetBkMode(dc, TRANSPARENT);
    ::SetTextColor(dc, ::GetSysColor(COLOR_WINDOWTEXT));
    constexpr UINT kLook = DT_CENTER | DT_NOPREFIX;
    RECT measured{area.left, area.top, area.left, area.top};
    ::DrawTextW(dc, text_.c_str(), -1, &measured, kLook | DT_CALCRECT);
    RECT at = fw::ToWindows(base::Centred(area, fw::FromWindows(measured).Extent()));
    ::DrawTextW(dc, text_.c_str(), -1, &at, kLook);
}

} // namespace korvane::controls
