// The docked bar that hides itself.

#include <chrono>
#include <span>
#include <vector>

#include "tests/program/bar_driver.h"
#include "tests/program/docked_bar.h"
#include "tests/support/other_window.h"

namespace korvane::test {
namespace {

using std::chrono::steady_clock;
using testing::IsEmpty;

constexpr UINT_PTR kHideCheck = 1; // the bar's timers
constexpr UINT_PTR kShowCheck = 2;

class AutoHide : public DockedBar {
protected:
    void SetUp() override {
        DockedBar::SetUp();
        HideAutomatically();
        // Ten seconds, so that only the tests that ask for less ever wait for the bar to hide.
        HideAfter(19);
    }

    static void HideAfter(DWORD index) { WriteSetting(kSettings, L"DesktopBarAutoHideSecond", index); }
    // What a timer's message does, without the wait.
    static void Expire(HWND bar, UINT_PTR timer) { ::SendMessageW(bar, WM_TIMER, timer, 0); }
    static bool StandsAbove(HWND window, HWND other) {
        for (HWND below = window; below != nullptr; below = ::GetWindow(below, GW_HWNDNEXT))
            if (below == other) return true;
        return false;
    }
    void TakeTheMouseAway() const { PutMouse(width_ / 2, height_ / 2); }

    // Starts with the strip on the screen; null when it does not come.
    HWND WaitForStrip(const Program& program) const {
        const HWND bar = program.WaitForBar();
        return bar != nullptr && PlaceIn(bar, strip_) == strip_ ? bar : nullptr;
    }
    const std::string whole_ = TopOf(screen_);
    const std::string strip_ = TopOf(screen_, 1);
};

TEST_F(AutoHide, LeavesAStripOfOnePixel) {
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);

    EXPECT_EQ(PlaceIn(bar, strip_), strip_);
    EXPECT_EQ(shell_.AutoHideOwner(ABE_TOP), bar);
    EXPECT_EQ(Text(shell_.ReservedBy(bar)), strip_);
    EXPECT_EQ(WorkArea().top, 1);
    EXPECT_FALSE(program.ShowsBox());
}

struct StripCase {
    const char* name;
    DWORD barEdge;
    UINT taskBarEdge;
    RECT strip; // by its distances from the screen's right and bottom edges where negative
};

class Strip : public AutoHide, public testing::WithParamInterface<StripCase> {};

TEST_P(Strip, IsTwiceAsThickAtTheTaskBarsEdge) {
    WriteSetting(kSettings, L"DesktopBarEdge", GetParam().barEdge);
    shell_.MoveTaskBar(GetParam().taskBarEdge);
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);

    const auto onScreen = [](LONG value, int extent) { return value > 0 ? value : value + extent; };
    const RECT strip = GetParam().strip;
    const std::string expected = Text({strip.left, strip.top < 0 ? strip.top + height_ : strip.top,
                                       onScreen(strip.right, width_), onScreen(strip.bottom, height_)});
    EXPECT_EQ(PlaceIn(bar, expected), expected);
}

INSTANTIATE_TEST_SUITE_P(Edges, Strip,
                         testing::Values(StripCase{"BothAtTheTop", 0, ABE_TOP, {0, 40, 0, 42}},
                                         StripCase{"BothAtTheBottom", 1, ABE_BOTTOM, {0, -42, 0, -40}},
                                         StripCase{"TopAndTaskBarAtTheBottom", 0, ABE_BOTTOM, {0, 0, 0, 1}},
                                         StripCase{"BottomAndTaskBarAtTheTop", 1, ABE_TOP, {0, -1, 0, 0}},
                                         StripCase{"TopAndTaskBarAtTheLeft", 0, ABE_LEFT, {40, 0, 0, 1}},
                                         StripCase{"BottomAndTaskBarAtTheRight", 1, ABE_RIGHT, {0, -1, -40, 0}}),
                         [](const auto& test) { return std::string{test.param.name}; });

