// How long the options take until a page is painted, with 150 standard and 50 user commands and a full launch menu; how
// long OK takes, with everything changed, until the bar is painted anew; and how long 2,000 shortcuts take to be read.
#include <windows.h>

#include <commctrl.h>
#include <objbase.h>

#include <array>
#include <cstdio>
#include <string>
#include <vector>

#include "app/main_frame.h"
#include "base/format_text.h"
#include "benchmarks/program_run.h"
#include "framework/gdiplus_image.h"
#include "launch/option_dialog.h"
#include "launch/shortcut.h"
#include "launch/shortcut_scan.h"
#include "search/user_command_file.h"
#include "settings/logic/setting_keys.h"
#include "tests/support/icon_file.h"
#include "tests/support/pump.h"
#include "tests/support/shortcut_file.h"
#include "tests/support/temp_folder.h"

namespace {

using namespace korvane;
using bench::Median;
using bench::Seconds;
namespace keys = settings::keys;

constexpr int kOpenings = 30;
constexpr int kStandardCommands = 150;
constexpr int kUserCommands = 50;
constexpr int kLaunchItems = 38;
constexpr int kShortcuts = 2000;
constexpr int kOptionsOk = 6;
constexpr wchar_t kSettingsKey[] = L"Software\\KorvaneBench";

void Print(const char* what, const std::vector<double>& ms) {
    std::printf("%-52s median %7.1f ms, worst %7.1f ms\n", what, Median(ms), *std::max_element(ms.begin(), ms.end()));
}

void PaintAll(HWND window) {
    ::RedrawWindow(window, nullptr, nullptr, RDW_ALLCHILDREN | RDW_UPDATENOW);
    ::GdiFlush();
}

// A user who has filled everything.
class Surroundings {
public:
    Surroundings() {
        ::RegDeleteTreeW(HKEY_CURRENT_USER, kSettingsKey);
        WriteCommands(L"Korvane.dat", kStandardCommands);
        WriteCommands(L"UserCommand.dat", kUserCommands);
        folder.Write(L"i.ico", test::IconFile(RGB(159, 22, 106)));
        settings::RegistryStore store{HKEY_CURRENT_USER, kSettingsKey};
        for (int i = 1; i <= kLaunchItems; ++i)
            store.Write(keys::LaunchMenuItem, i,
                        base::FormatText(L"notepad.exe, , ,%s,0,item %d", std::wstring_view{folder.File(L"i.ico")}, i));
    }
    Surroundings(const Surroundings&) = delete;
    Surroundings& operator=(const Surroundings&) = delete;
    ~Surroundings() { ::RegDeleteTreeW(HKEY_CURRENT_USER, kSettingsKey); }

    [[nodiscard]] app::FramePlaces Places() const {
        return {kSettingsKey, [this] { return settings::DataFolder{folder.Path() + L"\\", ERROR_SUCCESS}; }};
    }

