#pragma once

#include <windows.h>

#include <utility>

namespace fw {

// Owns one Windows object and releases it once. A plain HICON, HFONT and so on is always borrowed.
template <class Handle, auto Release>
class UniqueHandle {
public:
    UniqueHandle() = default;
    explicit UniqueHandle(Handle handle) noexcept : handle_{handle} {}
    UniqueHandle(UniqueHandle&& other) noexcept : handle_{other.Detach()} {}
    UniqueHandle& operator=(UniqueHandle&& other) noexcept {
        Reset(other.Detach());
        return *this;
    }
    UniqueHandle(const UniqueHandle&) = delete;
    UniqueHandle& operator=(const UniqueHandle&) = delete;
    ~UniqueHandle() { Reset(); }

    [[nodiscard]] Handle Get() const noexcept { return handle_; }
    [[nodiscard]] Handle Detach() noexcept { return std::exchange(handle_, Handle{}); }
    explicit operator bool() const noexcept { return handle_ != Handle{}; }
    void Reset(Handle handle = Handle{}) noexcept {
        const Handle old = std::exchange(handle_, handle);
        if (old != Handle{} && old != handle) Release(old);
    }

private:
    Handle handle_{};
};

using UniqueIcon = UniqueHandle<HICON, &::DestroyIcon>;
using UniqueFont = UniqueHandle<HFONT, &::DeleteObject>;
using UniqueBrush = UniqueHandle<HBRUSH, &::DeleteObject>;
using UniquePen = UniqueHandle<HPEN, &::DeleteObject>;
using UniqueBitmap = UniqueHandle<HBITMAP, &::DeleteObject>;
using UniqueMenu = UniqueHandle<HMENU, &::DestroyMenu>;
using UniqueKey = UniqueHandle<HKEY, &::RegCloseKey>;
using UniqueLibrary = UniqueHandle<HMODULE, &::FreeLibrary>;
using UniqueHook = UniqueHandle<HHOOK, &::UnhookWindowsHookEx>;
using UniqueMemoryDc = UniqueHandle<HDC, &::DeleteDC>;

// A file handle's "none" is -1, so callers turn INVALID_HANDLE_VALUE into null before they hand it over.
using UniqueKernelHandle = UniqueHandle<HANDLE, &::CloseHandle>;

} // namespace fw
