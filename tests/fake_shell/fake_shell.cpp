// Plays Windows' shell for docked bars, where Wine's own only remembers who they are: it keeps their strips and
// auto-hide edges, publishes the work area that they leave and tells them what changes. It ends with the process whose
// identifier is its argument, so that no test that was killed leaves a wrong work area behind.

#include <windows.h>

#include <shellapi.h>

#include <cstdint>
#include <cstdlib>
#include <set>
#include <string>

#include "base/format_text.h"
#include "framework/handle.h"
#include "tests/fake_shell/app_bars.h"
#include "tests/fake_shell/protocol.h"
#include "tests/fake_shell/work_area.h"

namespace korvane::fake_shell {
namespace {

using base::FormatText;
using base::Rect;

// What SHAppBarMessage sends with WM_COPYDATA, whose dwData is the ABM_... message. The answer is written to a mapping
// that belongs to the sender.
struct Record {
    std::uint32_t window;
    std::uint32_t callbackMessage;
    std::uint32_t edge;
    std::int32_t left, top, right, bottom;
    std::uint32_t padding;
    std::int64_t lparam;
};
struct Request {
    std::uint32_t mapping; // a handle of the sender's process
    std::uint32_t process;
    Record record;
};
struct Answer {
    std::int64_t result;
    Record record;
};
static_assert(sizeof(Request) == 48 && sizeof(Answer) == 48);

constexpr UINT_PTR kSweepTimer = 1;
constexpr UINT kSweepPeriodMs = 200;

BarWindow IdOf(HWND window) {
    return static_cast<BarWindow>(reinterpret_cast<UINT_PTR>(window));
}

HWND WindowOf(BarWindow bar) {
    return reinterpret_cast<HWND>(static_cast<INT_PTR>(static_cast<std::int32_t>(bar)));
}

std::wstring NameOfMessage(std::uint32_t message) {
    switch (message) {
    case ABM_NEW:
        return L"NEW";
    case ABM_REMOVE:
        return L"REMOVE";
    case ABM_QUERYPOS:
        return L"QUERYPOS";
    case ABM_SETPOS:
        return L"SETPOS";
    case ABM_GETSTATE:
        return L"GETSTATE";
    case ABM_GETTASKBARPOS:
        return L"GETTASKBARPOS";
    case ABM_ACTIVATE:
        return L"ACTIVATE";
    case ABM_GETAUTOHIDEBAR:
        return L"GETAUTOHIDEBAR";
    case ABM_SETAUTOHIDEBAR:
        return L"SETAUTOHIDEBAR";
    case ABM_WINDOWPOSCHANGED:
        return L"WINDOWPOSCHANGED";
    case ABM_SETSTATE:
        return L"SETSTATE";
    default:
        return FormatText(L"ABM_%u", unsigned{message});
    }
}

std::wstring NameOfNotification(WPARAM notification) {
    switch (notification) {
    case ABN_STATECHANGE:
        return L"STATECHANGE";
    case ABN_POSCHANGED:
        return L"POSCHANGED";
    case ABN_FULLSCREENAPP:
        return L"FULLSCREENAPP";
    case ABN_WINDOWARRANGE:
        return L"WINDOWARRANGE";
    default:
        return FormatText(L"ABN_%u", static_cast<unsigned>(notification));
    }
}

std::wstring NameOfEdge(std::uint32_t edge) {
    switch (edge) {
    case ABE_LEFT:
        return L"left";
    case ABE_TOP:
        return L"top";
    case ABE_RIGHT:
        return L"right";
    case ABE_BOTTOM:
        return L"bottom";
    default:
        return FormatText(L"edge%u", unsigned{edge});
    }
}

std::wstring TextOf(const Rect& rect) {
    return FormatText(L"%d,%d-%d,%d", rect.left, rect.top, rect.right, rect.bottom);
}

Rect RectOf(const Record& record) {
    return {record.left, record.top, record.right, record.bottom};
}

void SetRect(Record& record, const Rect& rect) {
    record.left = rect.left;
    record.top = rect.top;
    record.right = rect.right;
    record.bottom = rect.bottom;
}

// A window that stands for a bar of another program. It is never shown.
HWND CreateOtherBar() {
    return ::CreateWindowExW(WS_EX_TOOLWINDOW, L"Static", L"", WS_POPUP, 0, 0, 0, 0, nullptr, nullptr, nullptr,
                             nullptr);
}

class Shell {
public:
    Shell()
        : bars_{WholeScreen(), IdOf(CreateOtherBar())}, taskbarCreated_{::RegisterWindowMessageW(L"TaskbarCreated")} {
        PublishChange();
    }

