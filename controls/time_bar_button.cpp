#include "controls/time_bar_button.h"

#include <utility>

#include "framework/gdi.h"

namespace korvane::controls {
namespace {

// Of the font for two lines.
constexpr int kSmallFontPoints = 8;
constexpr int kPointsPerInch = 72;

} // namespace

ClockStyle SystemClockStyle() {
    return ClockStyleOf(fw::IsWindowsAtLeast(fw::kWindows7), fw::IsWindowsAtLeast(fw::kWindows10));
}

void CTimeBarButton::SetFormat(unsigned formatId) {
    formatId_ = formatId;
    if (Handle()) Update();
}

void CTimeBarButton::SetBarColour(base::Colour bar) {
    textColour_ = TextColourOn(bar);
    if (Handle()) Redraw();
}

void CTimeBarButton::OnCreated() {
    MakeSmallFont();
    Update();
    timer_.Start(Handle(), kTimer, kPeriod);
}

void CTimeBarButton::MakeSmallFont() {
    LOGFONTW font{};
    ::GetObjectW(host_.BarFont(), sizeof font, &font);
    font.lfHeight = -::MulDiv(kSmallFontPoints, fw::Scale().Dpi(), kPointsPerInch);
    smallFont_.Reset(::CreateFontIndirectW(&font));
}

fw::Reply CTimeBarButton::OnTimer(UINT_PTR id) {
    if (id != kTimer) return fw::kPassOn;
    Update();
    return LRESULT{0};
}

// A hidden clock costs nothing. When it is shown again the next tick brings the text up to date.
fw::Reply CTimeBarButton::OnShow(bool shown) {
    if (shown) {
        timer_.Start(Handle(), kTimer, kPeriod);
    } else {
        timer_.Stop();
    }
    return fw::kPassOn;
}

fw::Reply CTimeBarButton::OnDestroy(const fw::Message&) {
    timer_.Stop();
    return fw::kPassOn;
}

void CTimeBarButton::Update() {
    const ClockReading now = sources_.clock.Now();
    if (auto tip = ClockTip(now); tip != TipText()) SetTip(tip);
    // A tick that changes nothing visible paints nothing.
    auto text = ClockText(formatId_, sources_.text(formatId_), now);
    if (!text || *text == clockText_) return;
    clockText_ = std::move(*text);
    Redraw();
}

void CTimeBarButton::Paint(HDC dc, const base::Rect& area, const ButtonFacts& facts) {
    const ButtonState state = sources_.style == ClockStyle::kPlain ? ButtonState::kNormal : StateOf(facts);
    PaintGround(dc, area, state);
    const Ink ink = InkOn(dc, area, state, textColour_);

    const bool small = UsesSmallFont(formatId_, sources_.style) && smallFont_;
    const fw::SelectedObject font{dc, small ? smallFont_.Get() : host_.BarFont()};
    RECT measured{area.left, area.top, area.left, area.top};
    constexpr UINT kLook = DT_CENTER | DT_NOPREFIX;
    ::DrawTextW(dc, clockText_.c_str(), -1, &measured, kLook | DT_CALCRECT);
    const base::Size size = fw::FromWindows(measured).Extent();
    DrawInked(dc, clockText_, PlaceClockText(area, size, formatId_, sources_.style), kLook, ink);
}

const wchar_t* CTimeBarButton::ThemeClasses() const {
    return BarButtonTheme(sources_.style != ClockStyle::kPlain);
}

} // namespace korvane::controls
