#pragma once

#include <windows.h>

#include <optional>

namespace korvane::test {

// Dispatches what waits in the thread's queue and does not wait for more. Gives the exit code when the thread was told
// to quit.
inline std::optional<int> PumpMessages() {
    std::optional<int> quit;
    MSG message{};
    while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        if (message.message == WM_QUIT) {
            quit = static_cast<int>(message.wParam);
            continue;
        }
        ::TranslateMessage(&message);
        ::DispatchMessageW(&message);
    }
    return quit;
}

} // namespace korvane::test
