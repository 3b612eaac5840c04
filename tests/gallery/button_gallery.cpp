// Shows every button of the bar in every state on bars of several colours, for the eye. It is no test: start it with
// tests/gallery/show and look. With the argument "classic" the visual style is off.

#include <windows.h>

#include <commctrl.h>
#include <shellapi.h>
#include <uxtheme.h>

#include <array>
#include <string_view>
#include <vector>

#include "controls/app_image_btn.h"
#include "controls/drop_down_button.h"
#include "controls/exit_button.h"
#include "controls/korvane_button.h"
#include "controls/text_drop_button.h"
#include "controls/time_bar_button.h"
#include "controls/tool_button.h"
#include "controls/up_down_button.h"
#include "framework/gdi.h"
#include "framework/gdiplus_image.h"
#include "framework/icons.h"
#include "framework/image_list.h"
#include "res/ids.h"
#include "tests/support/fake_bar_host.h"
#include "tests/support/fake_clock.h"

namespace korvane::test {
namespace {

using base::Colour;
using base::Rect;
using namespace controls;

constexpr int kBarPx = 32;
constexpr int kBarWidthPx = 1240;
constexpr int kLabelPx = 80;
// The white field on which the drop buttons, the run button and the chooser stand.
constexpr Rect kField{290, 4, 560, 28};

bool g_classic = false;

const FakeClock g_clock;

fw::UniqueIcon IconOf(UINT id) {
    return fw::LoadResourceIcon(id, fw::Scale()(kIconPx));
}

fw::UniqueImageList ListOf(std::initializer_list<UINT> ids) {
    return fw::MakeImageList(ids, fw::Scale()(kIconPx));
}

struct Look {
    const wchar_t* name;
    UINT itemState;
    bool hot;
};
constexpr std::array kLooks{
    Look{L"normal", 0, false},
    Look{L"hot", 0, true},
    Look{L"pressed", ODS_SELECTED, false},
    Look{L"disabled", ODS_DISABLED, false},
    Look{L"focus", ODS_FOCUS, false},
};

// One bar with all buttons, never shown itself; its rows are painted into the gallery.
class SampleBar final : public fw::Window<SampleBar> {
public:
    static constexpr fw::WindowClass kClass{.name = L"KorvaneGalleryBar_WndClass"};
    static constexpr auto Messages() {
        return fw::MessageMap{
            fw::On<WM_ERASEBKGND>(&SampleBar::OnErase),
            fw::On<WM_DRAWITEM>(&SampleBar::OnDrawItem),
        };
    }

    explicit SampleBar(Colour colour) : colour_{colour} {}

    void Fill() {
        mainMenu_.SetBarColour(colour_);
        controlPanel_.SetBarColour(colour_);
        clock_.SetBarColour(colour_);
        twoLines_.SetBarColour(colour_);
        bar10_.SetBarColour(colour_);
        time_.SetBarColour(colour_);
        secondsAndDate_.SetBarColour(colour_);
        date_.SetBarColour(colour_);
        const bool light = IsLightBar(colour_);
        Add(mainMenu_, {4, 0, 124, 32}, ID_MAIN_MENU, L"");
        Add(options_, {130, 0, 166, 32}, ID_OPTIONS, L"");
        options_.SetIcon(IconOf(light ? IDI_OPTIONS_ON_LIGHT : IDI_OPTIONS_ON_DARK));
        Add(help_, {166, 0, 202, 32}, ID_HELP_CONTENTS, L"");
        help_.SetIcon(IconOf(light ? IDI_HELP_ON_LIGHT : IDI_HELP_ON_DARK));
        Add(left_, {206, 4, 226, 28}, 1, L"");
        Add(right_, {230, 4, 250, 28}, 2, L"");
        Add(imageButton_, {256, 4, 284, 28}, 3, L"");
        imageButton_.SetImages(images_.Get());
        Add(chooser_, {291, 5, 431, 27}, ID_SEARCH_CHOOSER, L"とても長い名前の検索コマンド Web 検索");
        Add(history_, {522, 6, 537, 26}, ID_SEARCH_HISTORY, L"");
        Add(run_, {537, 5, 559, 27}, ID_RUN_TYPED, L"");
        run_.SetImageListIndex(runImages_.Get(), runImagesDisabled_.Get(), 0);
        Add(controlPanel_, {565, 0, 695, 32}, ID_CONTROL_PANEL, L"コントロール パネル");
        controlPanel_.SetIcon(IconOf(IDI_KORVANE));
        Add(clock_, {700, 0, 780, 32}, ID_CLOCK, L"");
        clock_.SetFormat(kTimeWithSeconds);
        Add(exit_, {780, 7, 798, 25}, ID_EXIT, L"");
        Add(twoLines_, {800, 0, 880, 32}, 4, L"");
        twoLines_.SetFormat(kTimeAndDate);
        Add(bar10_, {880, 0, 960, 32}, 5, L"");
        bar10_.SetFormat(kTimeAndDate);
        Add(time_, {960, 0, 1040, 32}, 6, L"");
        time_.SetFormat(kTime);
        Add(secondsAndDate_, {1040, 0, 1140, 32}, 7, L"");
        secondsAndDate_.SetFormat(kTimeWithSecondsAndDate);
        Add(date_, {1140, 0, 1240, 32}, 8, L"");
        date_.SetFormat(kDate);
    }

