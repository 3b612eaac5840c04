#include "tests/support/program_driver.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>
#include <cwchar>

namespace korvane::test {
namespace {

constexpr wchar_t kBarClass[] = L"Korvane_WndClass";
constexpr wchar_t kMessageBoxClass[] = L"#32770";
constexpr UINT kAnswerTimeoutMs = 10'000;
// The identifier of a message box's text.
constexpr int kBoxTextId = 0xFFFF;

template <class Visitor>
BOOL CALLBACK Visit(HWND window, LPARAM visitor) {
    (*reinterpret_cast<Visitor*>(visitor))(window);
    return TRUE;
}

template <class Visitor>
void ForEachTopLevelWindow(Visitor visitor) {
    ::EnumWindows(&Visit<Visitor>, reinterpret_cast<LPARAM>(&visitor));
}

template <class Visitor>
void ForEachChild(HWND parent, Visitor visitor) {
    ::EnumChildWindows(parent, &Visit<Visitor>, reinterpret_cast<LPARAM>(&visitor));
}

// Pixels of a square in the top left corner of a device context's bitmap.
class Picture {
public:
    explicit Picture(SIZE size) : size_{size}, context_{::CreateCompatibleDC(nullptr)} {
        BITMAPINFO info{};
        info.bmiHeader.biSize = sizeof info.bmiHeader;
        info.bmiHeader.biWidth = size.cx;
        info.bmiHeader.biHeight = -size.cy;
        info.bmiHeader.biPlanes = 1;
        info.bmiHeader.biBitCount = 32;
        void* bits = nullptr;
        bitmap_.Reset(::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0));
        pixels_ = static_cast<const std::uint8_t*>(bits);
        before_ = ::SelectObject(context_.Get(), bitmap_.Get());
    }
    ~Picture() { ::SelectObject(context_.Get(), before_); }
    Picture(const Picture&) = delete;
    Picture& operator=(const Picture&) = delete;

    [[nodiscard]] HDC Context() const { return context_.Get(); }
    [[nodiscard]] COLORREF Corner() const { return ::GetPixel(context_.Get(), 0, 0); }

    // The summed distance of all colour values.
    [[nodiscard]] long long DistanceTo(const Picture& other) const {
        ::GdiFlush();
        long long sum = 0;
        for (long i = 0; i < size_.cx * size_.cy * 4; ++i)
            if (i % 4 != 3) sum += std::abs(int{pixels_[i]} - int{other.pixels_[i]});
        return sum;
    }

private:
    SIZE size_;
    fw::UniqueMemoryDc context_;
    fw::UniqueBitmap bitmap_;
    const std::uint8_t* pixels_ = nullptr;
    HGDIOBJ before_ = nullptr;
};

INPUT KeyInput(WORD key, bool release) {
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = key;
    input.ki.wScan = static_cast<WORD>(::MapVirtualKeyW(key, MAPVK_VK_TO_VSC));
    input.ki.dwFlags = release ? KEYEVENTF_KEYUP : 0;
    // Keys that PC keyboards got later are told from their number pad twins by this flag.
    constexpr std::array<WORD, 10> kExtended{VK_LWIN,  VK_RWIN, VK_UP,  VK_DOWN,   VK_LEFT,
                                             VK_RIGHT, VK_HOME, VK_END, VK_DELETE, VK_APPS};
    if (std::find(kExtended.begin(), kExtended.end(), key) != kExtended.end())
        input.ki.dwFlags |= KEYEVENTF_EXTENDEDKEY;
    return input;
}

void Send(std::vector<INPUT> inputs) {
    ::SendInput(static_cast<UINT>(inputs.size()), inputs.data(), sizeof(INPUT));
}

// The environment of this process with another folder in front of its search path, as CreateProcess wants it.
std::wstring EnvironmentWithPath(const std::wstring& folder) {
    std::wstring block;
    wchar_t* const own = ::GetEnvironmentStringsW();
    for (const wchar_t* entry = own; *entry; entry += std::wcslen(entry) + 1) {
        if (_wcsnicmp(entry, L"PATH=", 5) == 0)
            block.append(L"PATH=").append(folder).append(L";").append(entry + 5);
        else
            block += entry;
        block += L'\0';
    }
    ::FreeEnvironmentStringsW(own);
    block += L'\0';
    return block;
}

} // namespace

