#include "settings/auto_run.h"

#include <array>

namespace korvane::settings {
namespace {

constexpr std::wstring_view kSection = L"Run";
constexpr std::wstring_view kName = L"Korvane AutoRun";

} // namespace

bool AutoRun::IsSet() const {
    return !store_.ReadText(kSection, kName).empty();
}

bool AutoRun::Set(std::wstring_view programPath) {
    return !programPath.empty() && store_.WriteText(kSection, kName, programPath);
}

bool AutoRun::Clear() {
    return !IsSet() || store_.DeleteValue(kSection, kName);
}

std::optional<std::wstring> ProgramPath() {
    std::array<wchar_t, MAX_PATH> path{};
    const DWORD length = ::GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
    if (length == 0 || length >= path.size()) return std::nullopt;
    return std::wstring{path.data(), length};
}

} // namespace korvane::settings
