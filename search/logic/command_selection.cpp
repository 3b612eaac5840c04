#include "search/logic/command_selection.h"

#include "res/ids.h"

namespace korvane::search {
namespace {

// Windows' virtual-key codes.
constexpr unsigned kReturnKey = 0x0D;
constexpr unsigned kEscapeKey = 0x1B;
constexpr unsigned kUpKey = 0x26;
constexpr unsigned kDownKey = 0x28;
constexpr unsigned kF4Key = 0x73;

static_assert(ID_COMMAND_BOX + kRunButtonOffset == ID_RUN_TYPED && ID_SEARCH_BOX + kRunButtonOffset == ID_RUN_SEARCH);
static_assert(ID_COMMAND_BOX + kOpenHistoryOffset == ID_OPEN_COMMAND_HISTORY &&
              ID_SEARCH_BOX + kOpenHistoryOffset == ID_OPEN_SEARCH_HISTORY);

bool OpensHistory(const BoxKey& key) {
    if (key.control || key.shift) return false;
    const bool arrow = key.virtualKey == kUpKey || key.virtualKey == kDownKey;
    // Alt+F4 closes the bar.
    return arrow || (key.virtualKey == kF4Key && !key.alt);
}

KeyAnswer EscapeIn(const BoxKey& key) {
    return key.boxEmpty || key.untouched ? KeyAnswer::kLeave : KeyAnswer::kEmpty;
}

} // namespace

KeyDecision CommandForKey(const BoxKey& key) {
    const bool inBox = key.controlId == ID_COMMAND_BOX || key.controlId == ID_SEARCH_BOX;
    if (!inBox || key.composing) return {};
    const auto once = [&](KeyDecision decision) {
        return key.repeated ? KeyDecision{KeyAnswer::kIgnore, 0} : decision;
    };
    if (key.virtualKey == kReturnKey && key.enterEnabled && !key.alt)
        return once(key.boxEmpty ? KeyDecision{KeyAnswer::kIgnore, 0}
                                 : KeyDecision{KeyAnswer::kRun, key.controlId + kRunButtonOffset});
    if (OpensHistory(key)) return once({KeyAnswer::kRun, key.controlId + kOpenHistoryOffset});
    if (key.virtualKey == kEscapeKey && !key.control && !key.shift && !key.alt) return once({EscapeIn(key), 0});
    return {};
}

} // namespace korvane::search