TEST_F(AutoHide, LeavesOnePixelWhenNobodyKnowsWhereTheTaskBarIs) {
    DockAtTheBottom();
    shell_.Refuse(ABM_GETTASKBARPOS);
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);

    const std::string strip = BottomOf(besideTaskBar_, 1);
    EXPECT_EQ(PlaceIn(bar, strip), strip);
}

struct VersionCase {
    const char* name;
    const wchar_t* version;
    const char* steps;
};

class AutoHideOn : public AutoHide, public testing::WithParamInterface<VersionCase> {};

TEST_P(AutoHideOn, RegistersAfreshWhereTheShellWantsIt) {
    PretendWindowsIs(GetParam().version);
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);

    EXPECT_EQ(PlaceIn(bar, strip_), strip_);
    EXPECT_EQ(shell_.Steps(), GetParam().steps);
    EXPECT_EQ(WorkArea().top, 1);
}

constexpr char kAfresh[] = "NEW QUERYPOS SETPOS REMOVE NEW SETAUTOHIDEBAR(1) QUERYPOS SETPOS";
constexpr char kAtOnce[] = "NEW QUERYPOS SETPOS SETAUTOHIDEBAR(1) QUERYPOS SETPOS";
INSTANTIATE_TEST_SUITE_P(Windows, AutoHideOn,
                         testing::Values(VersionCase{"Windows7", L"win7", kAfresh},
                                         VersionCase{"Windows8", L"win8", kAtOnce},
                                         VersionCase{"Windows81", L"win81", kAtOnce},
                                         VersionCase{"Windows10", L"win10", kAtOnce}),
                         [](const auto& test) { return std::string{test.param.name}; });

TEST_F(AutoHide, SlidesOutWhenTheStripIsTouched) {
    const Program program;
    const HWND bar = WaitForStrip(program);
    ASSERT_NE(bar, nullptr);

    Touch(bar);

    EXPECT_EQ(PlaceIn(bar, whole_), whole_);
    EXPECT_EQ(::GetWindowLongW(bar, GWL_EXSTYLE) & WS_EX_TOPMOST, 0);
    EXPECT_EQ(WorkArea().top, 1) << "the bar that slides out is no reason to move other windows";
}

TEST_F(AutoHide, StaysInWhenTheMouseOnlyPassesTheStrip) {
    const Program program;
    const HWND bar = WaitForStrip(program);
    ASSERT_NE(bar, nullptr);

    ::SendMessageW(bar, WM_NCHITTEST, 0, MAKELPARAM(width_ / 2, 0));
    Expire(bar, kShowCheck);

    EXPECT_EQ(PlaceOf(bar), strip_);
}

class HideDelay : public AutoHide, public testing::WithParamInterface<DWORD> {};

TEST_P(HideDelay, PassesBeforeTheBarSlidesInAgain) {
    HideAfter(GetParam());
    const Program program;
    const HWND bar = WaitForStrip(program);
    ASSERT_NE(bar, nullptr);
    const auto touched = steady_clock::now();
    ASSERT_TRUE(SlideOut(bar, whole_));

    TakeTheMouseAway();

    EXPECT_EQ(PlaceIn(bar, strip_), strip_);
    EXPECT_GE(steady_clock::now() - touched, std::chrono::milliseconds{500} * (GetParam() + 1));
}

INSTANTIATE_TEST_SUITE_P(Index, HideDelay, testing::Values(0, 3));

TEST_F(AutoHide, StaysOutWhileTheMouseIsOnTheBar) {
    const Program program;
    const HWND bar = WaitForStrip(program);
    ASSERT_NE(bar, nullptr);
    ASSERT_TRUE(SlideOut(bar, whole_));

    Expire(bar, kHideCheck);
    EXPECT_EQ(PlaceOf(bar), whole_);

    TakeTheMouseAway();
    Expire(bar, kHideCheck);
    EXPECT_EQ(PlaceOf(bar), strip_);
}

class MenuOfTheBar : public AutoHide, public testing::WithParamInterface<int> {};

