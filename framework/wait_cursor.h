#pragma once

#include <windows.h>

namespace fw {

// Shows that the program is at work for as long as it lives. For work that answers no messages meanwhile.
class WaitCursor {
public:
    WaitCursor() : before_{::SetCursor(::LoadCursorW(nullptr, reinterpret_cast<LPCWSTR>(IDC_WAIT)))} {}
    WaitCursor(const WaitCursor&) = delete;
    WaitCursor& operator=(const WaitCursor&) = delete;
    ~WaitCursor() { ::SetCursor(before_); }

private:
    HCURSOR before_;
};

} // namespace fw
