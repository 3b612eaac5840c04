#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "res/ids.h"

namespace korvane::app {

// What a top-level window says about itself.
struct WindowFacts {
    bool own = false; // the bar itself
    bool visible = true;
    bool toolWindow = false;
    bool owned = false;
    bool titled = true;
    bool cloaked = false; // shown by its program, but hidden by the system: a suspended app, another virtual desktop
};

[[nodiscard]] constexpr bool IsTask(const WindowFacts& window) {
    return !window.own && window.visible && !window.toolWindow && !window.owned && window.titled && !window.cloaked;
}

// UTF-16 units.
inline constexpr std::size_t kLongestTaskTitle = 260;

// What a task can be called in the menu.
struct TaskNames {
    std::wstring title;
    std::wstring description; // of its program
};

// A row of the task menu; without a command it is a separator.
struct TaskMenuRow {
    unsigned command = 0;
    std::wstring text;
    bool enabled = true;

    [[nodiscard]] bool IsSeparator() const { return command == 0; }
    friend bool operator==(const TaskMenuRow&, const TaskMenuRow&) = default;
};

// There are no commands for more; they are not shown.
inline constexpr std::size_t kMostTasks = ID_TASK_LAST - ID_TASK_FIRST + 1;

// A row for each task in blocks of five, or a greyed one that says that there is none. `nameChoice` is the setting: 1
// shows the program's description and everything else the title.
[[nodiscard]] std::vector<TaskMenuRow> PlanTaskMenu(std::span<const TaskNames> tasks, int nameChoice,
                                                    std::wstring_view noTaskText);

// The number of the picture of a program without one, in the system's library of pictures.
[[nodiscard]] constexpr int DefaultTaskIcon(bool windows7OrLater) {
    return windows7OrLater ? 11 : 10;
}

// The place in the list of the task that a command of the menu stands for.
[[nodiscard]] std::optional<std::size_t> TaskIndexOf(unsigned command);

} // namespace korvane::app