TEST_P(MenuOfTheBar, KeepsItOutWhileItIsOpen) {
    const Program program;
    const HWND bar = WaitForStrip(program);
    ASSERT_NE(bar, nullptr);
    ASSERT_TRUE(SlideOut(bar, whole_));
    TakeTheMouseAway();
    Command(bar, GetParam());
    ASSERT_TRUE(WaitUntil([] { return !AllWindows(L"#32768").empty(); }));

    Expire(bar, kHideCheck);
    EXPECT_EQ(PlaceOf(bar), whole_);

    ::PostMessageW(bar, WM_CANCELMODE, 0, 0);
    ASSERT_TRUE(WaitUntil([&] { return AllWindows(L"#32768").empty() && WaitUntilIdle(bar); }));
    Expire(bar, kHideCheck);
    EXPECT_EQ(PlaceOf(bar), strip_);
}

INSTANTIATE_TEST_SUITE_P(Commands, MenuOfTheBar,
                         testing::Values(int{kOpenMainMenu}, int{kOpenSearchChooser}, int{kOpenControlPanel}));

TEST_F(AutoHide, StaysOutWhileAHistoryIsOpen) {
    const Program program;
    const HWND bar = WaitForStrip(program);
    ASSERT_NE(bar, nullptr);
    ASSERT_TRUE(SlideOut(bar, whole_));
    TakeTheMouseAway();
    const auto windowsOfTheProgram = [&] { return WindowsOf(program.Id()).size(); };
    const auto before = windowsOfTheProgram();
    Command(bar, kCommandHistory);
    ASSERT_TRUE(WaitUntil([&] { return windowsOfTheProgram() > before && WaitUntilIdle(bar); }));

    Expire(bar, kHideCheck);

    EXPECT_EQ(PlaceOf(bar), whole_);
}

TEST_F(AutoHide, StaysOutWhileAMessageBoxAsks) {
    WriteSetting(kSettings, L"ConfirmExitApp", DWORD{0});
    const Program program;
    const HWND bar = WaitForStrip(program);
    ASSERT_NE(bar, nullptr);
    ASSERT_TRUE(SlideOut(bar, whole_));
    TakeTheMouseAway();
    Close(bar);
    const auto box = program.WaitForBox();
    ASSERT_TRUE(box);

    Expire(bar, kHideCheck);
    EXPECT_EQ(PlaceOf(bar), whole_);

    ASSERT_TRUE(box.Press(IDNO));
    ASSERT_TRUE(WaitUntil([&] { return ::IsWindowEnabled(bar) && WaitUntilIdle(bar); }));
    Expire(bar, kHideCheck);
    EXPECT_EQ(PlaceOf(bar), strip_);
}

// ---- Typing

class TypingIntoTheBar : public AutoHide {
protected:
    // Starts, slides out under the mouse, and gives the command box the caret with a click; null when that fails.
    HWND WaitForBarWithCaret(const Program& program) const {
        const HWND bar = WaitForStrip(program);
        if (bar == nullptr || !SlideOut(bar, whole_)) return nullptr;
        return ClickIntoFocus(Control(bar, kCommandBox)) && WaitUntilIdle(bar) ? bar : nullptr;
    }
    // What the hide check makes of the bar with the mouse elsewhere.
    std::string PlaceAfterHideCheck(HWND bar) const {
        TakeTheMouseAway();
        WaitUntilIdle(bar);
        Expire(bar, kHideCheck);
        return PlaceOf(bar);
    }
};

TEST_F(TypingIntoTheBar, KeepsItOut) {
    const Program program;
    const HWND bar = WaitForBarWithCaret(program);
    ASSERT_NE(bar, nullptr);
    EXPECT_EQ(PlaceAfterHideCheck(bar), whole_) << "with the caret in a box";

    PressKeys({'A'});
    ASSERT_TRUE(WaitUntil([&] { return TextOf(Control(bar, kCommandBox)) == L"a"; }));

    EXPECT_EQ(PlaceAfterHideCheck(bar), whole_) << "with a letter in it";
}