std::wstring ClassOf(HWND window) {
    std::array<wchar_t, 256> name{};
    ::GetClassNameW(window, name.data(), static_cast<int>(name.size()));
    return name.data();
}

std::wstring TextOf(HWND window) {
    std::array<wchar_t, 4096> text{};
    DWORD_PTR length = 0;
    ::SendMessageTimeoutW(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()), SMTO_NORMAL,
                          kAnswerTimeoutMs, &length);
    return text.data();
}

RECT RectInParent(HWND child) {
    RECT rect{};
    ::GetWindowRect(child, &rect);
    ::MapWindowPoints(nullptr, ::GetParent(child), reinterpret_cast<POINT*>(&rect), 2);
    return rect;
}

DWORD ProcessOf(HWND window) {
    DWORD id = 0;
    ::GetWindowThreadProcessId(window, &id);
    return id;
}

std::vector<HWND> WindowsOf(DWORD processId, const wchar_t* className) {
    std::vector<HWND> found;
    ForEachTopLevelWindow([&](HWND window) {
        if (ProcessOf(window) == processId && ::IsWindowVisible(window) &&
            (className == nullptr || ClassOf(window) == className))
            found.push_back(window);
    });
    return found;
}

std::vector<HWND> AllWindows(const wchar_t* className) {
    std::vector<HWND> found;
    ForEachTopLevelWindow([&](HWND window) {
        if (ClassOf(window) == className) found.push_back(window);
    });
    return found;
}

void EndOwnersOf(const wchar_t* className) {
    for (HWND window : AllWindows(className)) {
        const fw::UniqueKernelHandle process{::OpenProcess(PROCESS_TERMINATE | SYNCHRONIZE, FALSE, ProcessOf(window))};
        if (!process) continue;
        ::TerminateProcess(process.Get(), 1);
        ::WaitForSingleObject(process.Get(), kAnswerTimeoutMs);
    }
}

