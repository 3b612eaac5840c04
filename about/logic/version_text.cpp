#include "about/logic/version_text.h"

#include "base/format_text.h"

namespace korvane::about {
namespace {

std::wstring_view KnownOr(std::wstring_view text, std::wstring_view replacement) {
    return text.empty() ? replacement : text;
}

} // namespace

std::wstring VersionText(int addressBits, std::wstring_view fileVersion, const WindowsIdentity& windows) {
    const std::wstring label = base::FormatText(L"Korvane %d", addressBits);
    return base::FormatText(L"%s Version %s\nfor %s [%d.%d.%d]", std::wstring_view{label}, KnownOr(fileVersion, L"?"),
                            KnownOr(windows.productName, L"Windows"), windows.major, windows.minor, windows.build);
}

} // namespace korvane::about
