#include "settings/auto_run.h"

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

} // namespace korvane::settings
