#include "framework/centring.h"

#include <algorithm>

#include "framework/gdi.h"
#include "framework/monitors.h"

namespace fw {

using korvane::base::Point;
using korvane::base::Rect;
using korvane::base::Size;

namespace {

DWORD StyleOf(HWND window) {
    return static_cast<DWORD>(::GetWindowLongPtrW(window, GWL_STYLE));
}

} // namespace

Point CentredOrigin(Size window, const Rect& centre, const Rect& workArea) {
    Point origin{centre.left + (centre.Width() - window.width) / 2, centre.top + (centre.Height() - window.height) / 2};
    origin.x = std::max(std::min(origin.x, workArea.right - window.width), workArea.left);
    origin.y = std::max(std::min(origin.y, workArea.bottom - window.height), workArea.top);
    return origin;
}

void CentreWindow(HWND window, HWND centreOn, CentreOn mode) {
    const DWORD style = StyleOf(window);
    const bool isChild = (style & WS_CHILD) != 0;
    if (!centreOn) centreOn = isChild ? ::GetParent(window) : ::GetWindow(window, GW_OWNER);

    Rect area;
    Rect centre;
    if (mode == CentreOn::kCurrentMonitor) {
        area = centre = WorkAreaOf(window);
    } else if (isChild) {
        area = centre = ClientRect(::GetParent(window));
        RECT inParent = ToWindows(ClientRect(centreOn));
        ::MapWindowPoints(centreOn, ::GetParent(window), reinterpret_cast<POINT*>(&inParent), 2);
        centre = FromWindows(inParent);
    } else {
        if (centreOn && (!(StyleOf(centreOn) & WS_VISIBLE) || (StyleOf(centreOn) & WS_MINIMIZE))) centreOn = nullptr;
        area = WorkAreaOf(centreOn ? centreOn : window);
        centre = centreOn ? WindowRect(centreOn) : area;
    }
    const Point origin = CentredOrigin(WindowRect(window).Extent(), centre, area);
    ::SetWindowPos(window, nullptr, origin.x, origin.y, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

} // namespace fw
