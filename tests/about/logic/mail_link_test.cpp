#include "about/logic/mail_link.h"

#include <gtest/gtest.h>

#include "about/logic/version_text.h"

namespace korvane::about {
namespace {

TEST(SupportMailLink, EncodesNothingButTheLineBreaksOfTheBody) {
    const std::wstring version = VersionText(32, L"1.0.0", {L"Windows 7", 6, 1, 7601});

    EXPECT_EQ(SupportMailLink(version),
              L"mailto:support@korvane.example?subject=[Korvane] --please modify subject--&body="
              L"%0d%0aplease don't remove system info-----------------%0d%0a"
              L"Korvane 32 Version 1.0.0%0d%0afor Windows 7 [6.1.7601]"
              L"%0d%0a------------------------------------------------%0d%0a");
}

TEST(SupportMailLink, LeavesEvenTheSignsAloneThatALinkKnows) {
    EXPECT_EQ(SupportMailLink(L"100 % & more?"),
              L"mailto:support@korvane.example?subject=[Korvane] --please modify subject--&body="
              L"%0d%0aplease don't remove system info-----------------%0d%0a"
              L"100 % & more?"
              L"%0d%0a------------------------------------------------%0d%0a");
}

TEST(SupportMailLink, HasABodyWithoutAVersionToo) {
    EXPECT_TRUE(SupportMailLink(L"").ends_with(L"info-----------------%0d%0a%0d%0a"
                                               L"------------------------------------------------%0d%0a"));
}

} // namespace
} // namespace korvane::about
