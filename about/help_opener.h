#pragma once

#include <windows.h>

#include <string_view>

namespace korvane::about {

// Opens the help for a window that was asked for it. The frame implements it; tests have their own.
class HelpOpener {
public:
    // Shows a page of about::help_topic. When that fails the user is told, in a message box over `asker`.
    virtual void OpenHelp(std::wstring_view topic, HWND asker) = 0;

protected:
    ~HelpOpener() = default;
};

} // namespace korvane::about