TEST_F(TypingIntoTheBar, KeepsItOutAgainAfterEsc) {
    const Program program;
    const HWND bar = WaitForBarWithCaret(program);
    ASSERT_NE(bar, nullptr);

    PressKeys({VK_ESCAPE});
    TypeText(L"a");
    ASSERT_TRUE(WaitUntil([&] { return TextOf(Control(bar, kCommandBox)) == L"a"; }));

    EXPECT_EQ(PlaceAfterHideCheck(bar), whole_);
}

TEST_F(TypingIntoTheBar, EndsWithEsc) {
    const Program program;
    const HWND bar = WaitForBarWithCaret(program);
    ASSERT_NE(bar, nullptr);
    TakeTheMouseAway();

    PressKeys({VK_ESCAPE});

    EXPECT_TRUE(WaitUntil([&] { return PlaceAfterHideCheck(bar) == strip_; }));
}

TEST_F(TypingIntoTheBar, EndsWithASearch) {
    WriteSetting(kSettings, L"EnableEnterEvent", 1);
    const Program program;
    const HWND bar = WaitForBarWithCaret(program);
    ASSERT_NE(bar, nullptr);
    ASSERT_TRUE(TypeInto(Control(bar, kSearchBox), L"abc"));
    ASSERT_EQ(PlaceAfterHideCheck(bar), whole_);

    PressKeys({VK_RETURN});

    EXPECT_TRUE(WaitUntil([&] { return PlaceAfterHideCheck(bar) == strip_; }));
}

TEST_F(TypingIntoTheBar, EndsWithAStart) {
    WriteSetting(kSettings, L"EnableEnterEvent", 1);
    const Program program;
    const HWND bar = WaitForBarWithCaret(program);
    ASSERT_NE(bar, nullptr);
    ASSERT_TRUE(TypeInto(Control(bar, kCommandBox), L"http://start.example/"));
    ASSERT_EQ(PlaceAfterHideCheck(bar), whole_);

    PressKeys({VK_RETURN});

    EXPECT_TRUE(WaitUntil([&] { return PlaceAfterHideCheck(bar) == strip_; }));
}

TEST_F(TypingIntoTheBar, EndsWhenAnotherWindowComesToTheFront) {
    const OtherWindow other{L"other"};
    const Program program;
    const HWND bar = WaitForBarWithCaret(program);
    ASSERT_NE(bar, nullptr);
    ASSERT_EQ(PlaceAfterHideCheck(bar), whole_);

    ASSERT_TRUE(other.TakeForeground());

    EXPECT_TRUE(WaitUntil([&] { return PlaceAfterHideCheck(bar) == strip_; }));
}

// Nobody types here: the bar was brought out by the mouse.
TEST_F(TypingIntoTheBar, IsNotNeededWhileABoxShowsItsOwnMenu) {
    const Program program;
    const HWND bar = WaitForStrip(program);
    ASSERT_NE(bar, nullptr);
    ASSERT_TRUE(SlideOut(bar, whole_));
    TakeTheMouseAway();
    const HWND box = Control(bar, kCommandBox);
    ::PostMessageW(box, WM_CONTEXTMENU, reinterpret_cast<WPARAM>(box), -1);
    ASSERT_TRUE(WaitUntil([] { return !AllWindows(L"#32768").empty(); }));

    Expire(bar, kHideCheck);
    EXPECT_EQ(PlaceOf(bar), whole_);

    ::PostMessageW(box, WM_CANCELMODE, 0, 0);
    ASSERT_TRUE(WaitUntil([] { return AllWindows(L"#32768").empty(); }));
    EXPECT_EQ(PlaceAfterHideCheck(bar), strip_);
}

TEST_F(TypingIntoTheBar, IsNotNeededWhileASelectionIsDraggedOutOfABox) {
    const Program program;
    const HWND bar = WaitForStrip(program);
    ASSERT_NE(bar, nullptr);
    ASSERT_TRUE(SlideOut(bar, whole_));
    TakeTheMouseAway();
    const HWND box = Control(bar, kCommandBox);
    ::SendMessageW(box, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(4, 4));

    Expire(bar, kHideCheck);
    EXPECT_EQ(PlaceOf(bar), whole_);

    ::SendMessageW(box, WM_LBUTTONUP, 0, MAKELPARAM(4, 4));
    EXPECT_EQ(PlaceAfterHideCheck(bar), strip_);
}

