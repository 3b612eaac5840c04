#include "about/help_session.h"

#include <gmock/gmock.h>

#include <commctrl.h>

#include <array>
#include <string>
#include <vector>

#include "about/logic/help_topics.h"
#include "framework/centred_message_box.h"
#include "framework/dpi.h"
#include "framework/program_path.h"
#include "tests/support/help_recorder_log.h"
#include "tests/support/modal_dialog_answer.h"
#include "tests/support/window_test.h"

namespace korvane::about {
namespace {

using test::kHelpLog;
using testing::ElementsAre;
using testing::EndsWith;
using testing::StartsWith;

std::wstring CurrentFolder() {
    std::array<wchar_t, MAX_PATH> folder{};
    ::GetCurrentDirectoryW(static_cast<DWORD>(folder.size()), folder.data());
    return folder.data();
}

BOOL CALLBACK TakeTree(HWND child, LPARAM found) {
    std::array<wchar_t, 32> name{};
    ::GetClassNameW(child, name.data(), static_cast<int>(name.size()));
    if (std::wstring_view{name.data()} == WC_TREEVIEWW) *reinterpret_cast<HWND*>(found) = child;
    return TRUE;
}

// A session with the recorder in the control's place. The process begins elsewhere than in the program's folder.
class HelpSessionTest : public test::WindowTest {
protected:
    void SetUp() override {
        WindowTest::SetUp();
        test::ForgetLog(kHelpLog);
        before_ = CurrentFolder();
        ::SetCurrentDirectoryW(L"C:\\windows");
    }
    void TearDown() override {
        ::SetEnvironmentVariableW(test::kHelpAnswersNothing, nullptr);
        ::SetCurrentDirectoryW(before_.c_str());
    }

