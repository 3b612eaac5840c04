#pragma once

#include <string>

#include "about/help_opener.h"

namespace korvane::test {

// Opens no help and remembers what was asked for.
class FakeHelp final : public about::HelpOpener {
public:
    std::wstring log; // one topic a line
    HWND asker = nullptr;

    void OpenHelp(std::wstring_view topic, HWND from) override {
        log.append(topic).append(L"\n");
        asker = from;
    }
};

} // namespace korvane::test
