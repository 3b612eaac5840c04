#pragma once

namespace korvane::search {

// A box's run button, and so the command that Enter in it gives, is the box's identifier plus this.
inline constexpr int kRunButtonOffset = 4;
// The keyboard's command for a box's history is the box's identifier plus this.
inline constexpr int kOpenHistoryOffset = 10;

// A key pressed in one of the bar's boxes.
struct BoxKey {
    unsigned virtualKey = 0;
    int controlId = 0;
    bool enterEnabled = true; // the setting EnableEnterEvent
    bool composing = false;   // the input method is at work: every key is its own then
    bool boxEmpty = false;
    bool untouched = false; // the user was brought here and has not worked with the text yet
    bool repeated = false;  // held down
    bool control = false;
    bool shift = false;
    bool alt = false;
};

enum class KeyAnswer {
    kPassOn, // the key goes its usual way
    kIgnore, // the key is taken and nothing happens
    kRun,    // the key is taken and the command is to be posted
    kEmpty,  // the box is to be emptied
    kLeave,  // the keyboard goes back to where the user came from
};

struct KeyDecision {
    KeyAnswer answer = KeyAnswer::kPassOn;
    int command = 0; // with kRun only

    friend constexpr bool operator==(const KeyDecision&, const KeyDecision&) = default;
};

// What a key means in a box. Enter runs it; an empty box has nothing to run, as its disabled button shows, and its
// Enter is taken all the same, so that nothing beeps. Up, Down and F4 open the history as they open the list of a combo
// box, and so do Alt+Up and Alt+Down. Esc empties the box, and leaves an empty one. None of them acts again while it is
// held.
[[nodiscard]] KeyDecision CommandForKey(const BoxKey& key);

} // namespace korvane::search
