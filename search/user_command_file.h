#pragma once

#include <string>

#include "search/logic/user_commands.h"
#include "settings/ini_backend.h"
#include "settings/windows_files.h"

namespace korvane::search {

// "UserCommand.dat" as a file of Windows. Its copy is "UserCommand.bak" in the same folder.
class WindowsUserCommandFile final : public UserCommandFile {
public:
    // `header` is written as it stands above the first section.
    WindowsUserCommandFile(std::wstring path, std::wstring header);

    [[nodiscard]] UserCommandReading Read() const override;
    [[nodiscard]] unsigned long KeepCopy() override;
    [[nodiscard]] unsigned long Write(std::span<const SearchCommand> commands) override;
    [[nodiscard]] unsigned long Delete() override;

private:
    // The profile functions may hold a file's old content; this makes them let go of it.
    void ForgetOldContent() const;

    std::wstring path_;
    std::wstring header_;
    settings::IniFileStore store_;
    settings::WindowsFiles files_;
};

} // namespace korvane::search
