#include "app/task_list.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <chrono>
#include <future>
#include <thread>

#include "framework/program_path.h"
#include "framework/windows_version.h"
#include "res/ids.h"
#include "tests/support/gdi_objects.h"
#include "tests/support/solid_icon.h"
#include "tests/support/wait.h"
#include "tests/support/window_test.h"

using namespace korvane;
using namespace korvane::app;
using korvane::test::ColourOf;
using korvane::test::SolidIcon;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

namespace {

constexpr COLORREF kWindowsOwn = RGB(200, 0, 0);
constexpr COLORREF kClasses = RGB(0, 200, 0);
constexpr COLORREF kSystems = RGB(0, 0, 200);

struct TestWindow {
    const wchar_t* title = L"window";
    DWORD style = WS_POPUP | WS_VISIBLE;
    DWORD extendedStyle = WS_EX_NOACTIVATE;
    HWND owner = nullptr;
    const wchar_t* className = L"STATIC";
};

using UniqueWindow = fw::UniqueHandle<HWND, &::DestroyWindow>;

UniqueWindow Make(const TestWindow& w) {
    return UniqueWindow{::CreateWindowExW(w.extendedStyle, w.className, w.title, w.style, 0, 0, 1, 1, w.owner, nullptr,
                                          ::GetModuleHandleW(nullptr), nullptr)};
}

// The windows of a test, in the order in which they were made. Windows on the desktop of other tests and of the system
// do not disturb it.
class TaskListTest : public korvane::test::WindowTest {
protected:
    TaskListTest() {
        sources.windows = [this] { return windows; };
        sources.programOf = [](HWND) { return std::wstring{}; };
        sources.libraryIcon = [this](const std::wstring& file, int index) {
            libraryIcons.push_back(file + L"," + std::to_wstring(index));
            return SolidIcon(kSystems);
        };
    }

    HWND Add(const TestWindow& w = {}) {
        owners.push_back(Make(w));
        windows.push_back(owners.back().Get());
        return windows.back();
    }
    void AddMany(int count) {
        for (int i = 1; i <= count; ++i) Add({.title = (L"window " + std::to_wstring(i)).c_str()});
    }
    std::vector<std::wstring> Titles() {
        TaskList list{sources};
        list.Refresh(nullptr);
        std::vector<std::wstring> titles;
        for (const Task& task : list.Tasks()) titles.push_back(task.names.title);
        return titles;
    }
    COLORREF IconColour() {
        TaskList list{sources};
        list.Refresh(nullptr);
        return list.Tasks().empty() ? CLR_INVALID : ColourOf(list.Tasks().front().icon.Get());
    }

    TaskSources sources;
    std::vector<UniqueWindow> owners;
    std::vector<HWND> windows;
    std::vector<std::wstring> libraryIcons;
};

// A program's thread with windows, none of which answers before the object goes.
class DeafProgram {
public:
    explicit DeafProgram(int windows) : thread_{[this, windows] { Run(windows); }} { created_.get_future().wait(); }
    DeafProgram(const DeafProgram&) = delete;
    DeafProgram& operator=(const DeafProgram&) = delete;
    ~DeafProgram() {
        release_.set_value();
        thread_.join();
    }
    [[nodiscard]] const std::vector<HWND>& Windows() const { return windows_; }

private:
    void Run(int count) {
        std::vector<UniqueWindow> owners;
        for (int i = 0; i < count; ++i) {
            owners.push_back(Make({.title = L"deaf"}));
            windows_.push_back(owners.back().Get());
        }
        created_.set_value();
        // A thread that fetches no messages answers none that are sent to its windows.
        release_.get_future().wait();
    }

    std::promise<void> created_;
    std::promise<void> release_;
    std::vector<HWND> windows_;
    std::thread thread_;
};

// A window that gives out a small icon.
class IconWindow final : public fw::Window<IconWindow> {
public:
    static constexpr fw::WindowClass kClass{.name = L"KorvaneTestIconWindow_WndClass"};
    static constexpr auto Messages() { return fw::MessageMap{fw::On<WM_GETICON>(&IconWindow::OnGetIcon)}; }

    HICON icon = nullptr;

private:
    LRESULT OnGetIcon(const fw::Message& message) {
        return message.wparam == ICON_SMALL ? reinterpret_cast<LRESULT>(icon) : 0;
    }
};

} // namespace

TEST_F(TaskListTest, HoldsVisibleTitledWindowsInTheirOrder) {
    Add({.title = L"first"});
    Add({.title = L"second"});

    EXPECT_THAT(Titles(), ElementsAre(L"first", L"second"));
}

