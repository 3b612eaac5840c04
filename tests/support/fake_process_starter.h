#pragma once

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

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
    [[nodiscard]] int OpenProgram(const std::wstring& program, const std::wstring& arguments) override {
        log += L"open " + program + L" with " + arguments + L"\n";
        return openResult;
    }
    // Finds the names of these programs.
    std::vector<std::wstring> programs;
    [[nodiscard]] std::optional<std::wstring> FindProgram(const std::wstring& name) override {
        if (std::ranges::find(programs, name) == programs.end()) return std::nullopt;
        return L"<" + name + L">";
    }
};

} // namespace korvane::test