TEST_F(AutoHide, SlidesOutUnderTheCursorWithItsKey) {
    const Program program;
    const HWND bar = WaitForStrip(program);
    ASSERT_NE(bar, nullptr);

    PressKeys({VK_MENU, VK_LWIN, 'Z'});

    EXPECT_EQ(PlaceIn(bar, whole_), whole_);
    RECT box{};
    ::GetWindowRect(Control(bar, kSearchBox), &box);
    POINT cursor{};
    EXPECT_TRUE(WaitUntil([&] {
        ::GetCursorPos(&cursor);
        return cursor.x == box.left && cursor.y == (box.top + box.bottom) / 2;
    })) << cursor.x
        << ',' << cursor.y;
    ASSERT_TRUE(WaitUntilIdle(bar));
    Expire(bar, kHideCheck);
    EXPECT_EQ(PlaceOf(bar), whole_) << "the cursor holds it";
}

TEST_F(AutoHide, LeavesTheForegroundToTheProgramThatHasIt) {
    HideAfter(0);
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);
    ASSERT_EQ(PlaceIn(bar, TopOf(besideTaskBar_, 1)), TopOf(besideTaskBar_, 1));
    const OtherWindow other{L"other"};
    ASSERT_TRUE(other.TakeForeground());

    EXPECT_TRUE(SlideOut(bar, TopOf(besideTaskBar_)));
    EXPECT_EQ(::GetForegroundWindow(), other.Handle()) << "when the bar comes";

    // The display server may still be carrying out the move that the bar asked for.
    EXPECT_TRUE(WaitUntil([&] {
        ::SetCursorPos(width_ / 2, height_ / 2);
        return PlaceOf(bar) == TopOf(besideTaskBar_, 1);
    }));
    EXPECT_EQ(::GetForegroundWindow(), other.Handle()) << "when it goes";
}

TEST_F(AutoHide, SlidesOutToOpenAHistoryByKey) {
    const Program program;
    const HWND bar = WaitForStrip(program);
    ASSERT_NE(bar, nullptr);
    const auto windowsOfTheProgram = [&] { return WindowsOf(program.Id()).size(); };
    const auto before = windowsOfTheProgram();

    Command(bar, kOpenCommandHistory);

    EXPECT_EQ(PlaceIn(bar, whole_), whole_);
    EXPECT_TRUE(WaitUntil([&] { return windowsOfTheProgram() > before; }));
}

TEST_F(AutoHide, KeepsTheHistoryOpenThatRealKeysOpenedOnAHiddenBar) {
    WriteSetting(kRecentCommands, L"ListItem01", L"newest");
    const Program program;
    const HWND bar = WaitForStrip(program);
    ASSERT_NE(bar, nullptr);
    ASSERT_TRUE(WaitUntil([&] { return ::GetForegroundWindow() == bar || (::SetForegroundWindow(bar), false); }));

    PressKeys({VK_CONTROL, VK_F2});

    EXPECT_EQ(PlaceIn(bar, whole_), whole_);
    ASSERT_NE(HistoryList(program), nullptr);
    // It is still there when all that the keys have caused is over.
    ASSERT_TRUE(WaitUntilIdle(bar));
    PressKeys({VK_RETURN});
    EXPECT_TRUE(WaitUntil([&] { return TextOf(Control(bar, kCommandBox)) == L"newest"; }));
}

TEST_F(AutoHide, ComesOutForWhatIsTypedIntoIt) {
    const Program program;
    const HWND bar = WaitForStrip(program);
    ASSERT_NE(bar, nullptr);
    ASSERT_TRUE(WaitUntil([&] { return ::GetForegroundWindow() == bar || (::SetForegroundWindow(bar), false); }));

    TypeText(L"a");

    EXPECT_EQ(PlaceIn(bar, whole_), whole_);
    EXPECT_TRUE(WaitUntil([&] { return TextOf(Control(bar, kCommandBox)) == L"a"; }));
}

