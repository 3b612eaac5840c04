#pragma once

#include <chrono>
#include <string>

#include "controls/bar_button.h"
#include "controls/local_clock.h"
#include "framework/string_table.h"
#include "framework/timer.h"

namespace korvane::controls {

// The style of the clock for the Windows that the program runs on.
[[nodiscard]] ClockStyle SystemClockStyle();

// What the clock takes from outside. The defaults are the program's; the clock must outlive the button.
struct ClockSources {
    const LocalClock& clock = SystemLocalClock();
    // A text of the string table by its identifier.
    std::wstring (*text)(UINT id) = &fw::LoadText;
    ClockStyle style = SystemClockStyle();
};

// The clock on the bar. A click reaches the frame as an ordinary BN_CLICKED.
class CTimeBarButton final : public BarButton<CTimeBarButton> {
public:
    static constexpr fw::WindowClass kClass{.name = L"TimeBar_WndClass", .base = L"BUTTON"};

    // The number of the control and of its timer.
    static constexpr UINT_PTR kTimer = 2014;
    // A change of the second is on the screen within a quarter of it.
    static constexpr std::chrono::milliseconds kPeriod{250};

    static constexpr auto Messages() {
        return fw::MessageMap{
            fw::On<WM_TIMER>(&CTimeBarButton::OnTimer),
            fw::On<WM_SHOWWINDOW>(&CTimeBarButton::OnShow),
            fw::On<WM_DESTROY>(&CTimeBarButton::OnDestroy),
            fw::Chain<BarButton<CTimeBarButton>>(),
        };
    }

    explicit CTimeBarButton(BarHost& host, const ClockSources& sources = {}) : host_{host}, sources_{sources} {}

    // ClockFormatOf the setting. Shown at once when the window exists.
    void SetFormat(unsigned formatId);
    void SetBarColour(base::Colour bar);

    [[nodiscard]] const std::wstring& Text() const { return clockText_; }
    [[nodiscard]] BarTextColour TextColour() const { return textColour_; }
    [[nodiscard]] bool Running() const { return timer_.Running(); }

    // For the mix-ins.
    void OnCreated();
    void Paint(HDC dc, const base::Rect& area, const ButtonFacts& facts);
    [[nodiscard]] const wchar_t* ThemeClasses() const;

private:
    fw::Reply OnTimer(UINT_PTR id);
    fw::Reply OnShow(bool shown);
    fw::Reply OnDestroy(const fw::Message&);
    void MakeSmallFont();
    void Update();

    BarHost& host_;
    ClockSources sources_;
    unsigned formatId_ = kNoClockFormat;
    BarTextColour textColour_ = BarTextColour::kButtonText;
    std::wstring clockText_;
    fw::UniqueFont smallFont_;
    fw::Timer timer_;
};

} // namespace korvane::controls