TEST_F(TaskListTest, LeavesOutWhatIsNoTask) {
    const HWND task = Add({.title = L"task"});
    Add({.title = L"invisible", .style = WS_POPUP});
    Add({.title = L"tool", .extendedStyle = WS_EX_TOOLWINDOW | WS_EX_NOACTIVATE});
    Add({.title = L"owned", .owner = task});
    Add({.title = L""});

    EXPECT_THAT(Titles(), ElementsAre(L"task"));
}

TEST_F(TaskListTest, LeavesOutTheBarItself) {
    const HWND bar = Add({.title = L"Korvane"});
    TaskList list{sources};

    list.Refresh(bar);

    EXPECT_THAT(list.Tasks(), IsEmpty());
}

TEST_F(TaskListTest, LeavesOutWindowsThatTheSystemHides) {
    Add({.title = L"shown"});
    const HWND cloaked = Add({.title = L"cloaked"});
    sources.isCloaked = [cloaked](HWND window) { return window == cloaked; };

    EXPECT_THAT(Titles(), ElementsAre(L"shown"));
}

TEST_F(TaskListTest, LeavesOutAWindowThatIsGone) {
    Add({.title = L"gone"});
    Add({.title = L"there"});
    owners.front().Reset();

    EXPECT_THAT(Titles(), ElementsAre(L"there"));
}

TEST_F(TaskListTest, AHiddenWindowIsNotCloaked) {
    EXPECT_FALSE(fw::IsCloaked(Host()));
    EXPECT_FALSE(fw::IsCloaked(nullptr));
}

TEST_F(TaskListTest, CutsATitleAt260Characters) {
    const std::wstring title = std::wstring(150, L'&') + std::wstring(150, L'x');
    Add({.title = title.c_str()});

    EXPECT_THAT(Titles(), ElementsAre(title.substr(0, 260)));
}

TEST_F(TaskListTest, DoesNotCutATitleInTheMiddleOfACharacter) {
    const std::wstring title = std::wstring(259, L'x') + L"\U00020BB7";
    Add({.title = title.c_str()});

    EXPECT_THAT(Titles(), ElementsAre(std::wstring(259, L'x')));
}

TEST_F(TaskListTest, ShowsTwelveTasksInBlocksOfFive) {
    AddMany(12);
    TaskList list{sources};
    list.Refresh(nullptr);

    const auto rows = list.MenuRows(0);

    ASSERT_THAT(rows, SizeIs(14));
    EXPECT_EQ(rows[4].text, L"window 5");
    EXPECT_TRUE(rows[5].IsSeparator());
    EXPECT_TRUE(rows[11].IsSeparator());
    EXPECT_EQ(rows[13], (base::MenuRow{4512, L"window 12"}));
}

TEST_F(TaskListTest, SaysThatThereIsNoTask) {
    TaskList list{sources};
    list.Refresh(nullptr);

    EXPECT_THAT(list.MenuRows(0), ElementsAre(base::MenuRow{4500, L"(表示すべきタスクがありません)", false}));
}

TEST_F(TaskListTest, HoldsNoMoreThanAHundredTasks) {
    AddMany(101);

    const auto titles = Titles();

    ASSERT_THAT(titles, SizeIs(100));
    EXPECT_EQ(titles.back(), L"window 100");
}

TEST_F(TaskListTest, CountsOnlyTasksTowardsTheHundred) {
    for (int i = 0; i < 75; ++i) {
        Add({.title = L"hidden", .style = WS_POPUP});
        Add({.title = L"shown"});
    }

    EXPECT_THAT(Titles(), SizeIs(75));
}

TEST_F(TaskListTest, ReplacesTheListAtEveryRefresh) {
    Add({.title = L"first"});
    TaskList list{sources};
    list.Refresh(nullptr);

    windows.clear();
    Add({.title = L"second"});
    list.Refresh(nullptr);

    ASSERT_THAT(list.Tasks(), SizeIs(1));
    EXPECT_EQ(list.Tasks().front().names.title, L"second");
}

TEST_F(TaskListTest, NamesTheProgramOfAWindow) {
    const HWND window = Add();

    EXPECT_EQ(ProgramOf(window), fw::ProgramPath());
    EXPECT_EQ(ProgramOf(nullptr), L"");
}

TEST_F(TaskListTest, ShowsTheProgramsDescriptionWhenAskedTo) {
    Add();
    sources.programOf = &ProgramOf;
    TaskList list{sources};
    list.Refresh(nullptr);

    EXPECT_EQ(list.MenuRows(1).front().text, L"Korvane");
    EXPECT_EQ(list.MenuRows(0).front().text, L"window");
}

