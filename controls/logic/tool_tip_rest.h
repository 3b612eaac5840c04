#pragma once

namespace korvane::controls {

// What happened while tooltips may be seen.
enum class TipEvent {
    kKey,       // one was pressed, or the wheel turned
    kMouseMove, // one arrived; Windows also sends them to a mouse that rests
    kOther,
};

enum class TipAction { kNone, kPutToRest, kWake };

[[nodiscard]] constexpr TipAction ActionOn(TipEvent event, bool resting, bool mouseMoved) {
    switch (event) {
    case TipEvent::kKey:
        // Once more is no harm: a tooltip may have been made since.
        return TipAction::kPutToRest;
    case TipEvent::kMouseMove:
        return resting && mouseMoved ? TipAction::kWake : TipAction::kNone;
    case TipEvent::kOther:
        break;
    }
    return TipAction::kNone;
}

} // namespace korvane::controls
