#pragma once

#include <string>
#include <string_view>

namespace korvane::about {

// A Windows as it calls itself.
struct WindowsIdentity {
    std::wstring productName; // empty when it does not tell
    int major = 0;
    int minor = 0;
    int build = 0;

    friend bool operator==(const WindowsIdentity&, const WindowsIdentity&) = default;
};

// Which Korvane this is and which Windows it runs on, in two lines: for the about box and for who answers the support
// mail. The edition is named by the size of its addresses, 32 or 64 bits. What is not known is replaced, so that the
// form never changes.
[[nodiscard]] std::wstring VersionText(int addressBits, std::wstring_view fileVersion, const WindowsIdentity& windows);

} // namespace korvane::about
