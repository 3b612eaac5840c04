#include "about/own_folder_scope.h"

#include <windows.h>

#include "framework/program_path.h"

namespace korvane::about {
namespace {

std::wstring CurrentFolder() {
    std::wstring folder(::GetCurrentDirectoryW(0, nullptr), L'\0');
    const DWORD length = ::GetCurrentDirectoryW(static_cast<DWORD>(folder.size()), folder.data());
    // Another thread may have changed it to a longer one in between.
    folder.resize(length < folder.size() ? length : 0);
    return folder;
}

} // namespace

OwnFolderScope::OwnFolderScope() {
    const auto program = fw::ProgramPath();
    if (!program) return;
    std::wstring before = CurrentFolder();
    if (::SetCurrentDirectoryW(program->substr(0, program->rfind(L'\\') + 1).c_str())) previous_ = std::move(before);
}

OwnFolderScope::~OwnFolderScope() {
    if (!previous_.empty()) ::SetCurrentDirectoryW(previous_.c_str());
}

} // namespace korvane::about