TEST_F(TaskListTest, CallsAProgramWithoutDescriptionUnknown) {
    Add();
    TaskList list{sources};
    list.Refresh(nullptr);
    EXPECT_EQ(list.Tasks().front().names.description, L"Unknown Application");

    sources.programOf = [](HWND) { return std::wstring{L"C:\\korvane no such file.exe"}; };
    TaskList other{sources};
    other.Refresh(nullptr);
    EXPECT_EQ(other.Tasks().front().names.description, L"Unknown Application");
}

TEST_F(TaskListTest, ReadsADescriptionOnceForEachProgramAndRefresh) {
    AddMany(3);
    sources.programOf = [this](HWND window) {
        return std::wstring{window == windows[2] ? L"C:\\b.exe" : L"C:\\a.exe"};
    };
    std::vector<std::wstring> read;
    sources.descriptionOf = [&read](const std::wstring& file) {
        read.push_back(file);
        return L"description of " + file;
    };
    TaskList list{sources};

    list.Refresh(nullptr);
    EXPECT_THAT(read, ElementsAre(L"C:\\a.exe", L"C:\\b.exe"));
    EXPECT_EQ(list.Tasks()[1].names.description, L"description of C:\\a.exe");

    list.Refresh(nullptr);
    EXPECT_THAT(read, SizeIs(4));
}

TEST_F(TaskListTest, TakesTheWindowsOwnIconFirst) {
    const fw::UniqueIcon icon = SolidIcon(kWindowsOwn);
    IconWindow window;
    window.icon = icon.Get();
    ASSERT_TRUE(window.Create({.text = L"icon", .style = WS_POPUP | WS_VISIBLE}));
    windows.push_back(window.Handle());

    EXPECT_EQ(IconColour(), kWindowsOwn);
    EXPECT_THAT(libraryIcons, IsEmpty());
}

TEST_F(TaskListTest, KeepsTheIconWhenTheWindowDestroysIt) {
    fw::UniqueIcon icon = SolidIcon(kWindowsOwn);
    IconWindow window;
    window.icon = icon.Get();
    ASSERT_TRUE(window.Create({.text = L"icon", .style = WS_POPUP | WS_VISIBLE}));
    windows.push_back(window.Handle());
    TaskList list{sources};
    list.Refresh(nullptr);

    icon.Reset();

    EXPECT_EQ(ColourOf(list.Tasks().front().icon.Get()), kWindowsOwn);
}

TEST_F(TaskListTest, LeavesTheWindowItsIcon) {
    const fw::UniqueIcon icon = SolidIcon(kWindowsOwn);
    IconWindow window;
    window.icon = icon.Get();
    ASSERT_TRUE(window.Create({.text = L"icon", .style = WS_POPUP | WS_VISIBLE}));
    windows.push_back(window.Handle());

    EXPECT_EQ(IconColour(), kWindowsOwn);
    EXPECT_EQ(ColourOf(icon.Get()), kWindowsOwn);
}

TEST_F(TaskListTest, TakesTheClasssIconNext) {
    const fw::UniqueIcon icon = SolidIcon(kClasses);
    WNDCLASSEXW c{};
    c.cbSize = sizeof c;
    c.lpfnWndProc = &::DefWindowProcW;
    c.hInstance = ::GetModuleHandleW(nullptr);
    c.lpszClassName = L"KorvaneTestClassIcon_WndClass";
    c.hIconSm = icon.Get();
    ASSERT_NE(::RegisterClassExW(&c), 0);
    Add({.className = c.lpszClassName});

    EXPECT_EQ(IconColour(), kClasses);

    owners.clear();
    ::UnregisterClassW(c.lpszClassName, c.hInstance);
}

TEST_F(TaskListTest, TakesTheProgramFilesIconAfterThat) {
    Add();
    sources.programOf = &ProgramOf;

    EXPECT_NE(IconColour(), CLR_INVALID);
    EXPECT_THAT(libraryIcons, IsEmpty());
}

TEST_F(TaskListTest, TakesTheSystemsPictureAtLast) {
    Add();
    sources.programOf = [](HWND) { return std::wstring{L"C:\\korvane no such file.exe"}; };

    EXPECT_EQ(IconColour(), kSystems);
    EXPECT_THAT(libraryIcons,
                ElementsAre(fw::IsWindowsAtLeast(fw::kWindows7) ? L"imageres.dll,11" : L"imageres.dll,10"));
}

TEST_F(TaskListTest, PassesOverAnIconThatIsGone) {
    fw::UniqueIcon icon = SolidIcon(kWindowsOwn);
    IconWindow window;
    window.icon = icon.Get();
    icon.Reset();
    ASSERT_TRUE(window.Create({.text = L"icon", .style = WS_POPUP | WS_VISIBLE}));
    windows.push_back(window.Handle());

    EXPECT_EQ(IconColour(), kSystems);
}

