#include "framework/thread.h"

#include <windows.h>

#include <process.h>

#include <memory>

#include "framework/handle.h"

namespace fw {
namespace {

unsigned __stdcall Work(void* work) noexcept {
    (*std::unique_ptr<std::function<void()>>{static_cast<std::function<void()>*>(work)})();
    return 0;
}

} // namespace

// Not std::thread: when a thread ends just while the compiler's thread library detaches it, that library puts its
// record up for use twice, and a later thread ends without having run its function.
bool StartThread(std::function<void()> work) {
    auto owned = std::make_unique<std::function<void()>>(std::move(work));
    const UniqueKernelHandle thread{
        reinterpret_cast<HANDLE>(::_beginthreadex(nullptr, 0, &Work, owned.get(), 0, nullptr))};
    if (!thread) return false;
    static_cast<void>(owned.release()); // the thread's now
    return true;
}

} // namespace fw
