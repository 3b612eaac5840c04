#pragma once

#include <windows.h>

#include <string>
#include <vector>

#include "tests/write_counter/protocol.h"

namespace korvane::test {

// Counts the calls by which a running program changes the registry and files, and can end it at one of them.
class WriteCounter {
public:
    WriteCounter();
    WriteCounter(const WriteCounter&) = delete;
    WriteCounter& operator=(const WriteCounter&) = delete;
    ~WriteCounter();

    // Counts from now on in the program of this window; it ends at the given call, counted from 1, with the exit code
    // kEndedByCounter. With 0 it goes on. False when the program cannot be reached.
    [[nodiscard]] bool Begin(HWND window, long endAt);
    // Of the program that was last begun with.
    [[nodiscard]] long Count() const { return calls_->count; }
    [[nodiscard]] std::vector<std::string> Names() const;

private:
    HMODULE library_;
    HANDLE mapping_;
    CountedCalls* calls_;
};

} // namespace korvane::test
