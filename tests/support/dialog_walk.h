#pragma once

#include <windows.h>

#include <algorithm>
#include <string>
#include <vector>

#include "framework/window_text.h"

namespace korvane::test {

// The controls that Tab reaches in a dialog, from a given one on until that comes again.
[[nodiscard]] inline std::vector<int> TabOrder(HWND dialog, int first) {
    constexpr std::size_t kNoDialogHasSoMany = 100;
    std::vector<int> order;
    const HWND start = ::GetDlgItem(dialog, first);
    HWND at = start;
    do {
        order.push_back(::GetDlgCtrlID(at));
        at = ::GetNextDlgTabItem(dialog, at, FALSE);
    } while (at != start && order.size() < kNoDialogHasSoMany);
    return order;
}

// The letters that are pressed with Alt in a dialog, sorted; one that is given twice comes twice.
[[nodiscard]] inline std::wstring AccessKeys(HWND dialog) {
    std::wstring keys;
    for (HWND child = ::GetWindow(dialog, GW_CHILD); child; child = ::GetWindow(child, GW_HWNDNEXT)) {
        const std::wstring text = fw::WindowText(child);
        if (const auto at = text.find(L"(&"); at != std::wstring::npos) keys += text[at + 2];
    }
    std::sort(keys.begin(), keys.end());
    return keys;
}

} // namespace korvane::test
