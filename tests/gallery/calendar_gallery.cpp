// Shows the date/time pop-up on bars of several colours, for the eye. It is no test: start it with tests/gallery/show
// and look. The argument is the bar's font, "Meiryo UI" without one.

#include <windows.h>

#include <commctrl.h>

#include <array>

#include "controls/time_date_dialog.h"
#include "framework/dpi.h"
#include "framework/gdi.h"
#include "framework/handle.h"
#include "framework/message_loop.h"
#include "tests/support/fake_clock.h"

namespace korvane::test {
namespace {

using base::Colour;

class SampleHost final : public controls::TimeDateHost {
public:
    explicit SampleHost(Colour colour) : brush_{::CreateSolidBrush(fw::ToWindows(colour))} {}
    void TakeFont(const wchar_t* face) {
        font_.Reset(::CreateFontW(-::MulDiv(9, fw::Scale().Dpi(), 72), 0, 0, 0, FW_NORMAL, 0, 0, 0, DEFAULT_CHARSET, 0,
                                  0, CLEARTYPE_QUALITY, 0, face));
    }
    [[nodiscard]] HBRUSH BarBrush() const override { return brush_.Get(); }
    [[nodiscard]] HFONT BarFont() const override { return font_.Get(); }
    void OnTimeSettingsStarted(INT_PTR) override {}
    void OnTimeDateClosed() override { ::PostQuitMessage(0); }

private:
    fw::UniqueBrush brush_;
    fw::UniqueFont font_;
};

} // namespace
} // namespace korvane::test

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR arguments, int) {
    using namespace korvane;
    constexpr int kColumns = 2;
    constexpr int kGap = 8;

    ::InitCommonControls();
    test::FakeClock clock;
    std::array bars{test::SampleHost{base::Colour::Rgb(159, 22, 106)}, test::SampleHost{base::Colour::Rgb(32, 32, 32)},
                    test::SampleHost{base::Colour::Rgb(193, 193, 193)},
                    test::SampleHost{base::Colour::Rgb(240, 240, 240)}};
    fw::MessageLoop loop;
    for (std::size_t i = 0; i < bars.size(); ++i) {
        bars[i].TakeFont(*arguments != L'\0' ? arguments : L"Meiryo UI");
        const HWND popUp = controls::CTimeDateDialog::Open(bars[i], nullptr, loop, {clock, controls::ShellStart{}});
        const base::Size size = fw::WindowRect(popUp).Extent();
        const int column = static_cast<int>(i) % kColumns;
        const int row = static_cast<int>(i) / kColumns;
        ::SetWindowPos(popUp, nullptr, kGap + column * (size.width + kGap), kGap + row * (size.height + kGap), 0, 0,
                       SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    }
    MSG message{};
    while (::GetMessageW(&message, nullptr, 0, 0) > 0) {
        // Only one of them can be active; the others would close.
        if (message.message != WM_COMMAND) loop.Process(message);
    }
    return 0;
}
