#pragma once

#include <string>
#include <vector>

#include "tests/support/help_recorder_log.h"
#include "tests/support/moved_system_file.h"

namespace korvane::test {

// While it lives, programs named korvane.exe find a recorder in the place of the HTML Help control. Its log begins
// empty.
class HelpRecorder {
public:
    HelpRecorder();
    HelpRecorder(const HelpRecorder&) = delete;
    HelpRecorder& operator=(const HelpRecorder&) = delete;
    ~HelpRecorder();

    // Programs that start from now on get no help window.
    static void AnswerNothing();

    // The calls so far, once there are at least `count`; what there is at the deadline otherwise.
    [[nodiscard]] static std::vector<std::wstring> WaitForCalls(std::size_t count);

private:
    MovedSystemFile control_{L"hhctrl.ocx"};
};

} // namespace korvane::test
