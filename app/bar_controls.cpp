#include "app/bar_controls.h"

#include "controls/logic/bar_colour.h"
#include "framework/dpi.h"
#include "framework/gdi.h"
#include "framework/high_contrast.h"
#include "framework/icons.h"
#include "framework/string_table.h"
#include "framework/windows_program.h"
#include "launch/command_entries.h"
#include "res/ids.h"

namespace korvane::app {
namespace {

constexpr DWORD kChildStyle = WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS | WS_CLIPCHILDREN;

// The images of the buttons in the white fields, in the order of both lists.
constexpr int kRunImage = 0;
constexpr int kSearchImage = 1;

constexpr const wchar_t* kControlPanelProgram = L"control.exe";

int IconSizePx() {
    return fw::Scale()(16);
}

template <class Control>
bool CreateChild(Control& control, HWND frame, UINT_PTR id, const std::wstring& text, const base::Rect& place,
                 DWORD style = kChildStyle) {
    return control.Create(
        {.text = text.c_str(), .rect = fw::ToWindows(place), .style = style, .parent = frame, .id = id});
}

void GiveFont(HWND control, HFONT font) {
    ::SendMessageW(control, WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
}

} // namespace

BarControls::BarControls(controls::BarHost& host)
    : mainMenu{host}, searchChooser{host}, controlPanel{host}, clock{host} {}

bool BarControls::Create(HWND frame, HFONT barFont, const BarLayout& at) {
    const int size = IconSizePx();
    toolImages_ = fw::MakeImageList({IDI_RUN, IDI_SEARCH}, size);
    disabledToolImages_ = fw::MakeImageList({IDI_RUN_DISABLED, IDI_SEARCH_DISABLED}, size);
    constexpr auto kDrawing = fw::ImageKind::kDrawing;
    runTyped.SetImageListIndex(toolImages_.Get(), disabledToolImages_.Get(), kRunImage, kDrawing);
    runSearch.SetImageListIndex(toolImages_.Get(), disabledToolImages_.Get(), kSearchImage, kDrawing);
    controlPanel.SetIcon(fw::ExtractSmallIcon(fw::WindowsProgram(kControlPanelProgram), 0));

    constexpr DWORD kDisabledStyle = kChildStyle | WS_DISABLED;
    const auto text = &fw::LoadText;
    const bool created =
        CreateChild(mainMenu, frame, ID_MAIN_MENU, text(IDS_MAIN_MENU), at.mainMenu) &&
        CreateBoxes(frame, barFont, at) &&
        CreateChild(commandHistory, frame, ID_COMMAND_HISTORY, text(IDS_COMMAND_HISTORY), at.commandHistory) &&
        CreateChild(searchHistory, frame, ID_SEARCH_HISTORY, text(IDS_SEARCH_HISTORY), at.searchHistory) &&
        CreateChild(searchChooser, frame, ID_SEARCH_CHOOSER, text(IDS_SEARCH_CHOOSER), at.searchChooser) &&
        CreateChild(runTyped, frame, ID_RUN_TYPED, text(IDS_RUN), at.run, kDisabledStyle) &&
        CreateChild(runSearch, frame, ID_RUN_SEARCH, text(IDS_SEARCH), at.search, kDisabledStyle) &&
        CreateChild(controlPanel, frame, ID_CONTROL_PANEL, text(IDS_CONTROL_PANEL), at.controlPanel) &&
        CreateChild(launchButtons[0], frame, ID_LAUNCH_BUTTON_1, {}, at.launch[0]) &&
        CreateChild(launchButtons[1], frame, ID_LAUNCH_BUTTON_2, {}, at.launch[1]) &&
        CreateChild(launchButtons[2], frame, ID_LAUNCH_BUTTON_3, {}, at.launch[2]) &&
        CreateChild(options, frame, ID_OPTIONS, text(IDS_OPTIONS), at.options) &&
        CreateChild(help, frame, ID_HELP_CONTENTS, text(IDS_HELP), at.help) &&
        CreateChild(clock, frame, ID_CLOCK, {}, at.clock) && CreateChild(exit, frame, ID_EXIT, text(IDS_EXIT), at.exit);
    if (!created) return false;

    GiveFont(searchChooser.Handle(), barFont);
    GiveFont(controlPanel.Handle(), barFont);
    // No click gives a button the keyboard; where it is, the user went by key.
    ForEachButton([](auto& button) { button.SetFocusShown(true); });
    return true;
}

bool BarControls::CreateBoxes(HWND frame, HFONT barFont, const BarLayout& at) {
    return commandBox.CreateBox(frame, ID_COMMAND_BOX, fw::ToWindows(at.commandBox), barFont,
                                fw::LoadText(IDS_COMMAND_BOX)) &&
           searchBox.CreateBox(frame, ID_SEARCH_BOX, fw::ToWindows(at.searchBox), barFont,
                               fw::LoadText(IDS_SEARCH_BOX));
}

void BarControls::Place(const BarLayout& at) {
    struct Move {
        HWND window;
        base::Rect to;
    };
    const std::array moves{
        Move{mainMenu.Handle(), at.mainMenu},
        Move{commandBox.Handle(), at.commandBox},
        Move{searchBox.Handle(), at.searchBox},
        Move{commandHistory.Handle(), at.commandHistory},
        Move{searchHistory.Handle(), at.searchHistory},
        Move{searchChooser.Handle(), at.searchChooser},
        Move{runTyped.Handle(), at.run},
        Move{runSearch.Handle(), at.search},
        Move{controlPanel.Handle(), at.controlPanel},
        Move{launchButtons[0].Handle(), at.launch[0]},
        Move{launchButtons[1].Handle(), at.launch[1]},
        Move{launchButtons[2].Handle(), at.launch[2]},
        Move{options.Handle(), at.options},
        Move{help.Handle(), at.help},
        Move{clock.Handle(), at.clock},
        Move{exit.Handle(), at.exit},
    };
    // All at once, so that no control is ever seen over another's old place; the frame redraws them afterwards.
    HDWP batch = ::BeginDeferWindowPos(static_cast<int>(moves.size()));
    for (const Move& move : moves)
        batch = ::DeferWindowPos(batch, move.window, nullptr, move.to.left, move.to.top, move.to.Width(),
                                 move.to.Height(), SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOREDRAW);
    ::EndDeferWindowPos(batch);
}

std::vector<HWND> BarControls::InReadingOrder() const {
    std::vector<HWND> windows{mainMenu.Handle(),      commandBox.Handle(),    commandHistory.Handle(),
                              runTyped.Handle(),      searchChooser.Handle(), searchBox.Handle(),
                              searchHistory.Handle(), runSearch.Handle(),     controlPanel.Handle()};
    for (const controls::CToolButton& button : launchButtons) windows.push_back(button.Handle());
    for (const HWND window : {options.Handle(), help.Handle(), clock.Handle(), exit.Handle()})
        windows.push_back(window);
    return windows;
}

void BarControls::ShowClock(bool shown) {
    ::ShowWindow(clock.Handle(), shown ? SW_SHOWNA : SW_HIDE);
}

void BarControls::ShowExit(bool shown) {
    ::ShowWindow(exit.Handle(), shown ? SW_SHOWNA : SW_HIDE);
}

void BarControls::ShowWithBar(bool shown, bool clockToo) {
    const int how = shown ? SW_SHOWNA : SW_HIDE;
    for (const HWND control : {mainMenu.Handle(), controlPanel.Handle(), launchButtons[0].Handle(),
                               launchButtons[1].Handle(), launchButtons[2].Handle(), options.Handle(), help.Handle()})
        ::ShowWindow(control, how);
    if (clockToo) ::ShowWindow(clock.Handle(), how);
}

void BarControls::SetColour(base::Colour barColour) {
    mainMenu.SetBarColour(barColour);
    controlPanel.SetBarColour(barColour);
    clock.SetBarColour(barColour);
    // Those for dark bars have a shadow, which no colour of the system can stand for.
    const bool light = controls::IsLightBar(barColour) || fw::HighContrast();
    constexpr auto kDrawing = fw::ImageKind::kDrawing;
    options.SetIcon(fw::LoadResourceIcon(light ? IDI_OPTIONS_ON_LIGHT : IDI_OPTIONS_ON_DARK, IconSizePx()), kDrawing);
    help.SetIcon(fw::LoadResourceIcon(light ? IDI_HELP_ON_LIGHT : IDI_HELP_ON_DARK, IconSizePx()), kDrawing);
}

void BarControls::ReloadLaunchButtons(const settings::ProfileStore& settings) {
    UINT command = ID_LAUNCH_BUTTON_1;
    for (controls::CToolButton& button : launchButtons) {
        const launch::CommandEntry entry = launch::LoadCommandEntry(command++, settings);
        ::SetWindowTextW(button.Handle(), entry.name.c_str());
        button.SetTip(entry.name);
        button.SetIcon(launch::IconOf(entry));
    }
}

} // namespace korvane::app
