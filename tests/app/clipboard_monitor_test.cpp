#include "app/clipboard_monitor.h"

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "app/logic/clipboard_rules.h"
#include "tests/support/clipboard.h"
#include "tests/support/window_test.h"

using namespace korvane;
using namespace korvane::app;
using korvane::test::BytesOf;
using korvane::test::ClipboardHolder;
using korvane::test::Copied;
using korvane::test::WaitUntil;

namespace {

using namespace std::string_view_literals;

constexpr UINT_PTR kTimer = 7;

// A window with a monitor, as the bar is.
class Listener final : public fw::Window<Listener> {
public:
    static constexpr fw::WindowClass kClass{.name = L"KorvaneTestListener_WndClass"};
    static constexpr auto Messages() {
        return fw::MessageMap{fw::On<WM_CLIPBOARDUPDATE>(&Listener::OnUpdate), fw::On<WM_TIMER>(&Listener::OnTimer)};
    }

    bool wanted = true;
    std::vector<std::wstring> texts;
    ClipboardMonitor monitor{kTimer, [this] { return wanted; },
                             [this](const std::wstring& text) { texts.push_back(text); }};
    int updates = 0;

private:
    void OnUpdate(const fw::Message&) {
        ++updates;
        monitor.OnUpdate();
    }
    fw::Reply OnTimer(UINT_PTR id) { return monitor.OnTimer(id) ? fw::Reply{0} : fw::kPassOn; }
};

class ClipboardMonitorTest : public korvane::test::WindowTest {
protected:
    void SetUp() override {
        WindowTest::SetUp();
        ASSERT_TRUE(listener.Create({.style = WS_POPUP}));
    }
    void TearDown() override { listener.monitor.Stop(); }

    void StartMonitor() { ASSERT_TRUE(listener.monitor.Start(listener.Handle())); }
    void Copy(const std::vector<Copied>& formats) const { ASSERT_TRUE(test::Copy(Host(), formats)); }

    // What the window gets when the clipboard's content changes; the real message stays in the queue.
    void Update() { Send(listener.Handle(), WM_CLIPBOARDUPDATE); }
    void Tick(int times = 1) {
        for (int i = 0; i < times; ++i) Send(listener.Handle(), WM_TIMER, kTimer);
    }
    // Lets the system finish with the clipboard: it, too, may have it open for a moment.
    std::vector<std::wstring> TextsOf(const std::vector<Copied>& formats) {
        Copy(formats);
        WaitUntil([this] {
            const bool free = ::OpenClipboard(Host()) != 0;
            if (free) ::CloseClipboard();
            return free;
        });
        Update();
        // Asks again where the system was quicker.
        for (int i = 1; i < kClipboardAttempts && listener.texts.empty(); ++i) Tick();
        return listener.texts;
    }
    // Windows kills only a timer that runs; so asking is killing it.
    [[nodiscard]] bool TimerWasRunning() const { return ::KillTimer(listener.Handle(), kTimer) != 0; }

    Listener listener;
};

using Texts = std::vector<std::wstring>;

UINT Format(const wchar_t* name) {
    return ::RegisterClipboardFormatW(name);
}

} // namespace

TEST_F(ClipboardMonitorTest, TellsWhatIsCopied) {
    StartMonitor();

    Copy({{CF_UNICODETEXT, BytesOf(L"東京 天気\0"sv)}});

    EXPECT_TRUE(WaitUntil([this] {
        Pump();
        return !listener.texts.empty();
    }));
    EXPECT_EQ(listener.texts, Texts{L"東京 天気"});
}

TEST_F(ClipboardMonitorTest, HearsNothingAfterItsEnd) {
    Listener other;
    ASSERT_TRUE(other.Create({.style = WS_POPUP}));
    ASSERT_TRUE(other.monitor.Start(other.Handle()));
    StartMonitor();
    listener.monitor.Stop();

    Copy({{CF_UNICODETEXT, BytesOf(L"text\0"sv)}});

    EXPECT_TRUE(WaitUntil([&] {
        Pump();
        return other.updates > 0;
    }));
    EXPECT_EQ(listener.updates, 0);
    other.monitor.Stop();
}

TEST_F(ClipboardMonitorTest, StartsAndStopsMoreThanOnce) {
    StartMonitor();
    StartMonitor();
    listener.monitor.Stop();
    listener.monitor.Stop();
    StartMonitor();

    EXPECT_EQ(TextsOf({{CF_UNICODETEXT, BytesOf(L"text\0"sv)}}), Texts{L"text"});
}

