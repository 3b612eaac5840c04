#include "framework/dialog.h"

#include <gmock/gmock.h>

#include <functional>
#include <string>

#include "framework/icons.h"
#include "res/image_ids.h"
#include "tests/framework/test_ids.h"
#include "tests/support/icon_pixels.h"
#include "tests/support/window_test.h"

namespace fw {
namespace {

constexpr UINT kAsk = WM_APP + 10;
constexpr UINT kDecline = WM_APP + 11;

class TestDialog final : public Dialog<TestDialog> {
public:
    static constexpr UINT kTemplate = IDD_TEST_DIALOG;
    static constexpr auto Messages() {
        return MessageMap{
            On<WM_INITDIALOG>(&TestDialog::OnInitDialog),
            On<WM_DESTROY>(&TestDialog::OnDestroy),
            On<kAsk>(&TestDialog::OnAsk),
            On<kDecline>(&TestDialog::OnDecline),
            On<WM_CTLCOLORSTATIC>(&TestDialog::OnColour),
            OnCommand<IDC_TEST_BUTTON>(&TestDialog::OnButton),
            OnControl<IDC_TEST_BUTTON, IDC_TEST_BUTTON, LBN_DBLCLK>(&TestDialog::OnTwice),
            OnControl<IDC_TEST_BUTTON, IDC_TEST_BUTTON, BN_KILLFOCUS>(&TestDialog::OnLeft),
        };
    }

    explicit TestDialog(std::string& log) : log_{log} {}

    std::function<void()> onInit;

protected:
    void OnFinalMessage() override { log_ += Handle() ? "final while bound;" : "final;"; }

private:
    bool OnInitDialog(HWND firstControl) {
        log_ += "init " + std::to_string(::GetDlgCtrlID(firstControl)) + ";";
        if (onInit) onInit();
        return true;
    }
    Reply OnDestroy() {
        log_ += "destroy;";
        return kPassOn;
    }
    LRESULT OnAsk(const Message& m) { return static_cast<LRESULT>(m.wparam) * 2; }
    Reply OnDecline(const Message&) { return kPassOn; }
    HBRUSH OnColour(const Message&) { return static_cast<HBRUSH>(::GetStockObject(DKGRAY_BRUSH)); }
    void OnButton() { log_ += "button;"; }
    void OnTwice() { log_ += "twice;"; }
    void OnLeft() { log_ += "left;"; }

