#pragma once

#include <windows.h>

#include <cstring>
#include <future>
#include <string_view>
#include <thread>
#include <vector>

#include "tests/support/wait.h"

namespace korvane::test {

// One format of what is copied.
struct Copied {
    UINT format;
    std::string_view bytes;
    // Promised to the clipboard but never delivered.
    bool withheld = false;
};

// The bytes of a text, without a zero at the end unless the text has one.
[[nodiscard]] inline std::string_view BytesOf(std::wstring_view text) {
    return {reinterpret_cast<const char*>(text.data()), text.size() * sizeof(wchar_t)};
}

// Puts formats into the clipboard, in this order, as a program that owns `owner` would. False when Windows refuses.
[[nodiscard]] inline bool Copy(HWND owner, const std::vector<Copied>& formats) {
    // The system itself looks into the clipboard now and then.
    if (!WaitUntil([&] { return ::OpenClipboard(owner) != 0; })) return false;
    bool done = ::EmptyClipboard() != 0;
    for (const Copied& one : formats) {
        HGLOBAL memory = nullptr;
        if (!one.withheld) {
            memory = ::GlobalAlloc(GMEM_MOVEABLE, one.bytes.size());
            std::memcpy(::GlobalLock(memory), one.bytes.data(), one.bytes.size());
            ::GlobalUnlock(memory);
        }
        // The clipboard owns the memory from here on.
        const bool taken = ::SetClipboardData(one.format, memory) != nullptr;
        done = done && (taken || one.withheld);
    }
    ::CloseClipboard();
    return done;
}

// A program that keeps the clipboard open for as long as the object lives.
class ClipboardHolder {
public:
    ClipboardHolder() : thread_{[this] { Hold(); }} { opened_.get_future().wait(); }
    ClipboardHolder(const ClipboardHolder&) = delete;
    ClipboardHolder& operator=(const ClipboardHolder&) = delete;
    ~ClipboardHolder() {
        release_.set_value();
        thread_.join();
    }

private:
    void Hold() {
        WaitUntil([] { return ::OpenClipboard(nullptr) != 0; });
        opened_.set_value();
        release_.get_future().wait();
        ::CloseClipboard();
    }

    std::promise<void> opened_;
    std::promise<void> release_;
    std::thread thread_;
};

} // namespace korvane::test