TEST_F(ClipboardMonitorTest, RefusesAWindowThatIsGone) {
    Listener gone;
    ASSERT_TRUE(gone.Create({.style = WS_POPUP}));
    const HWND window = gone.Handle();
    ::DestroyWindow(window);

    EXPECT_FALSE(listener.monitor.Start(window));
}

TEST_F(ClipboardMonitorTest, DoesNothingBeforeItIsStarted) {
    Copy({{CF_UNICODETEXT, BytesOf(L"text\0"sv)}});

    Update();
    Tick();

    EXPECT_EQ(listener.texts, Texts{});
    EXPECT_FALSE(TimerWasRunning());
}

TEST_F(ClipboardMonitorTest, PassesOnOneLineOnly) {
    StartMonitor();

    EXPECT_EQ(TextsOf({{CF_UNICODETEXT, BytesOf(L"\r\none\r\ntwo\r\n\0"sv)}}), Texts{L"one two"});
}

TEST_F(ClipboardMonitorTest, ConvertsTextOfTheSystemsCodePage) {
    std::array<char, 32> bytes{};
    const int size = ::WideCharToMultiByte(CP_ACP, 0, L"天気 abc", -1, bytes.data(), bytes.size(), nullptr, nullptr);
    StartMonitor();

    const Texts texts = TextsOf({{CF_TEXT, {bytes.data(), static_cast<std::size_t>(size)}}});

    std::array<wchar_t, 32> back{};
    ::MultiByteToWideChar(CP_ACP, 0, bytes.data(), -1, back.data(), static_cast<int>(back.size()));
    EXPECT_EQ(texts, Texts{back.data()});
}

TEST_F(ClipboardMonitorTest, TakesTheTextThatComesFirst) {
    StartMonitor();

    EXPECT_EQ(TextsOf({{CF_TEXT, "narrow\0"sv}, {CF_UNICODETEXT, BytesOf(L"wide\0"sv)}}), Texts{L"narrow"});
}

TEST_F(ClipboardMonitorTest, TakesTheUnicodeTextWhenThatComesFirst) {
    StartMonitor();

    EXPECT_EQ(TextsOf({{CF_UNICODETEXT, BytesOf(L"wide\0"sv)}, {CF_TEXT, "narrow\0"sv}}), Texts{L"wide"});
}

TEST_F(ClipboardMonitorTest, PassesOverOtherFormats) {
    StartMonitor();

    EXPECT_EQ(TextsOf({{Format(L"Korvane Test"), "????"sv}, {CF_UNICODETEXT, BytesOf(L"text\0"sv)}}), Texts{L"text"});
}

TEST_F(ClipboardMonitorTest, TellsNothingWithoutText) {
    StartMonitor();

    EXPECT_EQ(TextsOf({{Format(L"Korvane Test"), "????"sv}}), Texts{});
    EXPECT_FALSE(TimerWasRunning());
}

TEST_F(ClipboardMonitorTest, TellsNothingOfAnEmptyClipboard) {
    StartMonitor();

    EXPECT_EQ(TextsOf({}), Texts{});
}

TEST_F(ClipboardMonitorTest, TellsNothingOfAnEmptyText) {
    StartMonitor();

    EXPECT_EQ(TextsOf({{CF_UNICODETEXT, BytesOf(L"\0"sv)}}), Texts{});
    EXPECT_EQ(TextsOf({{CF_TEXT, "\0"sv}}), Texts{});
}

TEST_F(ClipboardMonitorTest, TellsNothingOfATextThatIsNotDelivered) {
    StartMonitor();

    EXPECT_EQ(TextsOf({{CF_UNICODETEXT, {}, true}}), Texts{});
    EXPECT_FALSE(TimerWasRunning());
}

TEST_F(ClipboardMonitorTest, ReadsNoFurtherThanTheMemory) {
    StartMonitor();

    const Texts texts = TextsOf({{CF_TEXT, "abc"sv}});

    // Some systems put a zero over the last byte.
    ASSERT_EQ(texts.size(), 1U);
    EXPECT_TRUE(texts[0] == L"abc" || texts[0] == L"ab");
}

TEST_F(ClipboardMonitorTest, CutsAHugeText) {
    StartMonitor();
    const std::wstring huge(1'000'000, L'x');

    EXPECT_EQ(TextsOf({{CF_UNICODETEXT, BytesOf(huge)}}), Texts{std::wstring(kLongestClipboardText, L'x')});
}

