#include "app/logic/task_menu.h"

#include <algorithm>

#include "base/menu_groups.h"

namespace korvane::app {
namespace {

constexpr int kShowDescription = 1;

// In a menu an ampersand underlines the next character and a tab starts the column of the shortcuts.
std::wstring MenuTextOf(std::wstring_view name) {
    constexpr std::wstring_view kBreaks = L"\t\r\n\b\v\f";
    std::wstring text;
    for (const wchar_t character : name) {
        if (character == L'&') text += L'&';
        text += kBreaks.find(character) == std::wstring_view::npos ? character : L' ';
    }
    return text;
}

} // namespace

std::vector<TaskMenuRow> PlanTaskMenu(std::span<const TaskNames> tasks, int nameChoice, std::wstring_view noTaskText) {
    if (tasks.empty()) return {{.command = ID_NO_TASK, .text = std::wstring{noTaskText}, .enabled = false}};

    std::vector<TaskMenuRow> rows;
    unsigned command = ID_TASK_FIRST;
    for (const TaskNames& task : tasks.first(std::min(tasks.size(), kMostTasks)))
        rows.push_back({command++, MenuTextOf(nameChoice == kShowDescription ? task.description : task.title)});
    for (const int at : base::SeparatorPositions(static_cast<int>(rows.size())))
        rows.insert(rows.begin() + at, TaskMenuRow{});
    return rows;
}

std::optional<std::size_t> TaskIndexOf(unsigned command) {
    if (command < ID_TASK_FIRST || command > ID_TASK_LAST) return std::nullopt;
    return command - ID_TASK_FIRST;
}

} // namespace korvane::app
