#include "framework/message_loop.h"

#include <algorithm>

namespace fw {

int MessageLoop::Run() {
    MSG message{};
    while (::GetMessageW(&message, nullptr, 0, 0) > 0) Process(message);
    return static_cast<int>(message.wParam);
}

void MessageLoop::Process(const MSG& message) {
    // Over a copy: a filter may close the dialog that registered it, or another one.
    const std::vector<MessageFilter*> filters = filters_;
    for (auto at = filters.rbegin(); at != filters.rend(); ++at) {
        const bool stillRegistered = std::find(filters_.begin(), filters_.end(), *at) != filters_.end();
        if (stillRegistered && (*at)->PreTranslate(message)) return;
    }
    ::TranslateMessage(&message);
    ::DispatchMessageW(&message);
}

} // namespace fw
