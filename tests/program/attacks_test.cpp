// What other programs may send to the bar, by mistake or on purpose, and leave where it looks.
#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "tests/program/program_test.h"
#include "tests/support/temp_folder.h"

using namespace korvane::test;

namespace {

constexpr int kAbout = 57664;
constexpr int kVersion = 1004;
// Anything, as a pointer.
constexpr LPARAM kWildPointer = 0x44332211;

std::vector<HWND> AboutBoxesOf(const Program& program) {
    std::vector<HWND> boxes = WindowsOf(program.Id(), L"#32770");
    std::erase_if(boxes, [](HWND window) { return ::GetDlgItem(window, kVersion) == nullptr; });
    return boxes;
}

std::vector<HWND> CalendarsOf(const Program& program) {
    std::vector<HWND> calendars = WindowsOf(program.Id(), L"#32770");
    std::erase_if(calendars, [](HWND window) {
        return ::FindWindowExW(window, nullptr, L"CalenderWindow_WndClass", nullptr) == nullptr;
    });
    return calendars;
}

BOOL CALLBACK AppendWindow(HWND window, LPARAM windows) {
    reinterpret_cast<std::vector<HWND>*>(windows)->push_back(window);
    return TRUE;
}

// A window and all that is in it.
std::vector<HWND> AllOf(HWND window) {
    std::vector<HWND> all{window};
    ::EnumChildWindows(window, &AppendWindow, reinterpret_cast<LPARAM>(&all));
    return all;
}

// Whether a thread of the program gets a library by this name. The system's own functions are at the same place in
// every process.
bool LoadsLibrary(const Program& program, const std::wstring& name) {
    const fw::UniqueKernelHandle process{::OpenProcess(PROCESS_ALL_ACCESS, FALSE, program.Id())};
    const std::size_t bytes = (name.size() + 1) * sizeof(wchar_t);
    void* const text = ::VirtualAllocEx(process.Get(), nullptr, bytes, MEM_COMMIT | MEM_RESERVE, PAGE_READWRITE);
    EXPECT_TRUE(::WriteProcessMemory(process.Get(), text, name.c_str(), bytes, nullptr));
    const auto load = reinterpret_cast<LPTHREAD_START_ROUTINE>(
        reinterpret_cast<void*>(::GetProcAddress(::GetModuleHandleW(L"kernel32.dll"), "LoadLibraryW")));
    const fw::UniqueKernelHandle thread{::CreateRemoteThread(process.Get(), nullptr, 0, load, text, 0, nullptr)};
    EXPECT_EQ(::WaitForSingleObject(thread.Get(), 10'000), WAIT_OBJECT_0);
    DWORD library = 0; // the low half of its address, which is not 0
    EXPECT_TRUE(::GetExitCodeThread(thread.Get(), &library));
    ::VirtualFreeEx(process.Get(), text, 0, MEM_RELEASE);
    return library != 0;
}

class Attacks : public ProgramTest {
protected:
    void SetUp() override {
        ProgramTest::SetUp();
        CloseWithoutQuestion();
    }
    // To the window and all in it, what would be read as a pointer or a drawing.
    static void PostWildMessages(HWND window) {
        constexpr UINT kNotificationsElsewhere = WM_USER + 0x1C00;
        for (const HWND target : AllOf(window)) {
            ::PostMessageW(target, WM_INITDIALOG, 0, kWildPointer);
            for (const UINT id : {WM_DRAWITEM, WM_MEASUREITEM, WM_NOTIFY, WM_COMMAND, WM_CTLCOLORBTN})
                ::PostMessageW(target, kNotificationsElsewhere + id, 1, kWildPointer);
        }
    }
};

} // namespace

TEST_F(Attacks, TwoThousandCommandsOpenOneAboutBox) {
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);

    for (int i = 0; i < 2000; ++i) Command(bar, kAbout);

    ASSERT_TRUE(WaitUntil([&] { return !AboutBoxesOf(program).empty(); }));
    ASSERT_TRUE(WaitUntilIdle(bar));
    const std::vector<HWND> boxes = AboutBoxesOf(program);
    ASSERT_EQ(boxes.size(), 1U);
    ::PostMessageW(boxes.front(), WM_COMMAND, IDOK, 0);
    EXPECT_TRUE(WaitUntil([&] { return AboutBoxesOf(program).empty() && ::IsWindowEnabled(bar); }));
    EXPECT_TRUE(program.Running());
}

TEST_F(Attacks, NothingElseOpensOverTheAboutBox) {
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);
    Command(bar, kAbout);
    ASSERT_TRUE(WaitUntil([&] { return AboutBoxesOf(program).size() == 1; }));