TEST_F(TaskListTest, HasTasksWithoutAnIcon) {
    Add();
    sources.libraryIcon = [](const std::wstring&, int) { return fw::UniqueIcon{}; };
    TaskList list{sources};

    list.Refresh(nullptr);

    ASSERT_THAT(list.Tasks(), SizeIs(1));
    EXPECT_FALSE(list.Tasks().front().icon);
}

TEST_F(TaskListTest, ReleasesTheIconsOfEarlierRefreshes) {
    const fw::UniqueIcon icon = SolidIcon(kWindowsOwn);
    IconWindow window;
    window.icon = icon.Get();
    ASSERT_TRUE(window.Create({.text = L"icon", .style = WS_POPUP | WS_VISIBLE}));
    windows.push_back(window.Handle());
    Add();
    sources.programOf = &ProgramOf;
    TaskList list{sources};
    list.Refresh(nullptr);
    const int before = test::GdiObjectCount();

    for (int i = 0; i < 20; ++i) list.Refresh(nullptr);

    EXPECT_EQ(test::GdiObjectCount(), before);
}

TEST_F(TaskListTest, ListsAWindowThatDoesNotAnswer) {
    const DeafProgram deaf{1};
    windows = deaf.Windows();
    Add({.title = L"after it"});

    EXPECT_THAT(Titles(), ElementsAre(L"deaf", L"after it"));
}

TEST_F(TaskListTest, IsNotHeldUpByAHundredWindowsThatDoNotAnswer) {
    const DeafProgram deaf{100};
    windows = deaf.Windows();
    const auto start = std::chrono::steady_clock::now();

    const auto titles = Titles();

    // A tenth of a second for each would be ten.
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds{8});
    EXPECT_THAT(titles, SizeIs(100));
}

TEST_F(TaskListTest, FindsTheTaskBehindACommand) {
    AddMany(2);
    TaskList list{sources};
    EXPECT_EQ(list.Find(ID_TASK_FIRST), nullptr);

    list.Refresh(nullptr);

    ASSERT_NE(list.Find(4502), nullptr);
    EXPECT_EQ(list.Find(4502)->window, windows[1]);
    EXPECT_EQ(list.Find(4503), nullptr);
    EXPECT_EQ(list.Find(ID_NO_TASK), nullptr);
}

TEST_F(TaskListTest, BringsTheChosenWindowToTheForeground) {
    Add({.title = L"other", .extendedStyle = 0});
    Add({.title = L"chosen", .style = WS_OVERLAPPEDWINDOW | WS_VISIBLE, .extendedStyle = 0});
    ::ShowWindow(windows[1], SW_SHOWMINNOACTIVE);
    ASSERT_TRUE(::IsIconic(windows[1]));
    TaskList list{sources};
    list.Refresh(nullptr);

    list.SwitchTo(4502);

    EXPECT_FALSE(::IsIconic(windows[1]));
    EXPECT_EQ(::GetForegroundWindow(), windows[1]);
}

TEST_F(TaskListTest, SwitchingToAWindowThatIsGoneDoesNothing) {
    Add({.title = L"gone"});
    TaskList list{sources};
    list.Refresh(nullptr);
    owners.clear();
    const HWND before = ::GetForegroundWindow();

    list.SwitchTo(4501);
    list.SwitchTo(4502);
    list.SwitchTo(ID_NO_TASK);

    EXPECT_EQ(::GetForegroundWindow(), before);
}

TEST(TopLevelWindows, AreAllWindowsOfTheDesktopTopmostFirst) {
    std::vector<UniqueWindow> owners;
    for (int i = 0; i < 150; ++i) owners.push_back(Make({.style = WS_POPUP}));
    for (UniqueWindow& window : owners)
        ::SetWindowPos(window.Get(), HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);

    const auto all = TopLevelWindows();

    std::vector<HWND> ours;
    for (const HWND window : all)
        if (std::ranges::any_of(owners, [window](const UniqueWindow& own) { return own.Get() == window; }))
            ours.push_back(window);
    std::vector<HWND> expected;
    for (auto at = owners.rbegin(); at != owners.rend(); ++at) expected.push_back(at->Get());
    EXPECT_EQ(ours, expected);
}

TEST(TopLevelWindows, HaveTheTasksOfTheRealDesktop) {
    const UniqueWindow window = Make({.title = L"Korvane task list test"});
    TaskList list;

    list.Refresh(nullptr);

    std::vector<std::wstring> titles;
    for (const Task& task : list.Tasks()) titles.push_back(task.names.title);
    EXPECT_THAT(titles, Contains(L"Korvane task list test"));
    EXPECT_THAT(titles, Not(Contains(L"")));
}
