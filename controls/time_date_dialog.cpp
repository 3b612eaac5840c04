#include "controls/time_date_dialog.h"

#include <shellapi.h>

#include <cstdlib>
#include <memory>
#include <optional>
#include <utility>

#include "controls/bar_painting.h"
#include "controls/logic/calendar_layout.h"
#include "framework/centring.h"
#include "framework/dpi.h"
#include "framework/gdi.h"
#include "framework/string_table.h"
#include "framework/windows_program.h"

namespace korvane::controls {
namespace {

constexpr DWORD kAnimationMs = 50;

// At 96 dpi, with the space above and below the characters, which differs from font to font: whatever the font, the
// line fits its place.
constexpr int kTimeLineHeight = 56;
constexpr int kDateLineHeight = 22;

// At 96 dpi.
constexpr int kFrame = 1;

fw::UniqueFont FontOfHeight(HFONT like, int lineHeightPx) {
    LOGFONTW font{};
    ::GetObjectW(like, sizeof font, &font);
    font.lfHeight = lineHeightPx;
    font.lfWidth = 0;
    return fw::UniqueFont{::CreateFontIndirectW(&font)};
}

// Grows out of its middle, or simply appears where that is impossible.
void Appear(HWND window) {
    if (!::AnimateWindow(window, kAnimationMs, AW_ACTIVATE | AW_CENTER)) ::ShowWindow(window, SW_SHOW);
}
void Vanish(HWND window) {
    if (!::AnimateWindow(window, kAnimationMs, AW_HIDE | AW_CENTER)) ::ShowWindow(window, SW_HIDE);
}

// The button that a key stands for.
std::optional<UINT> StepOfKey(WPARAM virtualKey) {
    switch (virtualKey) {
    case VK_LEFT:
    case VK_PRIOR:
        return kPreviousMonthButton;
    case VK_RIGHT:
    case VK_NEXT:
        return kNextMonthButton;
    default:
        return std::nullopt;
    }
}

} // namespace

INT_PTR StartByShell(const wchar_t* verb, const wchar_t* file, const wchar_t* parameters, int showCommand) {
    const std::wstring program = fw::WindowsProgram(file);
    return reinterpret_cast<INT_PTR>(::ShellExecuteW(nullptr, verb, program.c_str(), parameters, nullptr, showCommand));
}

CTimeDateDialog::CTimeDateDialog(TimeDateHost& host, fw::MessageLoop& loop, const TimeDateSources& sources)
    : host_{host}, sources_{sources}, filter_{loop, *this}, look_{LookOn(host.BarBrush())}, page_{PageOf(
                                                                                                sources.clock.Now())} {}

HWND CTimeDateDialog::Open(TimeDateHost& host, HWND owner, fw::MessageLoop& loop, const TimeDateSources& sources) {
    std::unique_ptr<CTimeDateDialog> dialog{new CTimeDateDialog{host, loop, sources}};
    if (!dialog->Create(owner)) return nullptr;
    // From here on the window owns the object, through OnFinalMessage.
    return dialog.release()->Handle();
}

void CTimeDateDialog::OnFinalMessage() {
    TimeDateHost& host = host_;
    delete this;
    host.OnTimeDateClosed();
}

bool CTimeDateDialog::PreTranslate(const MSG& message) {
    if (message.hwnd != Handle() && !::IsChild(Handle(), message.hwnd)) return false;
    if (message.message == WM_KEYDOWN && PressKey(message.wParam)) return true;
    // The object may be gone afterwards.
    MSG copy = message;
    return ::IsDialogMessageW(Handle(), &copy) != FALSE;
}

bool CTimeDateDialog::PressKey(WPARAM virtualKey) {
    if (virtualKey == VK_TAB) ShowFocus();
    if (virtualKey == VK_HOME) {
        calendar_.ReturnToToday();
        return true;
    }
    const auto step = StepOfKey(virtualKey);
    if (step) OnStep(*step);
    return step.has_value();
}

bool CTimeDateDialog::OnInitDialog(HWND) {
    const base::Size size = PopUpSize(fw::Scale());
    ::SetWindowPos(Handle(), nullptr, 0, 0, size.width, size.height, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    MakeFonts();
    if (!CreateChildren()) {
        ::PostMessageW(Handle(), WM_COMMAND, IDCANCEL, 0);
        return false;
    }
    Update();
    timer_.Start(Handle(), kTimer, kPeriod);
    fw::CentreWindow(Handle(), nullptr, fw::CentreOn::kCurrentMonitor);
    Appear(Handle());
    ::SetFocus(previousMonth_.Handle());
    return false;
}

void CTimeDateDialog::ShowFocus() {
    previousMonth_.SetFocusShown(true);
    nextMonth_.SetFocusShown(true);
}

void CTimeDateDialog::MakeFonts() {
    timeFont_ = FontOfHeight(host_.BarFont(), fw::Scale()(kTimeLineHeight));
    dateFont_ = FontOfHeight(host_.BarFont(), fw::Scale()(kDateLineHeight));
}

bool CTimeDateDialog::CreateChildren() {
    constexpr DWORD kStyle = WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS | WS_CLIPCHILDREN;
    const auto createButton = [&](CUpDownButton& button, UINT id, UINT textId) {
        const std::wstring text = fw::LoadText(textId);
        return button.Create({.text = text.c_str(),
                              .rect = fw::ToWindows(StepButtonRect(id, fw::Scale())),
                              .style = kStyle | WS_TABSTOP,
                              .parent = Handle(),
                              .id = id});
    };
    calendar_.SetLook(look_, host_.BarFont());
    // In the order in which the eye meets them, which is also that of the tab key and of a screen reader.
    return createButton(previousMonth_, kPreviousMonthButton, IDS_PREVIOUS_MONTH) &&
           calendar_.Create({.rect = fw::ToWindows(CalendarRect(fw::Scale())), .style = kStyle, .parent = Handle()}) &&
           createButton(nextMonth_, kNextMonthButton, IDS_NEXT_MONTH);
}

void CTimeDateDialog::TakeLook() {
    look_ = LookOn(host_.BarBrush());
    calendar_.SetLook(look_, host_.BarFont());
    previousMonth_.SetArrowColour(look_.text.colour);
    nextMonth_.SetArrowColour(look_.text.colour);
    Redraw();
}

fw::Reply CTimeDateDialog::OnTimer(UINT_PTR id) {
    if (id != kTimer) return fw::kPassOn;
    // The bar has got another colour: the brush that was borrowed is gone.
    if (host_.BarBrush() != look_.ground) TakeLook();
    Update();
    return LRESULT{0};
}

void CTimeDateDialog::Update() {
    const ClockReading now = sources_.clock.Now();
    const std::wstring shownTime = std::exchange(timeText_, PopUpTime(now));
    const std::wstring shownDate = std::exchange(dateText_, PopUpDate(now));
    if (timeText_ != shownTime) Redraw();
    if (dateText_ == shownDate) return;
    // Names the pop-up for those who cannot see it.
    ::SetWindowTextW(Handle(), dateText_.c_str());
    FillCalendar(PageOf(now), now, Filling::kFollowing);
}

void CTimeDateDialog::FillCalendar(CalendarPage page, const ClockReading& now, Filling filling) {
    if (calendar_.Fill(page, now, filling)) page_ = page;
}

bool CTimeDateDialog::OnEraseBackground(HDC dc) {
    const base::Rect client = fw::ClientRect(Handle());
    if (client.Empty()) return true;
    const PaintBuffer buffer{dc, client};
    const fw::SavedDc saved{buffer.Dc()};
    FillFigure(buffer.Dc(), {&client, 1}, look_.ground);
    PaintFrame(buffer.Dc(), client);
    if (!timeText_.empty()) Paint(buffer.Dc(), client);
    return true;
}

// A border of the window's own would take its room from the client area, and all that stands in it would be off the
// middle.
void CTimeDateDialog::PaintFrame(HDC dc, const base::Rect& client) {
    for (int ring = 0; ring < fw::Scale()(kFrame); ++ring) {
        const RECT frame = fw::ToWindows(client.Inset(ring));
        ::FrameRect(dc, &frame, ::GetSysColorBrush(COLOR_WINDOWFRAME));
    }
}

void CTimeDateDialog::Paint(HDC dc, base::Rect client) const {
    const auto draw = [&](const std::wstring& text, const fw::UniqueFont& font) {
        ::SelectObject(dc, font ? font.Get() : host_.BarFont());
        DrawInked(dc, text, client, DT_CENTER | DT_NOPREFIX, look_.text);
    };
    draw(timeText_, timeFont_);
    client.top += fw::Scale()(kDateTop);
    draw(dateText_, dateFont_);
}

fw::Reply CTimeDateDialog::OnDrawItem(const fw::Message& message) {
    return Reflect(message);
}

fw::Reply CTimeDateDialog::OnActivate(UINT activation, bool) {
    if (activation == WA_INACTIVE) ::PostMessageW(Handle(), WM_COMMAND, IDCANCEL, 0);
    return fw::kPassOn;
}

void CTimeDateDialog::OnDoubleClick(const fw::Message&) {
    // What is started takes the activation, and the shell may let messages in: the pop-up can be gone at every step.
    TimeDateHost& host = host_;
    const ShellStart start = sources_.start;
    host.OnTimeSettingsStarted(start(L"open", L"control.exe", L"timedate.cpl", SW_SHOWNORMAL));
}

void CTimeDateDialog::OnWheel(const fw::Message& message) {
    const int steps = wheel_.Turn(static_cast<short>(HIWORD(message.wparam)));
    for (int i = 0; i < std::abs(steps); ++i) OnStep(steps > 0 ? kPreviousMonthButton : kNextMonthButton);
}

fw::Reply CTimeDateDialog::OnColoursChanged(const fw::Message&) {
    TakeLook();
    return fw::kPassOn;
}

void CTimeDateDialog::OnReturnToToday(const fw::Message&) {
    const ClockReading now = sources_.clock.Now();
    FillCalendar(PageOf(now), now, Filling::kFollowing);
}

void CTimeDateDialog::OnStep(UINT button) {
    const CalendarPage page = button == kPreviousMonthButton ? PreviousPage(page_) : NextPage(page_);
    if (page != page_) FillCalendar(page, sources_.clock.Now(), Filling::kTurned);
}

fw::Reply CTimeDateDialog::OnClose() {
    // Hiding it takes its activation away, which asks for the closing once more.
    if (std::exchange(closing_, true)) return fw::kPassOn;
    timer_.Stop();
    const HWND window = Handle();
    Vanish(window);
    ::DestroyWindow(window);
    // The object is gone with its window, and there is nothing left to write a result into.
    return fw::kPassOn;
}

} // namespace korvane::controls