TEST_F(ClipboardMonitorTest, LeavesAloneWhatItsOwnerExcludes) {
    StartMonitor();
    const Copied secret{CF_UNICODETEXT, BytesOf(L"secret\0"sv)};

    EXPECT_EQ(TextsOf({secret, {Format(L"ExcludeClipboardContentFromMonitorProcessing"), "1"sv}}), Texts{});
    EXPECT_EQ(TextsOf({secret, {Format(L"Clipboard Viewer Ignore"), "1"sv}}), Texts{});
    EXPECT_EQ(TextsOf({secret, {Format(L"CanIncludeInClipboardHistory"), "\0\0\0\0"sv}}), Texts{});
}

TEST_F(ClipboardMonitorTest, TakesWhatMayBeKept) {
    StartMonitor();

    EXPECT_EQ(
        TextsOf({{CF_UNICODETEXT, BytesOf(L"open\0"sv)}, {Format(L"CanIncludeInClipboardHistory"), "\1\0\0\0"sv}}),
        Texts{L"open"});
}

TEST_F(ClipboardMonitorTest, TakesWhatIsMarkedWithADamagedNumber) {
    StartMonitor();

    EXPECT_EQ(TextsOf({{CF_UNICODETEXT, BytesOf(L"open\0"sv)}, {Format(L"CanIncludeInClipboardHistory"), "\0"sv}}),
              Texts{L"open"});
}

TEST_F(ClipboardMonitorTest, DoesNotLookWhileItIsNotWanted) {
    StartMonitor();
    listener.wanted = false;
    Copy({{CF_UNICODETEXT, BytesOf(L"text\0"sv)}});
    const ClipboardHolder holder;

    Update();

    EXPECT_EQ(listener.texts, Texts{});
    EXPECT_FALSE(TimerWasRunning()); // it would run if the clipboard had been asked for
}

TEST_F(ClipboardMonitorTest, TriesAgainWhileAnotherProgramHoldsTheClipboard) {
    StartMonitor();
    Copy({{CF_UNICODETEXT, BytesOf(L"late\0"sv)}});
    {
        const ClipboardHolder holder;
        Update();
        Tick(3);
        EXPECT_EQ(listener.texts, Texts{});
    }

    EXPECT_TRUE(WaitUntil([this] {
        Pump();
        return !listener.texts.empty();
    }));

    // What waited in the queue besides the timer may have brought it once more.
    EXPECT_EQ(listener.texts.front(), L"late");
    EXPECT_FALSE(TimerWasRunning());
}

TEST_F(ClipboardMonitorTest, IsStillTryingAfterNineAttempts) {
    StartMonitor();
    const ClipboardHolder holder;

    Update();
    Tick(8);

    EXPECT_TRUE(TimerWasRunning());
}

TEST_F(ClipboardMonitorTest, GivesUpAfterTenAttempts) {
    StartMonitor();
    Copy({{CF_UNICODETEXT, BytesOf(L"text\0"sv)}});
    {
        const ClipboardHolder holder;
        Update();
        Tick(9);
    }

    EXPECT_FALSE(TimerWasRunning());
    Tick();
    EXPECT_EQ(listener.texts, Texts{});
}

TEST_F(ClipboardMonitorTest, CountsAnewForNewerContent) {
    StartMonitor();
    const ClipboardHolder holder;

    Update();
    Tick(8);
    Update();
    Tick(8);

    EXPECT_TRUE(TimerWasRunning());
}

TEST_F(ClipboardMonitorTest, StopsTryingWhenItIsNoLongerWanted) {
    StartMonitor();
    const ClipboardHolder holder;
    Update();

    listener.wanted = false;
    Tick();

    EXPECT_FALSE(TimerWasRunning());
}

TEST_F(ClipboardMonitorTest, StopsTryingAtItsEnd) {
    StartMonitor();
    const ClipboardHolder holder;
    Update();

    listener.monitor.Stop();

    EXPECT_FALSE(TimerWasRunning());
}

TEST_F(ClipboardMonitorTest, LeavesOtherTimersAlone) {
    StartMonitor();

    EXPECT_FALSE(listener.monitor.OnTimer(kTimer + 1));
    EXPECT_TRUE(listener.monitor.OnTimer(kTimer));
}
