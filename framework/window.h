#pragma once

#include "framework/message_map.h"

namespace fw {

// A window class of this program. With `base` it is a superclass: what its map passes on ends in that class's
// procedure.
struct WindowClass {
    const wchar_t* name;
    const wchar_t* base = nullptr;
    UINT style = 0;
};

struct CreateOptions {
    const wchar_t* text = L"";
    RECT rect{};
    DWORD style = 0;
    DWORD extendedStyle = 0;
    HWND parent = nullptr;
    UINT_PTR id = 0; // of a child window
};

// What stands behind a window of this program. The object outlives its window or destroys it; it is entered in the one
// table of windows at WM_NCCREATE and leaves it at WM_NCDESTROY. All of it belongs to the one GUI thread. No exception
// leaves a procedure: what Windows would make of it depends on who sent the message.
class WindowObject {
public:
    WindowObject() = default;
    WindowObject(const WindowObject&) = delete;
    WindowObject& operator=(const WindowObject&) = delete;
    virtual ~WindowObject();

    // Null before creation and after destruction.
    [[nodiscard]] HWND Handle() const { return window_; }

    // The object behind a window, or null for a window that is not this program's.
    [[nodiscard]] static WindowObject* From(HWND window);

    // Offers a child's notification to the child itself. Empty when there is no such object or it declines.
    static Reply Reflect(const Message& m);

    // Offers a message to the map alone, without the default procedure.
    virtual Reply Dispatch(const Message& m) = 0;

    // What the window's class would do with the message if there were no map.
    virtual LRESULT Default(const Message& m) { return ::DefWindowProcW(m.window, m.id, m.wparam, m.lparam); }

    // Invalidates, erases and paints at once.
    void Redraw() const;

protected:
    // The window is gone and the object unbound: the last call that it gets, so it may delete itself.
    virtual void OnFinalMessage() {}

    void Bind(HWND window);
    void Unbind();
    bool CreateBound(const wchar_t* className, const CreateOptions& options);
    // Takes the window away from the object and destroys it; `procedure` serves its last messages. For destructors,
    // where the map must not run any more.
    void DestroyUnbound(WNDPROC procedure);
    static LRESULT CALLBACK Procedure(HWND window, UINT id, WPARAM wparam, LPARAM lparam) noexcept;

    // Registers a class once per process; gives the procedure of the base class, or null when there is no base.
    static WNDPROC Register(const WindowClass& windowClass);

private:
    HWND window_ = nullptr;
    bool created_ = false; // WM_CREATE has come
};

// Destroys the pop-ups of this program that a window of its thread owns. For owners that go before their windows do:
// what stands behind a pop-up may have something to tell the owner, which must be whole then.
void DestroyOwnedPopUps(HWND owner);

// Base of a window class T, which declares `static constexpr fw::WindowClass kClass` and `static constexpr auto
// Messages()`.
template <class T>
class Window : public WindowObject {
public:
    ~Window() override { DestroyUnbound(BaseProcedure()); }

    // False when Windows refused or WM_CREATE answered -1; the reason is then the thread's last error.
    [[nodiscard]] bool Create(const CreateOptions& options) {
        base_procedure_ = WindowObject::Register(T::kClass);
        return CreateBound(T::kClass.name, options);
    }

    Reply Dispatch(const Message& m) override {
        static constexpr auto map = T::Messages();
        return map(static_cast<T&>(*this), m);
    }
    LRESULT Default(const Message& m) override {
        return ::CallWindowProcW(BaseProcedure(), m.window, m.id, m.wparam, m.lparam);
    }

private:
    static WNDPROC BaseProcedure() { return base_procedure_ ? base_procedure_ : &::DefWindowProcW; }
    static inline WNDPROC base_procedure_ = nullptr;
};

} // namespace fw
