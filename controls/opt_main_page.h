#pragma once

#include "controls/local_clock.h"
#include "controls/option_page.h"
#include "framework/dialog.h"
#include "res/ids.h"
#include "settings/auto_run.h"
#include "settings/logic/profile_store.h"

namespace korvane::controls {

// The options' page for the bar itself.
class COptMainPage final : public fw::Dialog<COptMainPage> {
public:
    static constexpr UINT kTemplate = IDD_OPTIONS_MAIN;

    static constexpr auto Messages() { return fw::MessageMap{}; }

    // All outlive the page.
    COptMainPage(settings::ProfileStore& store, HistoryKeeper& histories,
                 settings::AutoRun autoRun = settings::AutoRun{}, const LocalClock& clock = SystemLocalClock());

    // Writes every setting of the page. False when one of them could not be written.
    bool Save();

private:
    settings::ProfileStore& store_;
    HistoryKeeper& histories_;
    settings::AutoRun autoRun_;
    const LocalClock& clock_;
};

} // namespace korvane::controls