    static fw::UniqueLibrary Recorder() {
        const std::wstring program = fw::ProgramPath().value();
        const std::wstring path = program.substr(0, program.rfind(L'\\') + 1) + KORVANE_HELP_RECORDER;
        fw::UniqueLibrary library{::LoadLibraryW(path.c_str())};
        EXPECT_TRUE(library);
        return library;
    }
    static HWND HelpWindow() { return ::FindWindowW(test::kHelpWindowClass, nullptr); }
    static HWND Tree() {
        HWND tree = nullptr;
        ::EnumChildWindows(HelpWindow(), &TakeTree, reinterpret_cast<LPARAM>(&tree));
        return tree;
    }
    static std::vector<std::wstring> KeysOffered() {
        std::vector<std::wstring> keys = Calls();
        std::erase_if(keys, [](const std::wstring& call) { return !call.starts_with(L"PRETRANSLATEMESSAGE"); });
        return keys;
    }
    static std::vector<std::wstring> Calls() { return test::LoggedLines(kHelpLog); }

private:
    std::wstring before_;
};

TEST_F(HelpSessionTest, IsOpenedAndHandedBackWithItsCookie) {
    { const HelpSession help{Recorder()}; }

    EXPECT_THAT(Calls(), ElementsAre(L"INITIALIZE caller=none file=none data=cookie folder=C:\\windows",
                                     L"UNINITIALIZE caller=none file=none data=cookie folder=C:\\windows"));
}

TEST_F(HelpSessionTest, LooksForItsFileBesideTheProgramAndLeavesTheCurrentFolder) {
    {
        HelpSession help{Recorder()};
        EXPECT_TRUE(help.Show(help_topic::kImport, nullptr));
        EXPECT_EQ(CurrentFolder(), L"C:\\windows");
        help.CloseWindows();
        EXPECT_EQ(CurrentFolder(), L"C:\\windows");
    }

    EXPECT_THAT(
        Calls(),
        ElementsAre(
            L"INITIALIZE caller=none file=none data=cookie folder=C:\\windows",
            L"DISPLAY_TOPIC caller=desktop file=Korvane.chm::/optextra.html#ImportItem > Korvane_HelpWindow data=0 "
            L"folder=own",
            L"TREE styles 68 of 68", L"TREE theme",
            L"GET_WIN_HANDLE caller=desktop file=Korvane.chm data=Korvane_HelpWindow folder=own",
            L"CLOSE_ALL caller=none file=none data=0 folder=own",
            L"UNINITIALIZE caller=none file=none data=cookie folder=C:\\windows"));
}

TEST_F(HelpSessionTest, ClosesNothingWhenNoHelpWindowIsOpen) {
    {
        const HelpSession help{Recorder()};
        help.CloseWindows();
    }

    EXPECT_THAT(Calls(),
                ElementsAre(L"INITIALIZE caller=none file=none data=cookie folder=C:\\windows",
                            L"GET_WIN_HANDLE caller=desktop file=Korvane.chm data=Korvane_HelpWindow folder=own",
                            L"UNINITIALIZE caller=none file=none data=cookie folder=C:\\windows"));
}

TEST_F(HelpSessionTest, GivesTheTreeOfContentsTheFontAndRoomForIt) {
    HelpSession help{Recorder()};
    const auto font = static_cast<HFONT>(::GetStockObject(ANSI_VAR_FONT));

    ASSERT_TRUE(help.Show(help_topic::kContents, font));

    ASSERT_NE(Tree(), nullptr);
    EXPECT_EQ(Send(Tree(), TVM_GETITEMHEIGHT), fw::Scale()(20));
    EXPECT_EQ(reinterpret_cast<HFONT>(Send(Tree(), WM_GETFONT)), font);
    EXPECT_THAT(Calls(),
                ElementsAre(StartsWith(L"INITIALIZE"), StartsWith(L"DISPLAY_TOPIC"), L"TREE styles 68 of 68",
                            L"TREE row height " + std::to_wstring(fw::Scale()(20)), L"TREE font", L"TREE theme"));
    help.CloseWindows();
}

TEST_F(HelpSessionTest, LeavesTheTreesRowsAloneWithoutAFont) {
    HelpSession help{Recorder()};

    ASSERT_TRUE(help.Show(help_topic::kContents, nullptr));

    EXPECT_THAT(Calls(), ElementsAre(StartsWith(L"INITIALIZE"), StartsWith(L"DISPLAY_TOPIC"), L"TREE styles 68 of 68",
                                     L"TREE theme"));
    help.CloseWindows();
}

TEST_F(HelpSessionTest, SaysSoWhenNoWindowOpens) {
    ::SetEnvironmentVariableW(test::kHelpAnswersNothing, L"1");
    HelpSession help{Recorder()};

    EXPECT_FALSE(help.Show(help_topic::kContents, nullptr));
}

TEST_F(HelpSessionTest, SaysSoWhenThereIsNoControl) {
    HelpSession help{fw::UniqueLibrary{}};

    EXPECT_FALSE(help.Show(help_topic::kContents, nullptr));
    EXPECT_FALSE(help.PreTranslate({}));
    help.CloseWindows();
    EXPECT_TRUE(Calls().empty());
}

TEST_F(HelpSessionTest, OffersKeysToTheControlOnlyWhileAHelpWindowIsOpen) {
    HelpSession help{Recorder()};
    MSG tab{};
    tab.message = WM_KEYDOWN;
    tab.wParam = VK_TAB;
    MSG other = tab;
    other.wParam = VK_F5;

    EXPECT_FALSE(help.PreTranslate(tab));
    ASSERT_TRUE(help.Show(help_topic::kContents, nullptr));
    EXPECT_TRUE(help.PreTranslate(tab));
    EXPECT_FALSE(help.PreTranslate(other));
    ::DestroyWindow(HelpWindow());
    EXPECT_FALSE(help.PreTranslate(tab));

    EXPECT_THAT(Calls(), ElementsAre(StartsWith(L"INITIALIZE"), StartsWith(L"DISPLAY_TOPIC"), StartsWith(L"TREE"),
                                     StartsWith(L"TREE"),
                                     L"PRETRANSLATEMESSAGE caller=none file=none data=key 9 folder=C:\\windows",
                                     L"PRETRANSLATEMESSAGE caller=none file=none data=key 116 folder=C:\\windows"));
}

TEST_F(HelpSessionTest, OffersTheHelpWindowsKeysToTheControlWhileADialogIsOpen) {
    HelpSession help{Recorder()};
    ASSERT_TRUE(help.Show(help_topic::kContents, nullptr));
    bool taken = false;
    const test::ModalDialogAnswer dialog{IDOK, [&](HWND box) {
                                             ::PostMessageW(Tree(), WM_KEYDOWN, VK_TAB, 0);
                                             ::PostMessageW(box, WM_KEYDOWN, VK_SHIFT, 0);
                                             taken = true;
                                         }};

    fw::ShowMessage(Host(), L"text", L"caption", MB_OK);

    ASSERT_TRUE(taken);
    EXPECT_THAT(KeysOffered(), ElementsAre(EndsWith(L"key 9 folder=C:\\windows")));
    help.CloseWindows();
}

TEST_F(HelpSessionTest, OffersAKeyOnceWhereTheProgramsOwnLoopServesDialogsToo) {
    HelpSession help{Recorder()};
    ASSERT_TRUE(help.Show(help_topic::kContents, nullptr));
    MSG key{Host(), WM_KEYDOWN, VK_F5, 0, 0, {}};

    EXPECT_FALSE(help.PreTranslate(key));
    ::IsDialogMessageW(Host(), &key);

    EXPECT_THAT(KeysOffered(), ElementsAre(EndsWith(L"key 116 folder=C:\\windows")));
    help.CloseWindows();
}

TEST_F(HelpSessionTest, HearsNothingOfDialogsOnceItIsOver) {
    const auto windowsProcedures = Recorder();
    MSG key{};
    {
        HelpSession help{Recorder()};
        ASSERT_TRUE(help.Show(help_topic::kContents, nullptr));
        key = {Tree(), WM_KEYDOWN, VK_TAB, 0, 0, {}};
    }
    const auto before = Calls();

    EXPECT_FALSE(::CallMsgFilterW(&key, MSGF_DIALOGBOX));

    EXPECT_EQ(Calls(), before);
    ::DestroyWindow(HelpWindow());
}

} // namespace
} // namespace korvane::about