TEST_F(AutoHide, TakesWhatIsTypedAfterItsKey) {
    const OtherWindow other{L"other"};
    const Program program;
    const HWND bar = WaitForStrip(program);
    ASSERT_NE(bar, nullptr);
    ASSERT_TRUE(other.TakeForeground());

    PressKeys({VK_MENU, VK_LWIN, 'Z'});
    ASSERT_EQ(PlaceIn(bar, whole_), whole_);
    ASSERT_TRUE(WaitUntil([&] { return FocusOf(bar) == Control(bar, kSearchBox) && ::GetForegroundWindow() == bar; }));
    TypeText(L"東京");
    EXPECT_TRUE(WaitUntil([&] { return TextOf(Control(bar, kSearchBox)) == L"東京"; }));
    other.ForgetActivation();
    PressKeys({VK_ESCAPE});
    PressKeys({VK_ESCAPE});

    EXPECT_TRUE(other.WaitUntilActivated());
}

TEST_F(AutoHide, StaysInUnderAFullScreenProgram) {
    const Program program;
    const HWND bar = WaitForStrip(program);
    ASSERT_NE(bar, nullptr);
    shell_.Notify(ABN_FULLSCREENAPP, TRUE);
    ASSERT_TRUE(WaitUntilIdle(bar));
    Touch(bar);

    Expire(bar, kShowCheck);
    EXPECT_EQ(PlaceOf(bar), strip_);

    shell_.Notify(ABN_FULLSCREENAPP, FALSE);
    TakeTheMouseAway();
    EXPECT_TRUE(SlideOut(bar, whole_));
}

