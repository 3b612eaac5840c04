#pragma once

namespace korvane::search {

// A box's run button, and so the command that Enter in it gives, is the box's identifier plus this.
inline constexpr int kRunButtonOffset = 4;

// A key pressed in one of the bar's boxes.
struct BoxKey {
    unsigned virtualKey = 0;
    int controlId = 0;
    bool enterEnabled = true; // the setting EnableEnterEvent
    bool composing = false;   // the input method is at work: Enter then ends its composition
    bool boxEmpty = false;
};

enum class KeyAnswer {
    kPassOn, // the key goes its usual way
    kIgnore, // the key is taken and nothing runs
    kRun,    // the key is taken and the command is to be posted
};

struct KeyDecision {
    KeyAnswer answer = KeyAnswer::kPassOn;
    int command = 0; // with kRun only

    friend constexpr bool operator==(const KeyDecision&, const KeyDecision&) = default;
};

// Turns Enter in a box into the command that runs the box. An empty box has nothing to run, as its disabled button
// shows; its Enter is taken all the same, so that nothing beeps.
[[nodiscard]] KeyDecision CommandForKey(const BoxKey& key);

} // namespace korvane::search