    test::TempFolder folder;

private:
    void WriteCommands(std::wstring_view file, int count) const {
        std::wstring text{L'\xFEFF'};
        for (int i = 1; i <= count; ++i)
            text += base::FormatText(L"[SearchCommand_%02d]\r\nCommandName=検索 %d\r\n"
                                     L"CommandLine=https://example.invalid/%d?q=<%%Search%%>\r\nComment=説明 %d\r\n",
                                     i, i, i, i);
        folder.Write(file, {reinterpret_cast<const char*>(text.data()), text.size() * sizeof(wchar_t)});
    }
};

// What the bar hands to its options.
class Services {
public:
    Services(const Surroundings& around, app::CMainFrame& bar)
        : bar_{bar}, settings_{HKEY_CURRENT_USER, kSettingsKey}, standard_{around.folder.File(L"Korvane.dat")},
          user_{around.folder.File(L"UserCommand.dat")}, userFile_{user_.Path(), L""} {}
    [[nodiscard]] launch::OptionServices Get() {
        return {.stores = {settings_, standard_, user_}, .userCommands = userFile_, .histories = bar_, .help = bar_};
    }

private:
    app::CMainFrame& bar_;
    settings::RegistryStore settings_;
    settings::IniFileStore standard_;
    settings::IniFileStore user_;
    search::WindowsUserCommandFile userFile_;
};

void MeasureOpening(Services& services, app::CMainFrame& bar) {
    constexpr std::array kNames{"main page opened and painted:", "search command page opened and painted:",
                                "launch menu page opened and painted:"};
    for (const launch::OptionPage page : launch::kOptionPages) {
        std::vector<double> opened;
        for (int i = 0; i < kOpenings; ++i) {
            const double before = Seconds();
            launch::COptionDialog dialog{page, services.Get()};
            if (!dialog.Create(bar.Handle())) return;
            ::ShowWindow(dialog.Handle(), SW_SHOW);
            PaintAll(dialog.Handle());
            opened.push_back((Seconds() - before) * 1000);
            ::DestroyWindow(dialog.Handle());
            test::PumpMessages();
        }
        Print(kNames[static_cast<std::size_t>(page)], opened);
    }
}

HWND PageWith(HWND dialog, int control) {
    HWND child = ::GetWindow(dialog, GW_CHILD);
    while (child && !::GetDlgItem(child, control)) child = ::GetWindow(child, GW_HWNDNEXT);
    return child;
}

// Every box of the main page the other way round, other rows in its lists, the commands and the items moved.
void ChangeEverything(HWND dialog) {
    const HWND mainPage = PageWith(dialog, IDC_BAR_COLOUR);
    for (int id = IDC_AUTO_HIDE; id <= IDC_SAVE_PLACEMENT; ++id) ::SendDlgItemMessageW(mainPage, id, BM_CLICK, 0, 0);
    for (const int id : {IDC_SHOW_CLOCK, IDC_TASK_APP_NAMES}) ::SendDlgItemMessageW(mainPage, id, BM_CLICK, 0, 0);
    for (const int id : {IDC_BAR_EDGE, IDC_BAR_COLOUR, IDC_HIDE_DELAY, IDC_CLOCK_FORMAT}) {
        const LRESULT row = ::SendDlgItemMessageW(mainPage, id, CB_GETCURSEL, 0, 0);
        ::SendDlgItemMessageW(mainPage, id, CB_SETCURSEL, row == 0 ? 1 : 0, 0);
    }
    const HWND commands = PageWith(dialog, IDC_STANDARD_LIST);
    const HWND list = ::GetDlgItem(commands, IDC_STANDARD_LIST);
    ListView_SetCheckState(list, 0, !ListView_GetCheckState(list, 0));
    ListView_SetItemState(list, 1, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
    for (int i = 0; i < 5; ++i) ::SendMessageW(commands, WM_COMMAND, IDC_MOVE_DOWN, 0);
    ::SendDlgItemMessageW(commands, IDC_PRIORITY_USER, BM_CLICK, 0, 0);
    const HWND items = PageWith(dialog, IDC_LAUNCH_LIST);
    for (int i = 0; i < 5; ++i) ::SendMessageW(items, WM_COMMAND, IDC_MOVE_DOWN, 0);
}

void MeasureConfirming(Services& services, app::CMainFrame& bar) {
    std::vector<double> confirmed;
    for (int i = 0; i < kOpenings; ++i) {
        launch::COptionDialog dialog{launch::OptionPage::kLaunch, services.Get()};
        if (!dialog.Create(bar.Handle())) return;
        ChangeEverything(dialog.Handle());
        const double before = Seconds();
        ::SendMessageW(dialog.Handle(), WM_COMMAND, kOptionsOk, 0);
        bar.ApplySettings();
        PaintAll(bar.Handle());
        confirmed.push_back((Seconds() - before) * 1000);
        if (!dialog.Confirmed()) std::printf("not confirmed\n");
        ::DestroyWindow(dialog.Handle());
        test::PumpMessages();
    }
    Print("OK with everything changed until the bar is painted:", confirmed);
}

void MeasureScan() {
    const test::TempFolder folder;
    folder.Write(L"i.ico", test::IconFile(RGB(1, 2, 3)));
    test::WriteShortcut(folder.File(L"0.lnk"),
                        {.target = L"C:\\windows\\system32\\notepad.exe", .iconFile = folder.File(L"i.ico")});
    for (int i = 1; i < kShortcuts; ++i)
        ::CopyFileW(folder.File(L"0.lnk").c_str(), folder.File(base::FormatText(L"%d.lnk", i)).c_str(), TRUE);

    launch::ShellShortcutReader reader;
    int found = 0;
    const double before = Seconds();
    double first = 0;
    launch::ScanShortcuts(folder.Path(), true, reader, [&](const launch::ImportableItem&) {
        if (found++ == 0) first = Seconds() - before;
        return true;
    });
    std::printf("%d shortcuts read: %.0f ms, the first after %.1f ms\n", found, (Seconds() - before) * 1000,
                first * 1000);
}

} // namespace

int main() {
    ::CoInitialize(nullptr);
    const fw::GdiplusSession gdiplus;
    {
        const Surroundings around;
        fw::MessageLoop loop;
        about::HelpSession help;
        app::CMainFrame bar{loop, help, around.Places()};
        if (!bar.CreateFrame()) return 1;
        bar.ShowFirst(SW_SHOWNORMAL);
        Services services{around, bar};
        MeasureOpening(services, bar);
        MeasureConfirming(services, bar);
        ::DestroyWindow(bar.Handle());
    }
    MeasureScan();
    ::CoUninitialize();
    return 0;
}
