// How long the two longest menus take to be built, and from the request until they stand drawn and wait for the user;
// each beside a menu with the same rows and no images. Fifty openings of each, in turns.
#include <windows.h>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <string>
#include <vector>

#include "base/format_text.h"
#include "framework/icons.h"
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

void Clear(HMENU popup) {
    for (int at = ::GetMenuItemCount(popup) - 1; at >= 0; --at)
        ::DeleteMenu(popup, static_cast<UINT>(at), MF_BYPOSITION);
}

// Added to the commands of a menu, it gives commands that have no image.
constexpr unsigned kWithoutImages = 20000;

void Append(HMENU popup, bool separator, unsigned command, const std::wstring& text) {
    ::AppendMenuW(popup, separator ? MF_SEPARATOR : MF_STRING, separator ? 0 : command, text.c_str());
}

void FillPlainLaunchMenu(HMENU popup) {
    Clear(popup);
    std::vector<std::wstring> names;
    for (int i = 4; i <= 38; ++i) names.push_back(base::FormatText(L"プログラム %d", i));
    for (const auto& row : launch::PlanLaunchMenu(names, fw::LoadText(IDS_LAUNCH_SETTINGS)))
        Append(popup, row.IsSeparator(), row.command + kWithoutImages, row.text);
}

void FillSearchMenu(HMENU popup, unsigned offset) {
    Clear(popup);
    search::SearchMenuGroup standard{search::SearchCommandKind::kStandard, {}};
    for (int i = 1; i <= search::kMostSelectedCommands; ++i) standard.numbers.push_back(i);
    const auto plan = search::PlanSearchMenu(
        std::vector{standard},
        [](search::SearchCommandKind, int number) { return base::FormatText(L"検索コマンド %d", number); },
        fw::LoadText(IDS_SEARCH_SETTINGS));
    for (const auto& row : plan.rows)
        Append(popup, row.IsSeparator(), static_cast<unsigned>(row.id) + offset, row.text);
}

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
    const fw::UniqueMenu plainSearch{::CreatePopupMenu()};
    const HMENU searchPopup = bar.Popup(POPUP_SEARCH);
    const fw::UniqueIcon icon = fw::LoadResourceIcon(IDI_SEARCH, kImagePx);
    std::vector<Subject> subjects{
        {"launch menu, 35 items with images",
         launch::LaunchPopup(bar),
         [&] { launch::BuildLaunchMenu(bar, store); },
         {},
         {}},
        {"the same without", plainLaunch.Get(), [&] { FillPlainLaunchMenu(plainLaunch.Get()); }, {}, {}},
        {"search menu, 50 commands with images",
         searchPopup,
         [&] {
             FillSearchMenu(searchPopup, 0);
             for (UINT command = ID_SEARCH_SETTINGS; command <= ID_SEARCH_SETTINGS + 50; ++command)
                 bar.AddIcon(command, icon.Get());
         },
         {},
         {}},
        {"the same without", plainSearch.Get(), [&] { FillSearchMenu(plainSearch.Get(), kWithoutImages); }, {}, {}},
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