    void PaintRow(HDC dc, const Look& look) {
        ::SendMessageW(Handle(), WM_ERASEBKGND, reinterpret_cast<WPARAM>(dc), 0);
        for (fw::WindowObject* button : buttons_) {
            const HWND window = button->Handle();
            if (look.hot) ::SendMessageW(window, WM_MOUSEMOVE, 0, 0);
            POINT at{};
            ::MapWindowPoints(window, Handle(), &at, 1);
            const fw::SavedDc saved{dc};
            ::OffsetViewportOrgEx(dc, at.x, at.y, nullptr);
            DRAWITEMSTRUCT item{};
            item.CtlType = ODT_BUTTON;
            item.CtlID = static_cast<UINT>(::GetDlgCtrlID(window));
            item.hwndItem = window;
            item.itemState = look.itemState;
            item.hDC = dc;
            ::GetClientRect(window, &item.rcItem);
            ::SendMessageW(Handle(), WM_DRAWITEM, item.CtlID, reinterpret_cast<LPARAM>(&item));
            if (look.hot) ::SendMessageW(window, WM_MOUSELEAVE, 0, 0);
        }
    }

private:
    template <class Button>
    void Add(Button& button, RECT rect, UINT_PTR id, const wchar_t* text) {
        if (!button.Create({.text = text,
                            .rect = rect,
                            .style = WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS | WS_CLIPCHILDREN,
                            .parent = Handle(),
                            .id = id}))
            return;
        ::SendMessageW(button.Handle(), WM_SETFONT, reinterpret_cast<WPARAM>(host_.BarFont()), FALSE);
        if (g_classic) {
            // A list of no classes takes the visual style away from one window.
            ::SetWindowTheme(button.Handle(), L" ", L" ");
            ::SendMessageW(button.Handle(), WM_THEMECHANGED, 0, 0);
        }
        buttons_.push_back(&button);
    }

    bool OnErase(HDC dc) {
        const fw::UniqueBrush brush{::CreateSolidBrush(fw::ToWindows(colour_))};
        const Rect all{0, 0, kBarWidthPx, kBarPx};
        FillFigure(dc, {&all, 1}, brush.Get());
        FillFigure(dc, {&kField, 1}, ::GetSysColorBrush(COLOR_WINDOW));
        return true;
    }
    fw::Reply OnDrawItem(const fw::Message& m) { return Reflect(m); }