    // What other programs ask with SHAppBarMessage.
    std::int64_t Answer(std::uint32_t message, Record& record) {
        const Rect proposed = RectOf(record);
        const Rect before = bars_.ReservedBy(record.window);
        const std::int64_t result = refused_.contains(message) ? 0 : Carry(message, record);

        std::wstring line =
            FormatText(L"%s %08X %s %s lparam %d -> %d", NameOfMessage(message), record.window, NameOfEdge(record.edge),
                       TextOf(proposed), static_cast<int>(record.lparam), static_cast<int>(result));
        if (RectOf(record) != proposed) line += L" " + TextOf(RectOf(record));
        Log(line);
        if (bars_.ReservedBy(record.window) != before) TellChange(record.window);
        return result;
    }

    // What the tests command and ask.
    LRESULT Obey(UINT command, WPARAM wparam, LPARAM lparam) {
        const auto number = static_cast<std::uint32_t>(wparam);
        const Edge edge = EdgeOf(number).value_or(Edge::kTop);
        switch (command) {
        case kMoveTaskBar:
            bars_.MoveTaskBar(edge, static_cast<int>(lparam));
            TellChange();
            return TRUE;
        case kSetTaskBarAutoHide:
            bars_.SetTaskBarAutoHide(wparam != 0);
            Tell(ABN_STATECHANGE, 0);
            TellChange();
            return bars_.TaskBarHides() == (wparam != 0);
        case kOccupyAutoHide:
            return bars_.SetAutoHide(IdOf(CreateOtherBar()), edge, true);
        case kReserveStrip:
            return ReserveStrip(edge, static_cast<int>(lparam));
        case kGiveStripBack:
            bars_.Remove(number);
            ::DestroyWindow(WindowOf(number));
            TellChange();
            return TRUE;
        case kRefuse:
            if (lparam != 0)
                refused_.insert(number);
            else
                refused_.erase(number);
            return TRUE;
        case kNotify:
            Tell(wparam, lparam);
            return TRUE;
        case kRestart:
            for (; wparam > 0; --wparam) Restart();
            return TRUE;
        case kClearLog:
            log_.clear();
            return TRUE;
        case kAskReserved:
            return Side(bars_.ReservedBy(number), lparam);
        case kAskRegistered:
            return bars_.Registered(number);
        case kAskAutoHideOwner:
            return static_cast<LRESULT>(bars_.AutoHideOwner(edge));
        default:
            return 0;
        }
    }

    [[nodiscard]] const std::wstring& Log() const { return log_; }

