#include "search/logic/command_selection.h"

#include "res/ids.h"

namespace korvane::search {
namespace {

constexpr unsigned kReturnKey = 13;

static_assert(ID_COMMAND_BOX + kRunButtonOffset == ID_RUN_TYPED && ID_SEARCH_BOX + kRunButtonOffset == ID_RUN_SEARCH);

} // namespace

KeyDecision CommandForKey(const BoxKey& key) {
    const bool inBox = key.controlId == ID_COMMAND_BOX || key.controlId == ID_SEARCH_BOX;
    if (key.virtualKey != kReturnKey || !inBox || !key.enterEnabled || key.composing) return {};
    if (key.boxEmpty) return {KeyAnswer::kIgnore, 0};
    return {KeyAnswer::kRun, key.controlId + kRunButtonOffset};
}

} // namespace korvane::search
