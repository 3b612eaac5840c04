#include <windows.h>

#include "app/application.h"
#include "app/logic/start_checks.h"
#include "framework/abnormal_end.h"
#include "framework/centred_message_box.h"
#include "framework/system_library.h"
#include "res/ids.h"

namespace {

bool RunsUnderWow64() {
    BOOL underWow64 = FALSE;
    return ::IsWow64Process(::GetCurrentProcess(), &underWow64) && underWow64;
}

void ShowRefusal(UINT textId) {
    fw::ShowMessageById(nullptr, textId, MB_ICONINFORMATION);
}

} // namespace

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR, int showCommand) {
    fw::TakeLibrariesFromSystemFolder();
    fw::GuardAgainstAbnormalEnd();
    using namespace korvane::app;
    switch (CheckStart({.underWow64 = RunsUnderWow64(), .screenWidthPx = ::GetSystemMetrics(SM_CXSCREEN)})) {
    case StartRefusal::kWrongEdition:
        ShowRefusal(IDS_NEEDS_64BIT_EDITION);
        return kExitNormal;
    case StartRefusal::kScreenTooNarrow:
        ShowRefusal(IDS_SCREEN_TOO_NARROW);
        return kExitNormal;
    case StartRefusal::kNone:
        break;
    }
    return RunApplication(showCommand);
}
