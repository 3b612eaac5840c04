#pragma once

#include <array>
#include <sstream>
#include <string>

#include "tests/program/program_test.h"

namespace korvane::test {

// In the order in which the bar creates them.
inline constexpr std::array kControls{
    kMainMenu,     kCommandBox, kSearchBox, kCommandHistory, kSearchHistory, kSearchChooser, kRun,   kSearch,
    kControlPanel, kLaunch1,    kLaunch2,   kLaunch3,        kOptions,       kHelp,          kClock, kExit};

// Where the visible controls stand, a line each: "2001 151,8-302,24".
[[nodiscard]] inline std::string PictureOf(HWND bar) {
    std::ostringstream picture;
    for (int id : kControls) {
        const HWND control = ::GetDlgItem(bar, id);
        if (control == nullptr || !::IsWindowVisible(control)) continue;
        const RECT rect = RectInParent(control);
        picture << id << ' ' << rect.left << ',' << rect.top << '-' << rect.right << ',' << rect.bottom << '\n';
    }
    return picture.str();
}

[[nodiscard]] inline int ClientWidthOf(HWND window) {
    RECT client{};
    ::GetClientRect(window, &client);
    return client.right;
}

// Gives the floating bar a client area of a width; its height stays.
[[nodiscard]] inline bool SetClientWidth(HWND bar, int width) {
    RECT frame{}, client{};
    ::GetWindowRect(bar, &frame);
    ::GetClientRect(bar, &client);
    ::SetWindowPos(bar, nullptr, 0, 0, width + (frame.right - frame.left) - client.right, frame.bottom - frame.top,
                   SWP_NOZORDER | SWP_NOACTIVATE);
    return WaitUntil([&] { return ClientWidthOf(bar) == width && WaitUntilIdle(bar); });
}

// What is expected at some widths of the client area, at 96 dpi.
// clang-format off
inline constexpr char kFloating1024[] =
    "2000 4,0-124,32\n"
    "2001 151,8-318,24\n"
    "2002 501,8-671,24\n"
    "2003 318,5-333,27\n"
    "2004 671,5-686,27\n"
    "2007 361,4-501,28\n"
    "2005 333,5-355,27\n"
    "2006 686,5-708,27\n"
    "2008 714,0-844,32\n"
    "4025 844,0-880,32\n"
    "4026 880,0-916,32\n"
    "4027 916,0-952,32\n"
    "2009 952,0-988,32\n"
    "57666 988,0-1024,32\n";

inline constexpr char kFloating1280[] =
    "2000 4,0-124,32\n"
    "2001 151,8-446,24\n"
    "2002 629,8-927,24\n"
    "2003 446,5-461,27\n"
    "2004 927,5-942,27\n"
    "2007 489,4-629,28\n"
    "2005 461,5-483,27\n"
    "2006 942,5-964,27\n"
    "2008 970,0-1100,32\n"
    "4025 1100,0-1136,32\n"
    "4026 1136,0-1172,32\n"
    "4027 1172,0-1208,32\n"
    "2009 1208,0-1244,32\n"
    "57666 1244,0-1280,32\n";

inline constexpr char kFloating1900[] =
    "2000 4,0-124,32\n"
    "2001 151,8-756,24\n"
    "2002 939,8-1547,24\n"
    "2003 756,5-771,27\n"
    "2004 1547,5-1562,27\n"
    "2007 799,4-939,28\n"
    "2005 771,5-793,27\n"
    "2006 1562,5-1584,27\n"
    "2008 1590,0-1720,32\n"
    "4025 1720,0-1756,32\n"
    "4026 1756,0-1792,32\n"
    "4027 1792,0-1828,32\n"
    "2009 1828,0-1864,32\n"
    "57666 1864,0-1900,32\n";

inline constexpr char kFloatingWithClock1280[] =
    "2000 4,0-124,32\n"
    "2001 151,8-396,24\n"
    "2002 579,8-827,24\n"
    "2003 396,5-411,27\n"
    "2004 827,5-842,27\n"
    "2007 439,4-579,28\n"
    "2005 411,5-433,27\n"
    "2006 842,5-864,27\n"
    "2008 870,0-1000,32\n"
    "4025 1000,0-1036,32\n"
    "4026 1036,0-1072,32\n"
    "4027 1072,0-1108,32\n"
    "2009 1108,0-1144,32\n"
    "57666 1144,0-1180,32\n"
    "2014 1180,0-1280,32\n";

inline constexpr char kFloatingOnWindows8At1280[] =
    "2000 4,0-124,32\n"
    "2001 151,8-446,24\n"
    "2002 629,8-927,24\n"
    "2003 446,6-461,26\n"
    "2004 927,6-942,26\n"
    "2007 489,5-629,27\n"
    "2005 461,5-483,27\n"
    "2006 942,5-964,27\n"
    "2008 970,0-1100,32\n"
    "4025 1100,0-1136,32\n"
    "4026 1136,0-1172,32\n"
    "4027 1172,0-1208,32\n"
    "2009 1208,0-1244,32\n"
    "57666 1244,0-1280,32\n";

inline constexpr char kFloatingOnVistaAt1280[] =
    "2000 4,1-124,31\n"
    "2001 151,8-446,24\n"
    "2002 629,8-927,24\n"
    "2003 446,5-461,27\n"
    "2004 927,5-942,27\n"
    "2007 489,4-629,28\n"
    "2005 461,5-483,27\n"
    "2006 942,5-964,27\n"
    "2008 970,1-1100,31\n"
    "4025 1100,1-1136,31\n"
    "4026 1136,1-1172,31\n"
    "4027 1172,1-1208,31\n"
    "2009 1208,1-1244,31\n"
    "57666 1244,1-1280,31\n";
// clang-format on

} // namespace korvane::test
