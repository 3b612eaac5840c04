#include "framework/window.h"

#include <unordered_map>
#include <utility>

namespace fw {
namespace {

std::unordered_map<HWND, WindowObject*>& Bound() {
    static std::unordered_map<HWND, WindowObject*> bound;
    return bound;
}

// The object whose window is being created. The message that binds the two is not asked for it: anyone can send it once
// more, with anything for a pointer.
WindowObject* g_creating = nullptr;

struct OwnedPopUp {
    HWND owner;
    HWND found;
};

BOOL CALLBACK FindOwnedPopUp(HWND window, LPARAM parameter) noexcept {
    auto& search = *reinterpret_cast<OwnedPopUp*>(parameter);
    if (::GetWindow(window, GW_OWNER) != search.owner || !WindowObject::From(window)) return TRUE;
    search.found = window;
    return FALSE;
}

} // namespace

WindowObject::~WindowObject() {
    Unbind();
}

WindowObject* WindowObject::From(HWND window) {
    const auto at = Bound().find(window);
    return at == Bound().end() ? nullptr : at->second;
}

void WindowObject::Bind(HWND window) {
    window_ = window;
    Bound()[window] = this;
}

void WindowObject::Unbind() {
    if (window_) Bound().erase(window_);
    window_ = nullptr;
    created_ = false;
}

void WindowObject::Redraw() const {
    ::RedrawWindow(window_, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
}

bool WindowObject::CreateBound(const wchar_t* className, const CreateOptions& options) {
    const RECT& r = options.rect;
    WindowObject* const outer = std::exchange(g_creating, this);
    const HWND window = ::CreateWindowExW(options.extendedStyle, className, options.text, options.style, r.left, r.top,
                                          r.right - r.left, r.bottom - r.top, options.parent,
                                          reinterpret_cast<HMENU>(options.id), ::GetModuleHandleW(nullptr), nullptr);
    g_creating = outer;
    return window != nullptr;
}

void WindowObject::DestroyUnbound(WNDPROC procedure) {
    const HWND window = window_;
    if (!window) return;
    Unbind();
    ::SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(procedure));
    ::DestroyWindow(window);
}

void DestroyOwnedPopUps(HWND owner) {
    // One at a time, for each may take others with it.
    for (;;) {
        OwnedPopUp search{owner, nullptr};
        ::EnumThreadWindows(::GetCurrentThreadId(), &FindOwnedPopUp, reinterpret_cast<LPARAM>(&search));
        if (!search.found || !::DestroyWindow(search.found)) return;
    }
}

Reply WindowObject::Reflect(const Message& m) {
    HWND child = nullptr;
    switch (m.id) {
    case WM_DRAWITEM:
        child = reinterpret_cast<const DRAWITEMSTRUCT*>(m.lparam)->hwndItem;
        break;
    case WM_MEASUREITEM: {
        // A menu's items belong to no child.
        const auto& item = *reinterpret_cast<const MEASUREITEMSTRUCT*>(m.lparam);
        if (item.CtlType != ODT_MENU) child = ::GetDlgItem(m.window, static_cast<int>(item.CtlID));
        break;
    }
    case WM_NOTIFY:
        child = reinterpret_cast<const NMHDR*>(m.lparam)->hwndFrom;
        break;
    case WM_COMMAND:
    case WM_CTLCOLORBTN:
    case WM_CTLCOLOREDIT:
    case WM_CTLCOLORSTATIC:
        child = reinterpret_cast<HWND>(m.lparam);
        break;
    default:
        return kPassOn;
    }
    WindowObject* const object = From(child);
    if (!object) return kPassOn;
    return object->Dispatch({child, m.id, m.wparam, m.lparam, true});
}

LRESULT CALLBACK WindowObject::Procedure(HWND window, UINT id, WPARAM wparam, LPARAM lparam) noexcept {
    WindowObject* self = From(window);
    if (id == WM_NCCREATE) {
        // A second one, or one for a window that nothing of this program stands behind.
        if (self || !g_creating) return FALSE;
        self = std::exchange(g_creating, nullptr);
        self->Bind(window);
    }
    if (!self) return ::DefWindowProcW(window, id, wparam, lparam);
    if (id == WM_CREATE && std::exchange(self->created_, true)) return 0;

    const Message m{window, id, wparam, lparam};
    if (id == WM_NCDESTROY) {
        const LRESULT result = self->Dispatch(m).value_or(0);
        self->Default(m);
        self->Unbind();
        self->OnFinalMessage();
        return result;
    }
    // A handler that answered may have destroyed the object: touch nothing of it afterwards.
    if (const Reply reply = self->Dispatch(m)) return *reply;
    return self->Default(m);
}

WNDPROC WindowObject::Register(const WindowClass& windowClass) {
    const HINSTANCE instance = ::GetModuleHandleW(nullptr);
    WNDCLASSEXW c{};
    c.cbSize = sizeof c;
    WNDPROC base = nullptr;
    if (windowClass.base) {
        if (!::GetClassInfoExW(nullptr, windowClass.base, &c)) return nullptr;
        base = c.lpfnWndProc;
        c.cbSize = sizeof c;
        c.style &= ~static_cast<UINT>(CS_GLOBALCLASS);
    } else {
        c.hCursor = ::LoadCursorW(nullptr, reinterpret_cast<LPCWSTR>(IDC_ARROW));
    }
    c.style |= windowClass.style;
    c.lpszClassName = windowClass.name;
    c.lpszMenuName = nullptr;
    c.lpfnWndProc = &WindowObject::Procedure;
    c.hInstance = instance;
    // Registering again fails and changes nothing.
    ::RegisterClassExW(&c);
    return base;
}

} // namespace fw