TEST_F(AutoHide, HidesUnderAFullScreenProgramAndComesBackAsItsStrip) {
    const Program program;
    const HWND bar = WaitForStrip(program);
    ASSERT_NE(bar, nullptr);
    ASSERT_TRUE(SlideOut(bar, whole_));
    TakeTheMouseAway();
    // Below the bar, until the bar goes to the bottom.
    const OtherWindow other{L"full screen"};
    ::SetWindowPos(bar, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    shell_.Notify(ABN_FULLSCREENAPP, TRUE);
    ASSERT_TRUE(WaitUntil([&] { return StandsAbove(other.Handle(), bar); }));

    Expire(bar, kHideCheck);
    EXPECT_EQ(PlaceOf(bar), strip_);
    EXPECT_TRUE(StandsAbove(other.Handle(), bar));

    shell_.Notify(ABN_FULLSCREENAPP, FALSE);
    EXPECT_TRUE(WaitUntil([&] { return StandsAbove(bar, other.Handle()); }));
    EXPECT_NE(::GetWindowLongW(bar, GWL_EXSTYLE) & WS_EX_TOPMOST, 0);
    EXPECT_EQ(PlaceOf(bar), strip_);
}

// ---- The controls that hide with the bar

constexpr std::array kHiddenWithTheBar{kMainMenu, kControlPanel, kLaunch1, kLaunch2, kLaunch3, kOptions, kHelp};
constexpr std::array kNeverHidden{kCommandBox,    kSearchBox, kCommandHistory, kSearchHistory,
                                  kSearchChooser, kRun,       kSearch,         kExit};

std::vector<int> Visible(HWND bar, std::span<const ControlId> controls) {
    std::vector<int> visible;
    for (const ControlId id : controls)
        if ((::GetWindowLongW(::GetDlgItem(bar, id), GWL_STYLE) & WS_VISIBLE) != 0) visible.push_back(id);
    return visible;
}

bool ShowsClock(HWND bar) {
    return (::GetWindowLongW(::GetDlgItem(bar, kClock), GWL_STYLE) & WS_VISIBLE) != 0;
}

TEST_F(AutoHide, HidesSomeControlsWithTheBar) {
    WriteSetting(kSettings, L"ShowTimeBarClock", 1);
    const Program program;
    const HWND bar = WaitForStrip(program);
    ASSERT_NE(bar, nullptr);
    ASSERT_TRUE(WaitUntilIdle(bar));
    EXPECT_THAT(Visible(bar, kHiddenWithTheBar), IsEmpty());
    EXPECT_FALSE(ShowsClock(bar));
    EXPECT_THAT(Visible(bar, kNeverHidden), testing::SizeIs(kNeverHidden.size()));

    ASSERT_TRUE(SlideOut(bar, whole_));
    EXPECT_THAT(Visible(bar, kHiddenWithTheBar), testing::SizeIs(kHiddenWithTheBar.size()));
    EXPECT_TRUE(ShowsClock(bar));

    TakeTheMouseAway();
    Expire(bar, kHideCheck);
    EXPECT_THAT(Visible(bar, kHiddenWithTheBar), IsEmpty());
    EXPECT_FALSE(ShowsClock(bar));
}

TEST_F(AutoHide, ShowsNoClockThatTheUserDoesNotWant) {
    const Program program;
    const HWND bar = WaitForStrip(program);
    ASSERT_NE(bar, nullptr);

    ASSERT_TRUE(SlideOut(bar, whole_));

    EXPECT_FALSE(ShowsClock(bar));
}

TEST_F(AutoHide, FloatsWithAllItsControls) {
    WriteSetting(kSettings, L"ShowTimeBarClock", 1);
    const Program program;
    const HWND bar = WaitForStrip(program);
    ASSERT_NE(bar, nullptr);

    Command(bar, kToggleMode);
    ASSERT_TRUE(WaitUntilItFloats(bar));

    EXPECT_THAT(Visible(bar, kHiddenWithTheBar), testing::SizeIs(kHiddenWithTheBar.size()));
    EXPECT_TRUE(ShowsClock(bar));
    EXPECT_EQ(shell_.AutoHideOwner(ABE_TOP), nullptr);
    EXPECT_EQ(Text(WorkArea()), Text(besideTaskBar_));
}

// ---- Switching it

class SwitchingAutoHide : public DockedBar {
protected:
    // Starts with the whole bar on the screen; null when it does not come.
    HWND WaitForWhole(const Program& program) const {
        const HWND bar = program.WaitForBar();
        return bar != nullptr && PlaceIn(bar, whole_) == whole_ ? bar : nullptr;
    }

    const std::string whole_ = TopOf(screen_);
    const std::string strip_ = TopOf(screen_, 1);
};

TEST_F(SwitchingAutoHide, HidesTheBarAndBringsItBack) {
    const Program program;
    const HWND bar = WaitForWhole(program);
    ASSERT_NE(bar, nullptr);

    Command(bar, kToggleAutoHide);
    EXPECT_EQ(PlaceIn(bar, strip_), strip_);
    ASSERT_TRUE(WaitUntilIdle(bar));
    EXPECT_EQ(ReadNumber(kSettings, L"DesktopBarAutoHide"), 1u);
    EXPECT_EQ(Text(shell_.ReservedBy(bar)), strip_);

    Command(bar, kToggleAutoHide);
    EXPECT_EQ(PlaceIn(bar, whole_), whole_);
    ASSERT_TRUE(WaitUntil([] { return ReadNumber(kSettings, L"DesktopBarAutoHide") == 0u; }));
    EXPECT_EQ(Text(shell_.ReservedBy(bar)), whole_);
    EXPECT_EQ(shell_.AutoHideOwner(ABE_TOP), nullptr);
    EXPECT_THAT(Visible(bar, kHiddenWithTheBar), testing::SizeIs(kHiddenWithTheBar.size()));
}

TEST_F(SwitchingAutoHide, LeavesTheBarWhereItIsWhenAnotherHidesThere) {
    shell_.OccupyAutoHide(ABE_TOP);
    const Program program;
    const HWND bar = WaitForWhole(program);
    ASSERT_NE(bar, nullptr);

    Command(bar, kToggleAutoHide);

    const auto box = program.WaitForBox();
    ASSERT_TRUE(box);
    EXPECT_EQ(box.Caption(), L"Korvane");
    EXPECT_EQ(box.Text(), L"他のアプリケーションが同位置に存在するため、現時点では [バーを自動的に隠す] "
                          L"オプションを使うことができません。");
    EXPECT_EQ(box.Icon(), BoxIcon::kWarning);
    EXPECT_EQ(ReadNumber(kSettings, L"DesktopBarAutoHide"), 0u);
    ASSERT_TRUE(box.Press(IDOK));
    EXPECT_EQ(PlaceIn(bar, whole_), whole_);
    EXPECT_EQ(Text(shell_.ReservedBy(bar)), whole_);
    EXPECT_NE(shell_.AutoHideOwner(ABE_TOP), bar);
}

TEST_F(SwitchingAutoHide, LeavesTheBarWhereItIsWhenTheShellRefuses) {
    shell_.RefuseAutoHide();
    const Program program;
    const HWND bar = WaitForWhole(program);
    ASSERT_NE(bar, nullptr);

    Command(bar, kToggleAutoHide);

    const auto box = program.WaitForBox();
    ASSERT_TRUE(box);
    EXPECT_EQ(box.Caption(), L"Korvane");
    EXPECT_EQ(box.Text(), L"[バーを自動的に隠す] オプションの切替に失敗しました。");
    EXPECT_EQ(box.Icon(), BoxIcon::kWarning);
    EXPECT_EQ(ReadNumber(kSettings, L"DesktopBarAutoHide"), 0u);
    ASSERT_TRUE(box.Press(IDOK));
    EXPECT_EQ(PlaceIn(bar, whole_), whole_);
    EXPECT_EQ(Text(shell_.ReservedBy(bar)), whole_);
}

TEST_F(SwitchingAutoHide, StartsWithTheWholeBarWhenAnotherHidesThere) {
    shell_.OccupyAutoHide(ABE_TOP);
    HideAutomatically();
    const Program program;

    EXPECT_NE(WaitForWhole(program), nullptr);

    EXPECT_FALSE(program.ShowsBox());
}

TEST_F(SwitchingAutoHide, StartsWithTheWholeBarWhenTheShellRefuses) {
    shell_.RefuseAutoHide();
    HideAutomatically();
    const Program program;
    const HWND bar = WaitForWhole(program);
    ASSERT_NE(bar, nullptr);

    EXPECT_FALSE(program.ShowsBox());
    EXPECT_EQ(Text(shell_.ReservedBy(bar)), whole_);
}

TEST_F(SwitchingAutoHide, StartsWithTheWholeBarBesideATaskBarThatHides) {
    DockAtTheBottom();
    shell_.HideTaskBarAutomatically();
    HideAutomatically();
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);

    EXPECT_EQ(PlaceIn(bar, BottomOf(screen_)), BottomOf(screen_));
}