    std::string& log_;
};

class MissingDialog final : public Dialog<MissingDialog> {
public:
    static constexpr UINT kTemplate = IDD_TEST_DIALOG + 1000;
    static constexpr auto Messages() { return MessageMap{}; }
};

class DialogTest : public korvane::test::WindowTest {
protected:
    std::string log;
    TestDialog dialog{log};
};

TEST_F(DialogTest, EndsWithTheResultThatItIsGiven) {
    dialog.onInit = [&] { ::EndDialog(dialog.Handle(), 42); };

    EXPECT_EQ(dialog.ShowModal(nullptr), 42);

    EXPECT_EQ(log, "init 30002;destroy;final;");
    EXPECT_EQ(dialog.Handle(), nullptr);
}

TEST_F(DialogTest, CannotBeShownWithoutItsTemplate) {
    MissingDialog missing;

    EXPECT_EQ(missing.ShowModal(nullptr), -1);
    EXPECT_FALSE(missing.Create(Host()));
    EXPECT_EQ(missing.Handle(), nullptr);
}

TEST_F(DialogTest, ReturnsTheResultOfAMessageOfItsOwn) {
    ASSERT_TRUE(dialog.Create(Host()));

    EXPECT_EQ(Send(dialog.Handle(), kAsk, 21), 42);
}

TEST_F(DialogTest, ReturnsABrushForAControlsColour) {
    ASSERT_TRUE(dialog.Create(Host()));
    const HWND button = ::GetDlgItem(dialog.Handle(), IDC_TEST_BUTTON);
    const WindowDc dc{button};

    const LRESULT brush =
        Send(dialog.Handle(), WM_CTLCOLORSTATIC, reinterpret_cast<WPARAM>(dc.Get()), reinterpret_cast<LPARAM>(button));

    EXPECT_EQ(reinterpret_cast<HGDIOBJ>(brush), ::GetStockObject(DKGRAY_BRUSH));
}

TEST_F(DialogTest, LeavesWhatItDeclinesToTheDialogManager) {
    ASSERT_TRUE(dialog.Create(Host()));

    EXPECT_EQ(Send(dialog.Handle(), kDecline), 0);
    Send(dialog.Handle(), DM_SETDEFID, IDC_TEST_BUTTON);
    EXPECT_EQ(LOWORD(Send(dialog.Handle(), DM_GETDEFID)), IDC_TEST_BUTTON);
}

TEST_F(DialogTest, HearsItsControls) {
    ASSERT_TRUE(dialog.Create(Host()));
    log.clear();

    Send(::GetDlgItem(dialog.Handle(), IDC_TEST_BUTTON), BM_CLICK);

    EXPECT_EQ(log, "button;");
}

TEST_F(DialogTest, IsSetUpOnceHoweverOftenItIsToldTo) {
    constexpr LPARAM kWildPointer = 0x44332211;
    ASSERT_TRUE(dialog.Create(Host()));
    log.clear();

    Send(dialog.Handle(), WM_INITDIALOG, 0, kWildPointer);
    Send(dialog.Handle(), WM_INITDIALOG, 0, reinterpret_cast<LPARAM>(&dialog));
    ::PostMessageW(dialog.Handle(), WM_INITDIALOG, 0, kWildPointer);
    Pump();

    EXPECT_EQ(log, "");
    EXPECT_EQ(WindowObject::From(dialog.Handle()), &dialog);
}

TEST_F(DialogTest, HearsNoCommandBelowAnotherDialog) {
    ASSERT_TRUE(dialog.Create(Host()));
    const HWND button = ::GetDlgItem(dialog.Handle(), IDC_TEST_BUTTON);
    const auto choose = [&](UINT code) {
        Send(dialog.Handle(), WM_COMMAND, MAKEWPARAM(IDC_TEST_BUTTON, code), reinterpret_cast<LPARAM>(button));
    };
    log.clear();

    ::EnableWindow(dialog.Handle(), FALSE);
    choose(BN_CLICKED);
    choose(LBN_DBLCLK);
    Send(dialog.Handle(), WM_COMMAND, IDC_TEST_BUTTON);
    EXPECT_EQ(log, "");

    // What a control tells when the focus goes from it to the other dialog, it tells late.
    choose(BN_KILLFOCUS);
    EXPECT_EQ(log, "left;");

    ::EnableWindow(dialog.Handle(), TRUE);
    choose(BN_CLICKED);
    choose(LBN_DBLCLK);
    EXPECT_EQ(log, "left;button;twice;");
}

TEST_F(DialogTest, IsBelowWhateverItsOutermostWindowIsBelow) {
    ASSERT_TRUE(dialog.Create(Host()));
    const HWND button = ::GetDlgItem(dialog.Handle(), IDC_TEST_BUTTON);
    EXPECT_FALSE(IsBelowModal(button));

    ::EnableWindow(dialog.Handle(), FALSE);

    EXPECT_TRUE(IsBelowModal(dialog.Handle()));
    EXPECT_TRUE(IsBelowModal(button));
    EXPECT_FALSE(IsBelowModal(Host()));
}

// The icon of a window, or null: small or big.
HICON IconOf(HWND window, WPARAM size) {
    return reinterpret_cast<HICON>(::SendMessageW(window, WM_GETICON, size, 0));
}

TEST_F(DialogTest, HasNoIconsWithoutACaption) {
    ASSERT_TRUE(dialog.Create(Host()));

    EXPECT_EQ(IconOf(dialog.Handle(), ICON_SMALL), nullptr);
    EXPECT_EQ(IconOf(dialog.Handle(), ICON_BIG), nullptr);
}

TEST_F(DialogTest, HasTheProgramsIconsWhenItHasACaptionAndNoneOfItsOwn) {
    dialog.onInit = [&] {
        ::SetWindowLongPtrW(dialog.Handle(), GWL_STYLE,
                            ::GetWindowLongPtrW(dialog.Handle(), GWL_STYLE) | WS_CAPTION | WS_SYSMENU);
    };

    ASSERT_TRUE(dialog.Create(Host()));

    const UniqueIcon small = LoadResourceIcon(IDI_KORVANE, ::GetSystemMetrics(SM_CXSMICON));
    const UniqueIcon big = LoadResourceIcon(IDI_KORVANE, ::GetSystemMetrics(SM_CXICON));
    ASSERT_NE(IconOf(dialog.Handle(), ICON_SMALL), nullptr);
    ASSERT_NE(IconOf(dialog.Handle(), ICON_BIG), nullptr);
    EXPECT_EQ(korvane::test::PixelsOf(IconOf(dialog.Handle(), ICON_SMALL)), korvane::test::PixelsOf(small.Get()));
    EXPECT_EQ(korvane::test::PixelsOf(IconOf(dialog.Handle(), ICON_BIG)), korvane::test::PixelsOf(big.Get()));
}

TEST_F(DialogTest, KeepsTheIconThatItHasOfItsOwn) {
    const auto own = ::LoadIconW(nullptr, IDI_QUESTION);
    dialog.onInit = [&] {
        ::SetWindowLongPtrW(dialog.Handle(), GWL_STYLE,
                            ::GetWindowLongPtrW(dialog.Handle(), GWL_STYLE) | WS_CAPTION | WS_SYSMENU);
        Send(dialog.Handle(), WM_SETICON, ICON_SMALL, reinterpret_cast<LPARAM>(own));
    };

    ASSERT_TRUE(dialog.Create(Host()));

    EXPECT_EQ(IconOf(dialog.Handle(), ICON_SMALL), own);
    EXPECT_EQ(IconOf(dialog.Handle(), ICON_BIG), nullptr);
}

TEST_F(DialogTest, OutlivesItsWindow) {
    ASSERT_TRUE(dialog.Create(Host()));
    const HWND window = dialog.Handle();
    log.clear();

    ::DestroyWindow(window);

    EXPECT_EQ(dialog.Handle(), nullptr);
    EXPECT_EQ(WindowObject::From(window), nullptr);
    EXPECT_EQ(log, "destroy;final;");
}

TEST_F(DialogTest, TakesItsWindowAlongWithoutHearingOfIt) {
    HWND window = nullptr;
    {
        TestDialog shortLived{log};
        ASSERT_TRUE(shortLived.Create(Host()));
        window = shortLived.Handle();
        log.clear();
    }

    EXPECT_FALSE(::IsWindow(window));
    EXPECT_EQ(log, "");
}

} // namespace
} // namespace fw
