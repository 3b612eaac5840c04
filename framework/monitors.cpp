#include "framework/monitors.h"

#include "framework/gdi.h"

namespace fw {

using korvane::base::Rect;

namespace {

MONITORINFO InfoOf(HMONITOR monitor) {
    MONITORINFO info{};
    info.cbSize = sizeof info;
    ::GetMonitorInfoW(monitor, &info);
    return info;
}

BOOL CALLBACK Collect(HMONITOR monitor, HDC, LPRECT, LPARAM areas) noexcept {
    auto& collected = *reinterpret_cast<std::vector<Rect>*>(areas);
    const MONITORINFO info = InfoOf(monitor);
    const bool primary = (info.dwFlags & MONITORINFOF_PRIMARY) != 0;
    collected.insert(primary ? collected.begin() : collected.end(), FromWindows(info.rcWork));
    return TRUE;
}

} // namespace

std::vector<Rect> WorkAreas() {
    std::vector<Rect> areas;
    ::EnumDisplayMonitors(nullptr, nullptr, &Collect, reinterpret_cast<LPARAM>(&areas));
    return areas;
}

Rect WorkAreaOf(HWND window) {
    return FromWindows(InfoOf(::MonitorFromWindow(window, MONITOR_DEFAULTTONEAREST)).rcWork);
}

Rect WorkAreaAt(const Rect& place) {
    const RECT rect = ToWindows(place);
    return FromWindows(InfoOf(::MonitorFromRect(&rect, MONITOR_DEFAULTTONEAREST)).rcWork);
}

} // namespace fw
