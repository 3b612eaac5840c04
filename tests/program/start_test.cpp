#include <array>

#include "tests/program/program_test.h"

namespace korvane::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::SizeIs;
using testing::StartsWith;

class StartUp : public ProgramTest {};

TEST_F(StartUp, ShowsAFloatingBarToANewUser) {
    const Program program;

    const HWND bar = program.WaitForBar();

    ASSERT_NE(bar, nullptr);
    EXPECT_EQ(::GetWindowLongW(bar, GWL_STYLE) & WS_CAPTION, WS_CAPTION);
    EXPECT_EQ(::GetWindowLongW(bar, GWL_EXSTYLE) & WS_EX_TOOLWINDOW, 0);
}

TEST_F(StartUp, ReportsAMissingDataFileInTwoBoxesAndEndsWithZero) {
    RemoveDataFiles();
    const Program program;

    const auto first = program.WaitForBox();
    ASSERT_TRUE(first);
    EXPECT_EQ(first.Caption(), L"Korvane");
    EXPECT_EQ(first.Text(),
              L"Korvane の実行に必要なファイルの一部が削除されています。\nKorvane を再インストールしてください。");
    EXPECT_EQ(first.Icon(), BoxIcon::kError);
    EXPECT_THAT(first.Buttons(), ElementsAre(IDOK));
    ASSERT_TRUE(first.Press(IDOK));

    const auto second = program.WaitForBox(first);
    ASSERT_TRUE(second);
    EXPECT_NE(second.Caption(), L"Korvane");
    EXPECT_NE(second.Text(), L"");
    EXPECT_EQ(second.Icon(), BoxIcon::kWarning);
    ASSERT_TRUE(second.Press(IDOK));
    EXPECT_EQ(program.WaitForExit(), 0u);
}

TEST_F(StartUp, NeverMakesTheDataFileItself) {
    RemoveDataFiles();
    const Program program;

    const auto first = program.WaitForBox();
    first.Press(IDOK);
    program.WaitForBox(first).Press(IDOK);
    ASSERT_EQ(program.WaitForExit(), 0u);

    EXPECT_EQ(::GetFileAttributesW((DataFolder() + L"\\Korvane.dat").c_str()), INVALID_FILE_ATTRIBUTES);
}

TEST_F(StartUp, ASecondCopyEndsWithTwoAndLeavesOneBar) {
    const Program first;
    ASSERT_NE(first.WaitForBar(), nullptr);

    const Program second;

    EXPECT_EQ(second.WaitForExit(), 2u);
    EXPECT_TRUE(first.Running());
    EXPECT_THAT(AllWindows(L"Korvane_WndClass"), SizeIs(1));
}

TEST_F(StartUp, ASecondCopyRestoresTheMinimisedBar) {
    const Program first;
    const HWND bar = first.WaitForBar();
    ASSERT_NE(bar, nullptr);
    ::PostMessageW(bar, WM_SYSCOMMAND, SC_MINIMIZE, 0);
    ASSERT_TRUE(WaitUntil([&] { return ::IsIconic(bar); }));

    const Program second;

    EXPECT_EQ(second.WaitForExit(), 2u);
    EXPECT_TRUE(WaitUntil([&] { return !::IsIconic(bar); }));
}

TEST_F(StartUp, EndsWithThreeOnVistaWithoutTheInterfaceFont) {
    PretendWindowsIs(L"vista");
    const Program program;

    const auto box = program.WaitForBox();

    ASSERT_TRUE(box);
    EXPECT_EQ(box.Caption(), L"Windows 更新プログラム [KB975929] が必要です");
    EXPECT_THAT(
        box.Text(),
        StartsWith(L"このソフトウェアを利用するには Windows 更新プログラム [KB975929] が必要です。更新プログラムは "
                   L"Microsoft Download Center または Microsoft Windows Update で入手できます。"
                   L"ダウンロードしてインストールしてください。\n\n詳しくは http"));
    EXPECT_THAT(box.Text(), testing::EndsWith(L" をご覧ください。"));
    EXPECT_EQ(box.Icon(), BoxIcon::kWarning);
    EXPECT_THAT(box.Buttons(), ElementsAre(IDOK));
    ASSERT_TRUE(box.Press(IDOK));
    EXPECT_EQ(program.WaitForExit(), 3u);
}

TEST_F(StartUp, AcceptsEveryVersionFromWindows7WithoutLookingForTheFont) {
    for (const wchar_t* version : {L"win7", L"win8", L"win81", L"win10"}) {
        PretendWindowsIs(version);
        const Program program;

        EXPECT_NE(program.WaitForBar(), nullptr) << testing::PrintToString(std::wstring{version});
    }
}

TEST_F(StartUp, TakesDefaultsForValuesOfTheWrongType) {
    for (const wchar_t* name : {L"DesktopBarEdge", L"DefaultBarColor", L"DesktopBarAutoHide", L"SaveListItemNum",
                                L"TimeBarClockFormat", L"TopMostWindow"})
        WriteSetting(kSettings, name, L"東京");
    WriteSetting(kPlacement, L"SaveWindowPlacement", 1);
    const std::array<BYTE, 3> threeBytes{1, 2, 3};
    WriteSetting(kPlacement, L"WindowPosRect", REG_BINARY, threeBytes.data(), 3);
    WriteSetting(L"Settings", L"DefaultSearchCommand", DWORD{1});
    const Program program;

    const HWND bar = program.WaitForBar();

    ASSERT_NE(bar, nullptr);
    EXPECT_EQ(TextOf(Control(bar, kSearchChooser)), L"百科");
}

TEST_F(StartUp, SurvivesNumbersFarOutsideTheirRange) {
    for (const wchar_t* name : {L"DesktopBarEdge", L"DefaultBarColor", L"UserBarColor", L"DesktopBarAutoHideSecond",
                                L"SaveListItemNum", L"ShowTimeBarClock", L"TimeBarClockFormat", L"TopMostWindow"})
        WriteSetting(kSettings, name, DWORD{0x7FFFFFFF});
    WriteSetting(kSettings, L"DefaultSearchCommand", L",,99999999999999999999,-1,x,1,");
    WriteSetting(L"Settings\\LaunchMenuItem", L"LaunchMenu01", L",,,\"");
    WriteSetting(kRecentCommands, L"ListItem01", std::wstring(9000, L'長'));
    const Program program;

    const HWND bar = program.WaitForBar();

    ASSERT_NE(bar, nullptr);
    EXPECT_TRUE(program.Running());
}

TEST_F(StartUp, StaysReachableWithAWindowRectangleOffTheScreen) {
    WriteSetting(kPlacement, L"SaveWindowPlacement", 1);
    const std::array<LONG, 4> farAway{-30000, -30000, -28900, -29930};
    WriteSetting(kPlacement, L"WindowPosRect", REG_BINARY, farAway.data(), sizeof farAway);
    const Program program;

    EXPECT_NE(program.WaitForBar(), nullptr);
}

} // namespace
} // namespace korvane::test