namespace {

// What was sent overtakes what was posted. A posted message that leaves a trace tells when its turn has come: the most
// that the command input box takes. Without such a box there is nothing to wait for.
bool PostedMessagesAreDone(HWND window) {
    constexpr int kCommandInputBox = 2001;
    constexpr LRESULT kLeast = 0x7FFF'0000;
    static LRESULT trace = kLeast;
    const HWND box = ::GetDlgItem(window, kCommandInputBox);
    if (!box) return true;
    if (++trace == 0x7FFF'FFF0) trace = kLeast;
    ::PostMessageW(box, EM_SETLIMITTEXT, static_cast<WPARAM>(trace), 0);
    return WaitUntil([&] { return !::IsWindow(box) || ::SendMessageW(box, EM_GETLIMITTEXT, 0, 0) == trace; });
}

} // namespace

bool WaitUntilIdle(HWND window) {
    const fw::UniqueKernelHandle process{
        ::OpenProcess(PROCESS_QUERY_INFORMATION | SYNCHRONIZE, FALSE, ProcessOf(window))};
    if (process) ::WaitForInputIdle(process.Get(), kAnswerTimeoutMs);
    DWORD_PTR answer = 0;
    return ::SendMessageTimeoutW(window, WM_NULL, 0, 0, SMTO_NORMAL, kAnswerTimeoutMs, &answer) != 0 &&
           PostedMessagesAreDone(window);
}

void PressKeys(std::initializer_list<WORD> keys) {
    std::vector<INPUT> inputs;
    for (WORD key : keys) inputs.push_back(KeyInput(key, false));
    for (auto key = std::rbegin(keys); key != std::rend(keys); ++key) inputs.push_back(KeyInput(*key, true));
    Send(std::move(inputs));
}

void TypeText(std::wstring_view text) {
    std::vector<INPUT> inputs;
    for (wchar_t character : text) {
        for (DWORD release : {DWORD{0}, DWORD{KEYEVENTF_KEYUP}}) {
            INPUT input{};
            input.type = INPUT_KEYBOARD;
            input.ki.wScan = character;
            input.ki.dwFlags = KEYEVENTF_UNICODE | release;
            inputs.push_back(input);
        }
    }
    Send(std::move(inputs));
}

void Click(HWND window) {
    RECT rect{};
    ::GetWindowRect(window, &rect);
    ::SetCursorPos((rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2);
    std::vector<INPUT> inputs(2);
    for (INPUT& input : inputs) input.type = INPUT_MOUSE;
    inputs[0].mi.dwFlags = MOUSEEVENTF_LEFTDOWN;
    inputs[1].mi.dwFlags = MOUSEEVENTF_LEFTUP;
    Send(std::move(inputs));
}

HWND FocusOf(HWND window) {
    GUITHREADINFO info{};
    info.cbSize = sizeof info;
    return ::GetGUIThreadInfo(::GetWindowThreadProcessId(window, nullptr), &info) ? info.hwndFocus : nullptr;
}

bool ClickIntoFocus(HWND control) {
    const HWND top = ::GetAncestor(control, GA_ROOT);
    const auto has = [&] { return FocusOf(control) == control && ::GetForegroundWindow() == top; };
    // A click that comes while the display server hands out the focus can be swallowed; a user would click once more.
    constexpr std::chrono::seconds kForOneClick{4};
    return WaitUntil([&] {
        ::SetForegroundWindow(top);
        Click(control);
        return WaitUntil(has, kForOneClick);
    });
}

std::wstring TextOfError(DWORD code) {
    std::array<wchar_t, 1024> text{};
    ::FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr, code, 0, text.data(),
                     static_cast<DWORD>(text.size()), nullptr);
    return text.data();
}

std::wstring MessageBoxView::Text() const {
    return TextOf(::GetDlgItem(window_, kBoxTextId));
}

BoxIcon MessageBoxView::Icon() const {
    HWND icon = nullptr;
    ForEachChild(window_, [&](HWND child) {
        const LONG style = ::GetWindowLongW(child, GWL_STYLE);
        if (ClassOf(child) == L"Static" && (style & SS_TYPEMASK) == SS_ICON && ::IsWindowVisible(child)) icon = child;
    });
    if (icon == nullptr) return BoxIcon::kNone;

    RECT rect{};
    ::GetWindowRect(icon, &rect);
    const SIZE size{::GetSystemMetrics(SM_CXICON), ::GetSystemMetrics(SM_CYICON)};
    struct Candidate {
        BoxIcon icon;
        const wchar_t* resource;
    };
    const std::array candidates{Candidate{BoxIcon::kError, IDI_ERROR}, Candidate{BoxIcon::kQuestion, IDI_QUESTION},
                                Candidate{BoxIcon::kWarning, IDI_WARNING},
                                Candidate{BoxIcon::kInformation, IDI_INFORMATION}};

    // The box may not have painted yet, so only a near match counts.
    const auto nearest = WaitUntil([&]() -> std::optional<BoxIcon> {
        const Picture shown{size};
        const HDC screen = ::GetDC(nullptr);
        ::BitBlt(shown.Context(), 0, 0, size.cx, size.cy, screen, rect.left, rect.top, SRCCOPY);
        ::ReleaseDC(nullptr, screen);
        const long long nearEnough = 8LL * size.cx * size.cy;
        for (const Candidate& candidate : candidates) {
            const Picture expected{size};
            const fw::UniqueBrush background{::CreateSolidBrush(shown.Corner())};
            const RECT all{0, 0, size.cx, size.cy};
            ::FillRect(expected.Context(), &all, background.Get());
            ::DrawIconEx(expected.Context(), 0, 0, ::LoadIconW(nullptr, candidate.resource), size.cx, size.cy, 0,
                         nullptr, DI_NORMAL);
            if (shown.DistanceTo(expected) < nearEnough) return candidate.icon;
        }
        return std::nullopt;
    });
    return nearest.value_or(BoxIcon::kNone);
}

std::vector<int> MessageBoxView::Buttons() const {
    std::vector<int> ids;
    ForEachChild(window_, [&](HWND child) {
        if (ClassOf(child) == L"Button" && ::IsWindowVisible(child)) ids.push_back(::GetDlgCtrlID(child));
    });
    return ids;
}

bool MessageBoxView::Press(int button) const {
    const HWND control = ::GetDlgItem(window_, button);
    if (control == nullptr) return false;
    ::PostMessageW(window_, WM_COMMAND, MAKEWPARAM(button, BN_CLICKED), reinterpret_cast<LPARAM>(control));
    return WaitUntil([&] { return !::IsWindow(window_); });
}

Program::Program(const StartOptions& options) {
    const std::wstring program = options.program.empty() ? OwnFolder() + KORVANE_PROGRAM : options.program;
    std::wstring commandLine = L"\"" + program + L"\"";
    std::wstring environment;
    if (!options.searchPath.empty()) environment = EnvironmentWithPath(options.searchPath);
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESHOWWINDOW;
    startup.wShowWindow = options.showCommand;
    PROCESS_INFORMATION started{};
    if (::CreateProcessW(program.c_str(), commandLine.data(), nullptr, nullptr, FALSE, CREATE_UNICODE_ENVIRONMENT,
                         environment.empty() ? nullptr : environment.data(), nullptr, &startup, &started)) {
        ::CloseHandle(started.hThread);
        process_.Reset(started.hProcess);
        id_ = started.dwProcessId;
        thread_ = started.dwThreadId;
    }
}

Program::~Program() {
    if (!Running()) return;
    // Under Wine a process that is ended by force keeps its windows on the screen for another second, so first its loop
    // is asked to end, which saves nothing and asks nothing.
    ::PostThreadMessageW(thread_, WM_QUIT, 0, 0);
    constexpr DWORD kPatienceMs = 2'000;
    if (::WaitForSingleObject(process_.Get(), kPatienceMs) == WAIT_OBJECT_0) return;
    ::TerminateProcess(process_.Get(), 1);
    ::WaitForSingleObject(process_.Get(), kAnswerTimeoutMs);
}

bool Program::Running() const {
    return process_ && ::WaitForSingleObject(process_.Get(), 0) == WAIT_TIMEOUT;
}

std::optional<DWORD> Program::WaitForExit() const {
    const auto deadlineMs = std::chrono::milliseconds{kDeadline}.count();
    if (!process_ || ::WaitForSingleObject(process_.Get(), static_cast<DWORD>(deadlineMs)) != WAIT_OBJECT_0) return {};
    DWORD code = 0;
    ::GetExitCodeProcess(process_.Get(), &code);
    return code;
}

HWND Program::WaitForBar() const {
    HWND bar = nullptr;
    WaitUntil([&] {
        const auto bars = WindowsOf(id_, kBarClass);
        if (!bars.empty()) bar = bars.front();
        return bar != nullptr || !Running();
    });
    if (bar == nullptr || !WaitUntilIdle(bar)) return nullptr;
    // The window manager hands out the focus a moment after a window has come up, and what the bar opens before then it
    // closes again. Not every bar gets the focus.
    constexpr std::chrono::milliseconds kForTheWindowManager{1000};
    WaitUntil([bar] { return ::GetForegroundWindow() == bar; }, kForTheWindowManager);
    return bar;
}

MessageBoxView Program::WaitForBox(const MessageBoxView& previous) const {
    return MessageBoxView{WaitUntil([&]() -> HWND {
        for (HWND window : WindowsOf(id_, kMessageBoxClass))
            if (window != previous.Handle() && ::GetDlgItem(window, kBoxTextId) != nullptr) return window;
        return nullptr;
    })};
}

std::wstring OwnFolder() {
    std::array<wchar_t, 1024> path{};
    ::GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
    std::wstring folder{path.data()};
    return folder.substr(0, folder.rfind(L'\\') + 1);
}

} // namespace korvane::test
