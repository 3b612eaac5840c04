// How long the longest menus take to be built, and from the request until they stand drawn and wait for the user;
// each beside a menu with the same rows and no images. Fifty openings of each, in turns.
#include <windows.h>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <semaphore>
#include <string>
#include <thread>
#include <vector>

#include "app/task_list.h"
#include "base/format_text.h"
#include "framework/icons.h"
#include "framework/menu_rows.h"
#include "framework/string_table.h"
#include "framework/window.h"
#include "launch/app_menu_bar.h"
#include "launch/launch_menu.h"
#include "launch/logic/launch_menu.h"
#include "res/ids.h"
#include "search/logic/search_commands.h"
#include "settings/logic/setting_keys.h"
#include "tests/support/fake_store.h"

namespace {

using namespace korvane;

constexpr int kOpenings = 50;
constexpr int kImagePx = 16;

double NowMs() {
    LARGE_INTEGER now{};
    LARGE_INTEGER frequency{};
    ::QueryPerformanceCounter(&now);
    ::QueryPerformanceFrequency(&frequency);
    return static_cast<double>(now.QuadPart) * 1000 / static_cast<double>(frequency.QuadPart);
}

// Opens menus and closes them as soon as they are drawn.
class Owner final : public fw::Window<Owner> {
public:
    static constexpr fw::WindowClass kClass{.name = L"KorvaneMenuBench_WndClass"};

    static constexpr auto Messages() {
        return fw::MessageMap{
            fw::On<WM_INITMENUPOPUP>(&Owner::OnInitMenuPopup),
            fw::On<WM_MEASUREITEM>(&Owner::OnMeasureItem),
            fw::On<WM_DRAWITEM>(&Owner::OnDrawItem),
            fw::On<WM_ENTERIDLE>(&Owner::OnEnterIdle),
        };
    }

    explicit Owner(launch::CAppMenuBar& bar) : bar_{bar} {}

    double OpenMs(HMENU popup) {
        drawnAt_ = 0;
        const double asked = NowMs();
        ::TrackPopupMenuEx(popup, TPM_RETURNCMD, 0, 0, Handle(), nullptr);
        MSG unread{};
        while (::PeekMessageW(&unread, nullptr, 0, 0, PM_REMOVE)) ::DispatchMessageW(&unread);
        return drawnAt_ - asked;
    }

private:
    void OnInitMenuPopup(const fw::Message& m) { bar_.OnInitMenuPopup(reinterpret_cast<HMENU>(m.wparam)); }
    fw::Reply OnMeasureItem(MEASUREITEMSTRUCT& item) { return bar_.OnMeasureItem(item); }
    fw::Reply OnDrawItem(const DRAWITEMSTRUCT& item) { return bar_.OnDrawItem(item); }
    // A menu waits for the user once it has drawn itself.
    void OnEnterIdle(const fw::Message&) {
        if (drawnAt_ == 0) drawnAt_ = NowMs();
        ::PostMessageW(Handle(), WM_CANCELMODE, 0, 0);
    }

