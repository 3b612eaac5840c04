#pragma once

#include "search/logic/process_starter.h"

namespace korvane::search {

// Starts processes and asks the shell, on behalf of the user-interface thread.
class WinProcessStarter final : public ProcessStarter {
public:
    [[nodiscard]] unsigned long StartCommandLine(const std::wstring& commandLine) override;
    [[nodiscard]] int Open(const std::wstring& file) override;
    [[nodiscard]] int OpenProgram(const std::wstring& program, const std::wstring& arguments) override;
    [[nodiscard]] std::optional<std::wstring> FindProgram(const std::wstring& name) override;
};

} // namespace korvane::search
