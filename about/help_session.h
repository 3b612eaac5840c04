#pragma once

#include <windows.h>

#include "framework/handle.h"

namespace korvane::about {

// HTML Help for the length of the program's life. The control is a library of the system folder that is loaded at run
// time; where it is missing every call does nothing.
class HelpSession {
public:
    // Loads the control and opens its session.
    HelpSession();
    HelpSession(const HelpSession&) = delete;
    HelpSession& operator=(const HelpSession&) = delete;
    // Hands the session back.
    ~HelpSession();

    // Closes every help window when one of this program's help file is open.
    void CloseWindows() const;

private:
    using Function = HWND WINAPI(HWND, LPCWSTR, UINT, DWORD_PTR);

    fw::UniqueLibrary library_;
    Function* call_ = nullptr;
    DWORD_PTR cookie_ = 0;
};

} // namespace korvane::about
