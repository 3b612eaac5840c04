#pragma once

#include <windows.h>

#include <chrono>
#include <utility>

namespace korvane::test {

// How long a test waits for what must happen. Only a failing test ever waits so long.
inline constexpr auto kDeadline = std::chrono::seconds{20};

// Asks again and again until the condition's answer is true or the deadline has passed; gives the last answer, which
// may be anything that converts to bool.
template <class Condition>
auto WaitUntil(Condition&& condition, std::chrono::milliseconds deadline = kDeadline) {
    constexpr DWORD kBetweenQuestionsMs = 5;
    const auto end = std::chrono::steady_clock::now() + deadline;
    for (;;) {
        auto answer = condition();
        if (answer || std::chrono::steady_clock::now() >= end) return answer;
        ::Sleep(kBetweenQuestionsMs);
    }
}

} // namespace korvane::test
