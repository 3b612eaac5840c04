#include "tests/support/write_counter.h"

#include <algorithm>

#include "tests/support/program_driver.h"

namespace korvane::test {

WriteCounter::WriteCounter()
    : library_{::LoadLibraryW((OwnFolder() + KORVANE_WRITE_COUNTER).c_str())},
      mapping_{::CreateFileMappingW(INVALID_HANDLE_VALUE, nullptr, PAGE_READWRITE, 0, sizeof(CountedCalls),
                                    kCounterMapping)},
      calls_{static_cast<CountedCalls*>(::MapViewOfFile(mapping_, FILE_MAP_ALL_ACCESS, 0, 0, sizeof(CountedCalls)))} {}

WriteCounter::~WriteCounter() {
    ::UnmapViewOfFile(calls_);
    ::CloseHandle(mapping_);
    ::FreeLibrary(library_);
}

bool WriteCounter::Begin(HWND window, long endAt) {
    *calls_ = {};
    calls_->endAt = endAt;
    const auto procedure =
        reinterpret_cast<HOOKPROC>(reinterpret_cast<void*>(::GetProcAddress(library_, kCounterHook)));
    const HHOOK hook =
        ::SetWindowsHookExW(WH_CALLWNDPROC, procedure, library_, ::GetWindowThreadProcessId(window, nullptr));
    if (!hook) return false;
    constexpr UINT kTimeoutMs = 10'000;
    DWORD_PTR answer = 0;
    ::SendMessageTimeoutW(window, ::RegisterWindowMessageW(kCounterMessage), 0, 0, SMTO_NORMAL, kTimeoutMs, &answer);
    ::UnhookWindowsHookEx(hook);
    return calls_->counting == 1;
}

std::vector<std::string> WriteCounter::Names() const {
    std::vector<std::string> names;
    for (long i = 0; i < std::min<long>(calls_->count, CountedCalls::kMost); ++i) names.emplace_back(calls_->names[i]);
    return names;
}

} // namespace korvane::test