TEST_F(SwitchingAutoHide, TheKeyThatShowsTheBarLeavesTheCursorAloneWhenItIsOut) {
    const Program program;
    const HWND bar = WaitForWhole(program);
    ASSERT_NE(bar, nullptr);

    constexpr WPARAM kShowBar = 1000;
    ::PostMessageW(bar, WM_HOTKEY, kShowBar, MAKELPARAM(MOD_ALT | MOD_WIN, 'Z'));
    // Told after the key, so that it is handled after it.
    Close(bar);
    ASSERT_EQ(program.WaitForExit(), 0u);

    POINT cursor{};
    ::GetCursorPos(&cursor);
    EXPECT_EQ(cursor.x, width_ / 2);
    EXPECT_EQ(cursor.y, height_ / 2);
}

TEST_F(SwitchingAutoHide, DoesNothingWhileTheBarFloats) {
    WriteSetting(kPlacement, L"DefaultDesktopBarMode", DWORD{0});
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);

    Command(bar, kToggleAutoHide);
    // Told after it, so that it is handled after it.
    Close(bar);
    ASSERT_EQ(program.WaitForExit(), 0u);

    EXPECT_EQ(shell_.Count("SETAUTOHIDEBAR"), 0);
}

} // namespace
} // namespace korvane::test
