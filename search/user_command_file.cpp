#include "search/user_command_file.h"

#include <windows.h>

#include <utility>

#include "settings/logic/data_folder_path.h"

namespace korvane::search {
namespace {

// Bytes. Fifty commands of the longest texts that an edit box takes are a fifth of it.
constexpr unsigned long kLargestFile = 16UL << 20;

} // namespace

WindowsUserCommandFile::WindowsUserCommandFile(std::wstring path, std::wstring header)
    : path_{std::move(path)}, header_{std::move(header)}, store_{path_, settings::LongTexts::kWhole} {}

UserCommandReading WindowsUserCommandFile::Read() const {
    const settings::FileContent content = settings::ReadContent(path_, kLargestFile);
    if (content.Missing()) return {};
    if (content.error != 0) return {FileCondition::kUnreadable, {}};
    ForgetOldContent();
    auto commands = SearchCommandTable{store_}.ReadAll();
    const FileCondition condition = JudgeUserCommands(content.bytes, commands.size());
    return {condition, std::move(commands)};
}

unsigned long WindowsUserCommandFile::KeepCopy() {
    return files_.Exists(path_) ? settings::ReplaceByCopy(files_, settings::CopyOfUserCommandFile(path_), path_) : 0;
}

unsigned long WindowsUserCommandFile::Write(std::span<const SearchCommand> commands) {
    const unsigned long error = settings::ReplaceContent(files_, path_, FormatUserCommands(header_, commands));
    ForgetOldContent();
    return error;
}

unsigned long WindowsUserCommandFile::Delete() {
    return files_.Delete(path_);
}

void WindowsUserCommandFile::ForgetOldContent() const {
    ::WritePrivateProfileStringW(nullptr, nullptr, nullptr, path_.c_str());
}

} // namespace korvane::search
