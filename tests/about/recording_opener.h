#pragma once

#include <string>

#include "about/support.h"

namespace korvane::test {

// Stands for the shell: notes what it is to do, and answers as it is told.
struct RecordingOpener {
    std::wstring log; // verb and file, a line each
    INT_PTR answer = 33;

    [[nodiscard]] about::ShellOpener AsOpener() {
        return [this](const wchar_t* verb, const std::wstring& file) {
            log.append(verb).append(L" ").append(file).append(L"\n");
            return answer;
        };
    }
};

} // namespace korvane::test
