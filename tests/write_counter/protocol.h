#pragma once

#include <windows.h>

namespace korvane::test {

// Between the writes' counter in a program and the test that put it there.

inline constexpr wchar_t kCounterMapping[] = L"Local\\KorvaneWriteCounter";
// A registered window message that begins the counting.
inline constexpr wchar_t kCounterMessage[] = L"KorvaneWriteCounterBegins";
inline constexpr char kCounterHook[] = "WriteCounterHook";
// What a program ends with that the counter has ended.
inline constexpr DWORD kEndedByCounter = 77;

struct CountedCalls {
    static constexpr LONG kMost = 200;

    LONG counting = 0; // 1 as soon as the program's calls are counted
    LONG endAt = 0;    // the call, counted from 1, at which the program ends; 0 for none
    LONG count = 0;
    char names[kMost][32] = {}; // of the functions called
};

} // namespace korvane::test
