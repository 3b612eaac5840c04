#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "res/ids.h"
#include "settings/logic/setting_keys.h"

// What the options' page for the bar itself makes of the stored settings, and what it stores.
namespace korvane::controls {

// A check box shows whether its setting is anything but 0, whatever the setting's name seems to say.
struct OptionBox {
    int id;
    settings::IntSetting setting;
};

// In the order in which they are written. The last one's setting stands in another section.
inline constexpr std::array kOptionBoxes{
    OptionBox{IDC_AUTO_HIDE, settings::keys::DesktopBarAutoHide},
    OptionBox{IDC_MONITOR_CLIPBOARD, settings::keys::MonitorClipBoard},
    OptionBox{IDC_TOPMOST, settings::keys::TopMostWindow},
    OptionBox{IDC_SAVE_HISTORIES, settings::keys::SaveRecentlyList},
    OptionBox{IDC_EXIT_UNASKED, settings::keys::ConfirmExitApp},
    OptionBox{IDC_CONFIRM_END, settings::keys::ConfirmExitWindows},
    OptionBox{IDC_ENABLE_ENTER, settings::keys::EnableEnterEvent},
    OptionBox{IDC_SAVE_PLACEMENT, settings::keys::SaveWindowPlacement},
};

inline constexpr OptionBox kShowClockBox{IDC_SHOW_CLOCK, settings::keys::ShowTimeBarClock};
inline constexpr OptionBox kTaskNamesBox{IDC_TASK_APP_NAMES, settings::keys::TaskMenuAppName};

// The controls that can only be used while a check box is checked.
struct DependentControls {
    int box;
    int first;
    int last;
};

inline constexpr std::array kDependentControls{
    DependentControls{IDC_AUTO_HIDE, IDC_HIDE_DELAY_FIRST, IDC_HIDE_DELAY_LAST},
    DependentControls{IDC_SAVE_HISTORIES, IDC_HISTORY_LENGTH_FIRST, IDC_HISTORY_LENGTH_LAST},
    DependentControls{IDC_SHOW_CLOCK, IDC_CLOCK_FORMAT_LABEL, IDC_CLOCK_FORMAT},
};

// The lists' texts are identifiers of the string table, in the order of the values.
inline constexpr std::array kEdgeTexts{IDS_EDGE_TOP, IDS_EDGE_BOTTOM};
inline constexpr std::array kColourTexts{IDS_COLOUR_THEME, IDS_COLOUR_SYSTEM, IDS_COLOUR_USER};
inline constexpr std::array kFormatTexts{IDS_FORMAT_TIME, IDS_FORMAT_SECONDS, IDS_FORMAT_TIME_DATE,
                                         IDS_FORMAT_SECONDS_DATE, IDS_FORMAT_DATE};
inline constexpr int kDelayCount = 10;

// The delays in seconds, from half a second on in steps of half a second.
[[nodiscard]] std::array<std::wstring, kDelayCount> DelayTexts();

// The rows that stored values select. One that is out of range selects what the bar makes of it, or comes nearest to
// it, so that there is always a row to be stored again.
[[nodiscard]] int EdgeRow(int stored);
[[nodiscard]] int ColourRow(int stored);
[[nodiscard]] int DelayRow(int stored);
[[nodiscard]] int FormatRow(int stored);

// How many entries of each history are kept. No number at all is stored as -1.
inline constexpr int kShortestHistory = 1;
inline constexpr int kLongestHistory = 15;
inline constexpr int kNoHistoryLength = -1;
inline constexpr int kHistoryLengthDigits = 2;

// What the field shows for a stored number: one out of range is brought into it, a negative one shows nothing.
[[nodiscard]] std::wstring HistoryLengthText(int stored);

// The number that a text stands for, brought into the range; empty for a text without a digit.
[[nodiscard]] std::optional<int> HistoryLengthOf(std::wstring_view text);

// What a step of the arrows becomes so that it does not leave the range downwards.
[[nodiscard]] int HistoryLengthStep(int position, int step);

} // namespace korvane::controls
