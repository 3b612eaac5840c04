#include <windows.h>

#include <commctrl.h>

#include "tests/program/program_test.h"

namespace korvane::test {
namespace {

using testing::ElementsAre;

// What the user types into the two boxes, and what becomes of it.
class Boxes : public ProgramTest {
protected:
    static StartOptions WithRecorderInThePath() { return {.searchPath = recorder::Folder()}; }

    // Types into a box, presses Enter and waits for one more recorded start.
    static std::wstring Enter(HWND box, const std::wstring& text) {
        const auto before = recorder::WaitForCommandLines(0).size();
        ::SendMessageW(box, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L""));
        if (!TypeInto(box, text)) return L"(the box did not take the text)";
        PressKeys({VK_RETURN});
        const auto lines = recorder::WaitForCommandLines(before + 1);
        return lines.size() == before + 1 ? lines.back() : L"(nothing was started)";
    }
};

TEST_F(Boxes, EnterRunsATypedProgramWithItsArguments) {
    const Program program{WithRecorderInThePath()};
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);

    EXPECT_EQ(Enter(Control(bar, kCommandBox), L"rec.exe 一 \"two three\""), L"rec.exe 一 \"two three\"");
}

TEST_F(Boxes, TheRunButtonRunsToo) {
    const Program program{WithRecorderInThePath()};
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);
    ASSERT_TRUE(TypeInto(Control(bar, kCommandBox), L"rec.exe pressed"));
    ASSERT_TRUE(WaitUntil([&] { return ::IsWindowEnabled(Control(bar, kRun)); }));

    Click(Control(bar, kRun));

    EXPECT_THAT(recorder::WaitForCommandLines(1), ElementsAre(L"rec.exe pressed"));
}

TEST_F(Boxes, TypingNotepadStartsIt) {
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);
    EndOwnersOf(L"Notepad");
    ASSERT_TRUE(TypeInto(Control(bar, kCommandBox), L"notepad"));

    PressKeys({VK_RETURN});

    EXPECT_TRUE(WaitUntil([] { return !AllWindows(L"Notepad").empty(); }));
    EndOwnersOf(L"Notepad");
}

TEST_F(Boxes, ATypedAddressIsOpened) {
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);

    EXPECT_EQ(Enter(Control(bar, kCommandBox), L"https://example.com/a?b=c"),
              recorder::CommandLineFor(L"https", L"https://example.com/a?b=c"));
}

TEST_F(Boxes, WhatCannotBeStartedIsReportedAndNotRemembered) {
    CloseWithoutQuestion();
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);
    ASSERT_TRUE(TypeInto(Control(bar, kCommandBox), L"no-such-program-anywhere"));

    PressKeys({VK_RETURN});

    const auto box = program.WaitForBox();
    ASSERT_TRUE(box);
    EXPECT_EQ(box.Caption(), L"Korvane");
    EXPECT_EQ(box.Icon(), BoxIcon::kWarning);
    ASSERT_TRUE(box.Press(IDOK));
    Close(bar);
    ASSERT_EQ(program.WaitForExit(), 0u);
    EXPECT_EQ(ReadText(kRecentCommands, L"ListItem01"), std::nullopt);
}

TEST_F(Boxes, EnterSearchesWithTheEncodedText) {
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);

    EXPECT_EQ(Enter(Control(bar, kSearchBox), L"東京 天気"),
              recorder::CommandLineFor(
                  L"http", L"http://encyclopedia.example/find?q=%E6%9D%B1%E4%BA%AC%20%E5%A4%A9%E6%B0%97&lang=ja"));
}

TEST_F(Boxes, SearchesWithTheSelectedCommandInItsOwnEncoding) {
    WriteSetting(kSettings, L"DefaultSearchCommand", L"2,");
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);

    EXPECT_EQ(Enter(Control(bar, kSearchBox), L"あ"),
              recorder::CommandLineFor(L"https", L"https://maps.example/%82%A0"));
}

TEST_F(Boxes, EnterIsLeftAloneWhenTheSettingSaysSo) {
    WriteSetting(kSettings, L"EnableEnterEvent", DWORD{0});
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);
    ASSERT_TRUE(TypeInto(Control(bar, kSearchBox), L"a"));

    PressKeys({VK_RETURN});
    // A later search by the button tells that the key has been handled by then, and must be the only one.
    TypeText(L"b");
    ASSERT_TRUE(WaitUntil([&] { return TextOf(Control(bar, kSearchBox)) == L"ab"; }));
    Click(Control(bar, kSearch));

    EXPECT_THAT(recorder::WaitForCommandLines(1),
                ElementsAre(recorder::CommandLineFor(L"http", L"http://encyclopedia.example/find?q=%61%62&lang=ja")));
}

TEST_F(Boxes, HistoriesSurviveARestart) {
    CloseWithoutQuestion();
    for (int start = 0; start < 2; ++start) {
        const Program program{WithRecorderInThePath()};
        const HWND bar = program.WaitForBar();
        ASSERT_NE(bar, nullptr);
        const std::wstring number = std::to_wstring(start);
        Enter(Control(bar, kCommandBox), L"rec.exe " + number);
        Enter(Control(bar, kSearchBox), L"検索" + number);
        ASSERT_TRUE(WaitUntilIdle(bar));
        Close(bar);
        ASSERT_EQ(program.WaitForExit(), 0u);
    }

    EXPECT_EQ(ReadText(kRecentCommands, L"ListItem01"), L"rec.exe 1");
    EXPECT_EQ(ReadText(kRecentCommands, L"ListItem02"), L"rec.exe 0");
    EXPECT_EQ(ReadText(kRecentSearches, L"ListItem01"), L"検索1");
    EXPECT_EQ(ReadText(kRecentSearches, L"ListItem02"), L"検索0");
}

TEST_F(Boxes, TheHistoryButtonOffersWhatWasSavedEarlier) {
    WriteSetting(kRecentCommands, L"ListItem01", L"newest");
    WriteSetting(kRecentCommands, L"ListItem02", L"older");
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);

    Click(Control(bar, kCommandHistory));

    const HWND list = WaitUntil([&]() -> HWND {
        for (HWND window : WindowsOf(program.Id(), L"#32770"))
            if (const HWND child = ::FindWindowExW(window, nullptr, WC_LISTVIEWW, nullptr)) return child;
        return nullptr;
    });
    ASSERT_NE(list, nullptr);
    EXPECT_TRUE(WaitUntil([&] { return ::SendMessageW(list, LVM_GETITEMCOUNT, 0, 0) >= 2; }));
}

TEST_F(Boxes, HistoriesAreNotSavedWhenTheSettingSaysSo) {
    CloseWithoutQuestion();
    WriteSetting(kSettings, L"SaveRecentlyList", DWORD{0});
    const Program program{WithRecorderInThePath()};
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);
    Enter(Control(bar, kCommandBox), L"rec.exe secret");
    ASSERT_TRUE(WaitUntilIdle(bar));

    Close(bar);

    ASSERT_EQ(program.WaitForExit(), 0u);
    EXPECT_EQ(ReadText(kRecentCommands, L"ListItem01"), std::nullopt);
}

} // namespace
} // namespace korvane::test