    // The options, the mail, the end of Windows, and a search that fails.
    for (const int id : {2009, 40006, 4101, 2005, 2006, 5001})
        for (int i = 0; i < 100; ++i) Command(bar, id);

    // Comes after all of them.
    ::PostMessageW(AboutBoxesOf(program).front(), WM_COMMAND, IDCANCEL, 0);

    EXPECT_TRUE(WaitUntil([&] { return ::IsWindowEnabled(bar); }));
    EXPECT_FALSE(program.ShowsBox());
    EXPECT_TRUE(program.Running());
}

TEST_F(Attacks, TheAboutBoxComesToTheFrontWhenItIsAskedForOnceMore) {
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);
    Command(bar, kAbout);
    ASSERT_TRUE(WaitUntil([&] { return AboutBoxesOf(program).size() == 1; }));
    const HWND box = AboutBoxesOf(program).front();
    const HWND other = ::CreateWindowExW(0, L"STATIC", L"other", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 50, 300, 200, 100,
                                         nullptr, nullptr, nullptr, nullptr);
    ASSERT_TRUE(WaitUntil([&] { return ::SetForegroundWindow(other) && ::GetForegroundWindow() == other; }));

    Command(bar, kAbout);

    EXPECT_TRUE(WaitUntil([&] { return ::GetForegroundWindow() == box; }));
    EXPECT_EQ(AboutBoxesOf(program).size(), 1U);
    ::DestroyWindow(other);
}

TEST_F(Attacks, AThousandCommandsKeepAtMostTwoCalendarsOpen) {
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);

    for (int i = 0; i < 1000; ++i) Command(bar, kClock);
    // Comes after all of them.
    Command(bar, kAbout);

    std::size_t most = 0;
    EXPECT_TRUE(WaitUntil([&] {
        most = std::max(most, CalendarsOf(program).size());
        return !AboutBoxesOf(program).empty();
    }));
    EXPECT_LE(most, 2U);
}

TEST_F(Attacks, ManyClosingsAskOnce) {
    WriteSetting(kSettings, L"ConfirmExitApp", DWORD{0});
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);

    for (int i = 0; i < 2000; ++i) Close(bar);

    const auto box = program.WaitForBox();
    ASSERT_TRUE(box);
    ASSERT_TRUE(WaitUntilIdle(bar));
    EXPECT_EQ(WindowsOf(program.Id(), L"#32770").size(), 1U);
    ASSERT_TRUE(box.Press(IDNO));
    EXPECT_TRUE(WaitUntilIdle(bar));
    EXPECT_FALSE(program.ShowsBox());
}

TEST_F(Attacks, WildPointersAreNotRead) {
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);
    PostWildMessages(bar);
    Command(bar, kOptions);
    const HWND options = WaitUntil([&]() -> HWND {
        const auto dialogs = WindowsOf(program.Id(), L"#32770");
        return dialogs.size() == 1 ? dialogs.front() : nullptr;
    });
    ASSERT_NE(options, nullptr);

    PostWildMessages(options);

    // Comes after all of them.
    ::PostMessageW(options, WM_COMMAND, IDCANCEL, 0);
    EXPECT_TRUE(WaitUntil([&] { return !::IsWindow(options) && ::IsWindowEnabled(bar); }));
    EXPECT_TRUE(program.Running());
}

TEST_F(Attacks, ALibraryInTheCurrentFolderIsNotTakenByItsName) {
    const TempFolder folder;
    const std::wstring name = L"korvane_planted.dll";
    ASSERT_TRUE(::CopyFileW((OwnFolder() + KORVANE_HELP_RECORDER).c_str(), folder.File(name).c_str(), FALSE));
    std::array<wchar_t, MAX_PATH> before{};
    ::GetCurrentDirectoryW(MAX_PATH, before.data());
    ::SetCurrentDirectoryW(folder.Path().c_str());
    const Program program;
    ::SetCurrentDirectoryW(before.data());
    ASSERT_NE(program.WaitForBar(), nullptr);

    // What a thread of the program gets when it loads a library; the system's libraries are at the same place in both.
    EXPECT_FALSE(LoadsLibrary(program, name));
    EXPECT_TRUE(LoadsLibrary(program, folder.File(name))) << "which names its folder";
    EXPECT_TRUE(LoadsLibrary(program, L"winmm.dll"));
}
