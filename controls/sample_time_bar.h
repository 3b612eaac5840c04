#pragma once

#include <chrono>
#include <string>

#include "controls/local_clock.h"
#include "framework/themed.h"
#include "framework/timer.h"
#include "framework/window.h"

namespace korvane::controls {

// Shows in a dialog what the clock on the bar would show. The dialog reflects WM_DRAWITEM.
class CSampleTimeBar final : public fw::Window<CSampleTimeBar>, public fw::Themed<CSampleTimeBar> {
public:
    static constexpr fw::WindowClass kClass{.name = L"SampleTimeBar_WndClass", .base = L"STATIC"};

    static constexpr std::chrono::milliseconds kPeriod{250};

    static constexpr auto Messages() {
        return fw::MessageMap{
            fw::On<WM_CREATE>(&CSampleTimeBar::OnCreate),
            fw::On<WM_TIMER>(&CSampleTimeBar::OnTimer),
            fw::On<WM_DESTROY>(&CSampleTimeBar::OnDestroy),
            fw::On<WM_ERASEBKGND>(&CSampleTimeBar::OnEraseBackground),
            fw::On<WM_THEMECHANGED>(&CSampleTimeBar::OnStyleChanged),
            fw::OnReflected<WM_DRAWITEM>(&CSampleTimeBar::OnDrawItem),
            fw::Chain<fw::Themed<CSampleTimeBar>>(),
        };
    }

    // The clock must outlive the window.
    explicit CSampleTimeBar(const LocalClock& clock = SystemLocalClock()) : clock_{clock} {}

    // Takes the place of a dialog's static control. False, and nothing changed, when there is none or no window to be
    // had.
    [[nodiscard]] bool Replace(HWND dialog, int id);

    // ClockFormatOf the setting; shown at once.
    void SetFormat(unsigned formatId);

    // Keeps up with the clock only while it is to be seen.
    void Run(bool seen);

    [[nodiscard]] const std::wstring& Text() const { return text_; }
    [[nodiscard]] bool Running() const { return timer_.Running(); }

    // For the mix-in.
    [[nodiscard]] const wchar_t* ThemeClasses() const;

private:
    LRESULT OnCreate(const fw::Message& message);
    fw::Reply OnTimer(UINT_PTR id);
    fw::Reply OnDestroy(const fw::Message& message);
    bool OnEraseBackground(HDC dc);
    fw::Reply OnStyleChanged(const fw::Message& message);
    bool OnDrawItem(const DRAWITEMSTRUCT& item);
    void Update();
    void Paint(HDC dc, const base::Rect& area) const;

    const LocalClock& clock_;
    unsigned formatId_ = kNoClockFormat;
    std::wstring text_;
    UINT_PTR timerId_ = 0;
    fw::Timer timer_;
};

} // namespace korvane::controls