    // Bars whose windows are gone without a word.
    void Sweep() {
        const bool any = bars_.DropBars([&](BarWindow bar) {
            if (::IsWindow(WindowOf(bar))) return false;
            Log(FormatText(L"gone %08X", bar));
            return true;
        });
        if (any) TellChange();
    }

private:
    // The answer of a shell that refuses nothing.
    std::int64_t Carry(std::uint32_t message, Record& record) {
        const BarWindow bar = record.window;
        const auto edge = EdgeOf(record.edge);
        Rect rect = RectOf(record);
        switch (message) {
        case ABM_NEW:
            return ::IsWindow(WindowOf(bar)) && bars_.Register(bar, record.callbackMessage);
        case ABM_REMOVE:
            bars_.Remove(bar);
            return TRUE;
        case ABM_QUERYPOS:
        case ABM_SETPOS: {
            if (!edge) return FALSE;
            const bool done = message == ABM_SETPOS ? bars_.Reserve(bar, *edge, rect) : bars_.Query(bar, *edge, rect);
            if (done) SetRect(record, rect);
            return done;
        }
        case ABM_GETSTATE:
            return ABS_ALWAYSONTOP | (bars_.TaskBarHides() ? ABS_AUTOHIDE : 0);
        case ABM_GETTASKBARPOS:
            SetRect(record, bars_.TaskBarRect());
            record.edge = static_cast<std::uint32_t>(bars_.TaskBarEdge());
            return TRUE;
        case ABM_GETAUTOHIDEBAR:
            return edge ? bars_.AutoHideOwner(*edge) : 0;
        case ABM_SETAUTOHIDEBAR:
            return edge && bars_.SetAutoHide(bar, *edge, record.lparam != 0);
        case ABM_ACTIVATE:
        case ABM_WINDOWPOSCHANGED:
        case ABM_SETSTATE:
            return TRUE;
        default:
            return FALSE;
        }
    }

    LRESULT ReserveStrip(Edge edge, int thickness) {
        const BarWindow other = IdOf(CreateOtherBar());
        bars_.Register(other, WM_NULL);
        // As a bar does it: asked with the whole edge, then made as thick as it is to be.
        Rect rect = bars_.StripAt(edge, thickness);
        bars_.Query(other, edge, rect);
        switch (edge) {
        case Edge::kLeft:
            rect.right = rect.left + thickness;
            break;
        case Edge::kTop:
            rect.bottom = rect.top + thickness;
            break;
        case Edge::kRight:
            rect.left = rect.right - thickness;
            break;
        case Edge::kBottom:
            rect.top = rect.bottom - thickness;
            break;
        }
        bars_.Reserve(other, edge, rect);
        TellChange(other);
        return static_cast<LRESULT>(other);
    }

    void Restart() {
        bars_.ForgetBars();
        PublishChange();
        Log(L"=> TaskbarCreated");
        ::SendNotifyMessageW(HWND_BROADCAST, taskbarCreated_, 0, 0);
    }

    void PublishChange() {
        const Rect area = bars_.WorkArea();
        if (area == published_) return;
        published_ = area;
        PublishWorkArea(area);
        Log(L"workarea " + TextOf(area));
        ::SendNotifyMessageW(HWND_BROADCAST, WM_SETTINGCHANGE, SPI_SETWORKAREA, 0);
    }

    // Every bar but the one that caused it hears of a change.
    void TellChange(BarWindow cause = 0) {
        PublishChange();
        Tell(ABN_POSCHANGED, 0, cause);
    }

    void Tell(WPARAM notification, LPARAM argument, BarWindow except = 0) {
        for (const AppBars::Bar& bar : bars_.Bars()) {
            if (bar.window == except || bar.callbackMessage == WM_NULL) continue;
            Log(FormatText(L"=> %s %d to %08X", NameOfNotification(notification), static_cast<int>(argument),
                           bar.window));
            ::PostMessageW(WindowOf(bar.window), bar.callbackMessage, notification, argument);
        }
    }

    void Log(const std::wstring& line) { log_.append(line).append(L"\n"); }

    static LRESULT Side(const Rect& rect, LPARAM side) {
        switch (side) {
        case 0:
            return rect.left;
        case 1:
            return rect.top;
        case 2:
            return rect.right;
        default:
            return rect.bottom;
        }
    }