    launch::CAppMenuBar& bar_;
    double drawnAt_ = 0;
};

struct Subject {
    const char* name;
    HMENU popup;
    std::function<void()> build;
    std::vector<double> buildMs;
    std::vector<double> openMs;
};

void Print(const char* what, std::vector<double> times) {
    std::sort(times.begin(), times.end());
    std::printf("  %s median %7.2f ms, worst %7.2f ms", what, (times[kOpenings / 2 - 1] + times[kOpenings / 2]) / 2,
                times.back());
}

using Rows = std::vector<base::MenuRow>;

// The rows under commands that have no image.
void FillWithoutImages(HMENU popup, Rows rows) {
    constexpr unsigned kFarFromAll = 20000;
    for (base::MenuRow& row : rows)
        if (!row.IsSeparator()) row.command += kFarFromAll;
    fw::FillMenu(popup, rows);
}

Rows LaunchRows() {
    std::vector<std::wstring> names;
    for (int i = 4; i <= 38; ++i) names.push_back(base::FormatText(L"プログラム %d", i));
    return launch::PlanLaunchMenu(names, fw::LoadText(IDS_LAUNCH_SETTINGS));
}

Rows SearchRows() {
    search::SearchMenuGroup standard{search::SearchCommandKind::kStandard, {}};
    for (int i = 1; i <= search::kMostSelectedCommands; ++i) standard.numbers.push_back(i);
    return search::PlanSearchMenu(
               std::vector{standard},
               [](search::SearchCommandKind, int number) { return base::FormatText(L"検索コマンド %d", number); },
               fw::LoadText(IDS_SEARCH_SETTINGS))
        .rows;
}

// Ninety windows with a title and an icon, as another program would have them: they answer from a thread of their own.
class Windows {
public:
    Windows() : thread_{[this] { Serve(); }} { created_.acquire(); }
    Windows(const Windows&) = delete;
    Windows& operator=(const Windows&) = delete;
    ~Windows() {
        ::PostThreadMessageW(id_, WM_QUIT, 0, 0);
        thread_.join();
    }

private:
    void Serve() {
        constexpr int kWindows = 90;
        const fw::UniqueIcon icon = fw::ExtractSmallIcon(L"notepad.exe", 0);
        std::vector<fw::UniqueHandle<HWND, &::DestroyWindow>> windows;
        for (int i = 1; i <= kWindows; ++i) {
            windows.emplace_back(::CreateWindowExW(0, L"STATIC", base::FormatText(L"仕事 %d", i).c_str(),
                                                   WS_OVERLAPPEDWINDOW, 0, 0, 50, 50, nullptr, nullptr, nullptr,
                                                   nullptr));
            ::SendMessageW(windows.back().Get(), WM_SETICON, ICON_SMALL, reinterpret_cast<LPARAM>(icon.Get()));
            ::ShowWindow(windows.back().Get(), SW_SHOWNOACTIVATE);
        }
        id_ = ::GetCurrentThreadId();
        created_.release();
        MSG message{};
        while (::GetMessageW(&message, nullptr, 0, 0) > 0) ::DispatchMessageW(&message);
    }

    std::binary_semaphore created_{0};
    DWORD id_ = 0;
    std::thread thread_;
};

} // namespace

int main() {
    test::FakeStore store;
    for (int i = 1; i <= 38; ++i)
        store.Write(settings::keys::LaunchMenuItem, i,
                    base::FormatText(L"notepad.exe, , ,shell32.dll,%d,プログラム %d", i, i));
    launch::CAppMenuBar bar;
    Owner owner{bar};
    if (!bar.Create() || !owner.Create({.text = L"menus", .rect = {0, 0, 10, 10}, .style = WS_POPUP})) return 1;

    const fw::UniqueMenu plainLaunch{::CreatePopupMenu()};
    const fw::UniqueMenu plainTasks{::CreatePopupMenu()};
    const fw::UniqueMenu plainSearch{::CreatePopupMenu()};
    const fw::UniqueMenu taskPopup{::CreatePopupMenu()};
    const HMENU searchPopup = bar.Popup(POPUP_SEARCH);
    const fw::UniqueIcon icon = fw::LoadResourceIcon(IDI_SEARCH, kImagePx);
    const Windows windows;
    app::TaskList tasks;
    tasks.Refresh(owner.Handle());

    std::vector<Subject> subjects{
        {"launch menu, 35 items with images",
         launch::LaunchPopup(bar),
         [&] { launch::BuildLaunchMenu(bar, store); },
         {},
         {}},
        {"the same without", plainLaunch.Get(), [&] { FillWithoutImages(plainLaunch.Get(), LaunchRows()); }, {}, {}},
        {"task menu, 90 windows with images",
         taskPopup.Get(),
         [&] { tasks.BuildMenu(taskPopup.Get(), bar, owner.Handle(), 0); },
         {},
         {}},
        {"the same without", plainTasks.Get(), [&] { FillWithoutImages(plainTasks.Get(), tasks.MenuRows(0)); }, {}, {}},
        {"search menu, 50 commands with images",
         searchPopup,
         [&] {
             fw::FillMenu(searchPopup, SearchRows());
             for (UINT command = ID_SEARCH_SETTINGS; command <= ID_SEARCH_SETTINGS + 50; ++command)
                 bar.AddIcon(command, icon.Get());
         },
         {},
         {}},
        {"the same without", plainSearch.Get(), [&] { FillWithoutImages(plainSearch.Get(), SearchRows()); }, {}, {}},
    };
    for (int opening = 0; opening < kOpenings; ++opening) {
        for (Subject& subject : subjects) {
            const double before = NowMs();
            subject.build();
            subject.buildMs.push_back(NowMs() - before);
            subject.openMs.push_back(owner.OpenMs(subject.popup));
        }
    }
    for (const Subject& subject : subjects) {
        std::printf("%-38s", subject.name);
        Print("built:", subject.buildMs);
        Print("shown:", subject.openMs);
        std::printf("\n");
    }
    return 0;
}
