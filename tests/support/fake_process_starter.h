#pragma once

#include <string>

#include "search/logic/process_starter.h"

namespace korvane::test {

// Starts nothing, answers as it is told and writes a log, one line for each request.
class FakeProcessStarter final : public search::ProcessStarter {
public:
    unsigned long startError = 0; // Windows error code, 0 for success
    int openResult = 33;          // above 32 is success
    std::wstring log;

    [[nodiscard]] unsigned long StartCommandLine(const std::wstring& commandLine) override {
        log += L"start " + commandLine + L"\n";
        return startError;
    }
    [[nodiscard]] int Open(const std::wstring& file) override {
        log += L"open " + file + L"\n";
        return openResult;
    }
};

} // namespace korvane::test
