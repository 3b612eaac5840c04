#include "framework/named_mutex.h"

namespace fw {
namespace {

HANDLE Open(const wchar_t* name) {
    // Not the full access that the plain function asks for, which a process with more rights may keep to itself.
    constexpr DWORD kNotOwned = 0;
    return ::CreateMutexExW(nullptr, name, kNotOwned, SYNCHRONIZE | MUTEX_MODIFY_STATE);
}

} // namespace

NamedMutex::NamedMutex(const wchar_t* name) : mutex_{Open(name)} {}

NamedMutex::~NamedMutex() {
    if (taken_) ::ReleaseMutex(mutex_.Get());
}

bool NamedMutex::Take(std::chrono::milliseconds patience) {
    if (!mutex_ || taken_) return taken_;
    const ULONGLONG start = ::GetTickCount64();
    const auto patienceMs = static_cast<ULONGLONG>(patience.count());
    HANDLE mutex = mutex_.Get();
    for (;;) {
        const ULONGLONG passed = ::GetTickCount64() - start;
        const auto left = static_cast<DWORD>(passed < patienceMs ? patienceMs - passed : 0);
        const DWORD result = ::MsgWaitForMultipleObjects(1, &mutex, FALSE, left, QS_SENDMESSAGE);
        // One that was abandoned by a process that died is owned like any other.
        taken_ = result == WAIT_OBJECT_0 || result == WAIT_ABANDONED_0;
        if (result != WAIT_OBJECT_0 + 1) return taken_;
        MSG none{};
        // Delivers what was sent. Nothing is taken from the queue.
        ::PeekMessageW(&none, nullptr, 0, 0, PM_NOREMOVE | PM_QS_SENDMESSAGE);
        if (left == 0) return false;
    }
}

} // namespace fw
