#include "controls/opt_main_page.h"

#include <utility>

namespace korvane::controls {

COptMainPage::COptMainPage(settings::ProfileStore& store, HistoryKeeper& histories, settings::AutoRun autoRun,
                           const LocalClock& clock)
    : store_{store}, histories_{histories}, autoRun_{std::move(autoRun)}, clock_{clock} {}

bool COptMainPage::Save() {
    return true;
}

} // namespace korvane::controls
