#include "app/screen_saver.h"

#include "settings/registry_backend.h"

namespace korvane::app {

bool HasScreenSaver(HKEY root, std::wstring_view baseKey) {
    return !settings::RegistryStore{root, baseKey}.ReadText(L"Desktop", L"SCRNSAVE.EXE").empty();
}

void StartScreenSaver(HWND desktop) {
    ::SendMessageW(desktop, WM_SYSCOMMAND, SC_SCREENSAVE, 0);
}

} // namespace korvane::app
