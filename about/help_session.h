#pragma once

#include <windows.h>

#include <string_view>

#include "framework/handle.h"
#include "framework/message_loop.h"

namespace korvane::about {

// HTML Help for the length of the program's life. The control is a library of the system folder that is loaded at run
// time; where it is missing every call does nothing.
class HelpSession final : public fw::MessageFilter {
public:
    // Loads the control and opens its session.
    HelpSession();
    // With another library in the control's place.
    explicit HelpSession(fw::UniqueLibrary control);
    HelpSession(const HelpSession&) = delete;
    HelpSession& operator=(const HelpSession&) = delete;
    // Hands the session back.
    ~HelpSession();

    // Shows a page of about::help_topic. The tree of contents gets the font and a row height of its own when there is a
    // font. False when no help window opened.
    [[nodiscard]] bool Show(std::wstring_view topic, HFONT treeFont);

    // The help window belongs to this thread, so its keys come through the thread's message loop: as long as it is open
    // the control is offered each message before the program sees it.
    bool PreTranslate(const MSG& message) override;

    // The same for a key that arrives while a modal dialog or a message box runs a loop of its own, which knows no
    // filters.
    bool TakeFromDialogLoop(const MSG& message);

    // Closes every help window when one of this program's help file is open.
    void CloseWindows() const;

private:
    void ListenToDialogLoops();

    using Function = HWND WINAPI(HWND, LPCWSTR, UINT, DWORD_PTR);

    fw::UniqueLibrary control_;
    Function* call_ = nullptr;
    DWORD_PTR cookie_ = 0;
    HWND window_ = nullptr; // the last that was shown; the user may have closed it
    fw::UniqueHook dialogLoops_;
};

} // namespace korvane::about