    Colour colour_;
    FakeBarHost host_;
    fw::UniqueImageList images_ = ListOf({IDI_SETTINGS, IDI_RUN_DISABLED});
    fw::UniqueImageList runImages_ = ListOf({IDI_RUN});
    fw::UniqueImageList runImagesDisabled_ = ListOf({IDI_RUN_DISABLED});
    CKorvaneButton mainMenu_{host_};
    CToolButton options_;
    CToolButton help_;
    CToolButton run_;
    CUpDownButton left_{Direction::kLeft, Colour::Rgb(255, 255, 255)};
    CUpDownButton right_{Direction::kRight, Colour::Rgb(0, 0, 0)};
    CAppImageBtn imageButton_;
    CTextDropButton chooser_{host_};
    CDropDownButton history_;
    CTextDropButton controlPanel_{host_};
    CTimeBarButton clock_{host_, {g_clock, &fw::LoadText, ClockStyle::kTrayBarFont}};
    CTimeBarButton twoLines_{host_, {g_clock, &fw::LoadText, ClockStyle::kTray}};
    CTimeBarButton bar10_{host_, {g_clock, &fw::LoadText, ClockStyle::kTrayBarFont}};
    CTimeBarButton time_{host_, {g_clock, &fw::LoadText, ClockStyle::kTrayBarFont}};
    CTimeBarButton secondsAndDate_{host_, {g_clock, &fw::LoadText, ClockStyle::kTray}};
    CTimeBarButton date_{host_, {g_clock, &fw::LoadText, ClockStyle::kTray}};
    CExitButton exit_;
    std::vector<fw::WindowObject*> buttons_;
};

class Gallery final : public fw::Window<Gallery> {
public:
    static constexpr fw::WindowClass kClass{.name = L"KorvaneGallery_WndClass"};
    static constexpr auto Messages() {
        return fw::MessageMap{
            fw::On<WM_CREATE>(&Gallery::OnCreate),
            fw::On<WM_PAINT>(&Gallery::OnPaint),
            fw::On<WM_DESTROY>(&Gallery::OnDestroy),
        };
    }

    static constexpr std::array kColours{Colour::Rgb(159, 22, 106), Colour::Rgb(32, 32, 32), Colour::Rgb(193, 193, 193),
                                         Colour::Rgb(240, 240, 240)};
    static constexpr int kHeightPx = static_cast<int>(kColours.size() * (kLooks.size() * (kBarPx + 4) + 6));

private:
    LRESULT OnCreate(const fw::Message&) {
        for (SampleBar& bar : bars_) {
            if (!bar.Create({.rect = {0, 0, kBarWidthPx, kBarPx}, .style = WS_POPUP})) return -1;
            bar.Fill();
        }
        return 0;
    }

    void OnPaint(const fw::Message&) {
        PAINTSTRUCT paint{};
        const HDC dc = ::BeginPaint(Handle(), &paint);
        int y = 4;
        RECT all{};
        ::GetClientRect(Handle(), &all);
        ::FillRect(dc, &all, ::GetSysColorBrush(COLOR_WINDOW));
        ::SetBkMode(dc, TRANSPARENT);
        for (SampleBar& bar : bars_) {
            for (const Look& look : kLooks) {
                ::TextOutW(dc, 4, y + 8, look.name, static_cast<int>(std::wstring_view{look.name}.size()));
                const fw::SavedDc saved{dc};
                ::OffsetViewportOrgEx(dc, kLabelPx, y, nullptr);
                bar.PaintRow(dc, look);
                y += kBarPx + 4;
            }
            y += 6;
        }
        ::EndPaint(Handle(), &paint);
    }
    void OnDestroy() { ::PostQuitMessage(0); }

    std::array<SampleBar, kColours.size()> bars_{SampleBar{kColours[0]}, SampleBar{kColours[1]}, SampleBar{kColours[2]},
                                                 SampleBar{kColours[3]}};
};

} // namespace
} // namespace korvane::test

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR arguments, int) {
    using korvane::test::Gallery;
    korvane::test::g_classic = std::wstring_view{arguments} == L"classic";
    const fw::GdiplusSession gdiplus;
    ::InitCommonControls();
    Gallery gallery;
    if (!gallery.Create({.text = L"Buttons of the bar",
                         .rect = {0, 0, korvane::test::kLabelPx + korvane::test::kBarWidthPx + 8, Gallery::kHeightPx},
                         .style = WS_POPUP | WS_VISIBLE}))
        return 1;
    MSG message{};
    while (::GetMessageW(&message, nullptr, 0, 0) > 0) {
        ::TranslateMessage(&message);
        ::DispatchMessageW(&message);
    }
    return 0;
}
