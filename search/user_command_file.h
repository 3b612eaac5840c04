#pragma once

#include <optional>
#include <string>

#include "search/logic/command_saving.h"

namespace korvane::search {

// "UserCommand.dat" as a file of Windows: UTF-16 with a byte order mark, so that the private-profile functions read and
// write it as Unicode.
class WindowsUserCommandFile final : public UserCommandFile {
public:
    // `header` is written as it stands above the first section.
    WindowsUserCommandFile(std::wstring path, std::wstring header);

    [[nodiscard]] unsigned long Recreate() override;
    void Restore() override;
    [[nodiscard]] unsigned long Delete() override;

private:
    std::wstring path_;
    std::wstring header_;
    // What the last Recreate replaced; empty when there was no file or it could not be read.
    std::optional<std::string> before_;
};

} // namespace korvane::search