    AppBars bars_;
    UINT taskbarCreated_;
    std::set<std::uint32_t> refused_;
    Rect published_;
    std::wstring log_;
};

bool AnswerRequest(Shell& shell, const COPYDATASTRUCT& data) {
    if (data.cbData != sizeof(Request)) return false;
    Request request{};
    ::CopyMemory(&request, data.lpData, sizeof request);
    Answer answer{};
    answer.result = shell.Answer(static_cast<std::uint32_t>(data.dwData), request.record);
    answer.record = request.record;

    const fw::UniqueKernelHandle process{::OpenProcess(PROCESS_DUP_HANDLE, FALSE, request.process)};
    HANDLE duplicate = nullptr;
    if (!::DuplicateHandle(process.Get(), reinterpret_cast<HANDLE>(static_cast<UINT_PTR>(request.mapping)),
                           ::GetCurrentProcess(), &duplicate, 0, FALSE, DUPLICATE_SAME_ACCESS))
        return false;
    const fw::UniqueKernelHandle mapping{duplicate};
    void* const view = ::MapViewOfFile(mapping.Get(), FILE_MAP_WRITE, 0, 0, sizeof answer);
    if (view == nullptr) return false;
    ::CopyMemory(view, &answer, sizeof answer);
    ::UnmapViewOfFile(view);
    return true;
}

LRESULT CopyLog(const std::wstring& log, std::size_t room, wchar_t* to) {
    if (room == 0) return 0;
    const std::size_t length = log.copy(to, room - 1);
    to[length] = L'\0';
    return static_cast<LRESULT>(length);
}

LRESULT CALLBACK Procedure(HWND window, UINT id, WPARAM wparam, LPARAM lparam) {
    auto* const shell = reinterpret_cast<Shell*>(::GetWindowLongPtrW(window, GWLP_USERDATA));
    if (shell == nullptr) return ::DefWindowProcW(window, id, wparam, lparam);
    if (id >= WM_APP && id < 0xC000) return shell->Obey(id, wparam, lparam);
    switch (id) {
    case WM_COPYDATA:
        return AnswerRequest(*shell, *reinterpret_cast<const COPYDATASTRUCT*>(lparam));
    case WM_GETTEXTLENGTH:
        return static_cast<LRESULT>(shell->Log().size());
    case WM_GETTEXT:
        return CopyLog(shell->Log(), wparam, reinterpret_cast<wchar_t*>(lparam));
    case WM_TIMER:
        shell->Sweep();
        return 0;
    case WM_CLOSE:
        ::PostQuitMessage(0);
        return 0;
    default:
        return ::DefWindowProcW(window, id, wparam, lparam);
    }
}

// Until it is told to close, or the process is gone.
void RunLoop(HANDLE process) {
    const DWORD handles = process != nullptr ? 1 : 0;
    for (;;) {
        if (::MsgWaitForMultipleObjects(handles, &process, FALSE, INFINITE, QS_ALLINPUT) < WAIT_OBJECT_0 + handles)
            return;
        MSG message{};
        while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
            if (message.message == WM_QUIT) return;
            ::DispatchMessageW(&message);
        }
    }
}

int Run(const wchar_t* arguments) {
    const fw::UniqueKernelHandle parent{::OpenProcess(SYNCHRONIZE, FALSE, std::wcstoul(arguments, nullptr, 10))};
    WNDCLASSW windowClass{};
    windowClass.lpfnWndProc = &Procedure;
    windowClass.lpszClassName = kServiceClass;
    windowClass.hInstance = ::GetModuleHandleW(nullptr);
    ::RegisterClassW(&windowClass);
    {
        Shell shell;
        const HWND window = ::CreateWindowExW(WS_EX_TOOLWINDOW, kServiceClass, L"", WS_POPUP, 0, 0, 0, 0, nullptr,
                                              nullptr, windowClass.hInstance, nullptr);
        if (window == nullptr) return 1;
        ::SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(&shell));
        ::SetTimer(window, kSweepTimer, kSweepPeriodMs, nullptr);
        RunLoop(parent.Get());
        ::DestroyWindow(window);
    }
    PublishWorkArea(WholeScreen());
    return 0;
}

} // namespace
} // namespace korvane::fake_shell

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR arguments, int) {
    return korvane::fake_shell::Run(arguments);
}
