#include "app/clipboard_monitor.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <optional>

#include "app/logic/clipboard_rules.h"

namespace korvane::app {
namespace {

static_assert(kAnsiTextFormat == CF_TEXT && kUnicodeTextFormat == CF_UNICODETEXT);

// Holds the clipboard open.
class OpenedClipboard {
public:
    explicit OpenedClipboard(HWND window) : open_{::OpenClipboard(window) != 0} {}
    OpenedClipboard(const OpenedClipboard&) = delete;
    OpenedClipboard& operator=(const OpenedClipboard&) = delete;
    ~OpenedClipboard() {
        if (open_) ::CloseClipboard();
    }
    explicit operator bool() const { return open_; }

private:
    bool open_;
};

// The bytes of a format, which stay the clipboard's. Empty when its owner does not deliver.
class ClipboardBytes {
public:
    explicit ClipboardBytes(UINT format) : memory_{::GetClipboardData(format)} {
        if (memory_) bytes_ = static_cast<const char*>(::GlobalLock(memory_));
    }
    ClipboardBytes(const ClipboardBytes&) = delete;
    ClipboardBytes& operator=(const ClipboardBytes&) = delete;
    ~ClipboardBytes() {
        if (bytes_) ::GlobalUnlock(memory_);
    }
    [[nodiscard]] std::string_view Get() const {
        return bytes_ ? std::string_view{bytes_, ::GlobalSize(memory_)} : std::string_view{};
    }

private:
    HGLOBAL memory_;
    const char* bytes_ = nullptr;
};

bool IsMarked(const wchar_t* format) {
    return ::IsClipboardFormatAvailable(::RegisterClipboardFormatW(format)) != 0;
}

std::optional<unsigned> NumberIn(const wchar_t* format) {
    if (!IsMarked(format)) return std::nullopt;
    const ClipboardBytes bytes{::RegisterClipboardFormatW(format)};
    DWORD number = 0;
    if (bytes.Get().size() < sizeof number) return std::nullopt;
    std::memcpy(&number, bytes.Get().data(), sizeof number);
    return number;
}

ClipboardMarks ReadMarks() {
    return {.excludedFromMonitors = IsMarked(L"ExcludeClipboardContentFromMonitorProcessing"),
            .viewersIgnore = IsMarked(L"Clipboard Viewer Ignore"),
            .mayBeKept = NumberIn(L"CanIncludeInClipboardHistory")};
}

// In the order in which they were copied, so that the one that Windows makes out of the other comes later.
UINT FirstTextFormat() {
    UINT format = ::EnumClipboardFormats(0);
    while (format != 0 && !IsTextFormat(format)) format = ::EnumClipboardFormats(format);
    return format;
}

// The size is the memory block's: it may be odd, and no zero need stand at the end. Blocks are aligned for any type.
std::wstring_view AsUnicode(std::string_view bytes) {
    return {reinterpret_cast<const wchar_t*>(bytes.data()), bytes.size() / sizeof(wchar_t)};
}

std::wstring FromCodePage(std::string_view bytes) {
    bytes = bytes.substr(0, std::min<std::size_t>(bytes.find('\0'), std::numeric_limits<int>::max()));
    const int size = static_cast<int>(bytes.size());
    std::wstring text(static_cast<std::size_t>(::MultiByteToWideChar(CP_ACP, 0, bytes.data(), size, nullptr, 0)),
                      L'\0');
    ::MultiByteToWideChar(CP_ACP, 0, bytes.data(), size, text.data(), static_cast<int>(text.size()));
    return text;
}

// Of the opened clipboard.
std::wstring ReadText() {
    const UINT format = FirstTextFormat();
    if (format == 0 || !MayTakeFromClipboard(ReadMarks())) return {};
    const ClipboardBytes bytes{format};
    return format == CF_UNICODETEXT ? OneLine(AsUnicode(bytes.Get())) : OneLine(FromCodePage(bytes.Get()));
}

} // namespace

ClipboardMonitor::ClipboardMonitor(UINT_PTR timerId, Wanted wanted, Sink sink)
    : timerId_{timerId}, wanted_{std::move(wanted)}, sink_{std::move(sink)} {}

bool ClipboardMonitor::Start(HWND window) {
    Stop();
    if (!::AddClipboardFormatListener(window)) return false;
    window_ = window;
    return true;
}

void ClipboardMonitor::Stop() {
    timer_.Stop();
    if (window_) ::RemoveClipboardFormatListener(window_);
    window_ = nullptr;
}

void ClipboardMonitor::OnUpdate() {
    timer_.Stop();
    if (!window_) return;
    attemptsLeft_ = kClipboardAttempts;
    Try();
}

bool ClipboardMonitor::OnTimer(UINT_PTR id) {
    if (id != timerId_) return false;
    // A tick may still stand in the queue when the timer has been stopped.
    if (timer_.Running()) Try();
    return true;
}

void ClipboardMonitor::Try() {
    std::wstring text;
    if (wanted_()) {
        const OpenedClipboard clipboard{window_};
        if (!clipboard) {
            if (--attemptsLeft_ <= 0) {
                timer_.Stop();
            } else if (!timer_.Running()) {
                timer_.Start(window_, timerId_, kClipboardPause);
            }
            return;
        }
        text = ReadText();
    }
    timer_.Stop();
    // The clipboard is closed by now: the sink may take its time.
    if (!text.empty()) sink_(text);
}

} // namespace korvane::app
