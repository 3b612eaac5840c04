#pragma once

#include <windows.h>

#include "framework/message_loop.h"

namespace korvane::controls {

// Keeps the tooltips of a bar out of the way: from a key, or from anything that opens, until the mouse moves again,
// none of them is to be seen. Knows every tooltip that the bar owns, whoever made it.
class ToolTipRest final : private fw::MessageFilter {
public:
    // Sees the loop's messages before every filter that is there already; the loop must outlive it. Until then it does
    // nothing.
    void Watch(fw::MessageLoop& loop, HWND bar);

    // Something opens.
    void Begin();

private:
    bool PreTranslate(const MSG& message) override;
    void End();

    fw::MessageLoop::Registration filter_;
    HWND bar_ = nullptr;
    bool resting_ = false;
    POINT mouse_{}; // where it was; of the screen
};

} // namespace korvane::controls
