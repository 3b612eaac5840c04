#include "about/logic/mail_link.h"

#include "about/logic/addresses.h"
#include "base/text.h"

namespace korvane::about {
namespace {

std::wstring MailBody(std::wstring_view versionText) {
    return std::wstring{L"\nplease don't remove system info-----------------\n"}
        .append(versionText)
        .append(L"\n------------------------------------------------\n");
}

} // namespace

std::wstring SupportMailLink(std::wstring_view versionText) {
    // Only the line breaks are encoded, on purpose: blanks, brackets and the rest go as they are, which mail programs
    // take.
    return std::wstring{L"mailto:"}
        .append(address::kSupportMail)
        .append(L"?subject=[Korvane] --please modify subject--&body=")
        .append(base::ReplaceAll(MailBody(versionText), L"\n", L"%0d%0a"));
}

} // namespace korvane::about
