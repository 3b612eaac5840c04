#pragma once

#include <windows.h>

#include <functional>
#include <span>
#include <string>
#include <vector>

#include "app/logic/task_menu.h"
#include "framework/handle.h"
#include "framework/icons.h"
#include "framework/late_bound.h"
#include "framework/version_information.h"
#include "launch/app_menu_bar.h"

namespace korvane::app {

// All windows of the desktop, the topmost first.
[[nodiscard]] std::vector<HWND> TopLevelWindows();

// The topmost window that the user could switch to and that is not minimised; null when there is none.
[[nodiscard]] HWND TopmostTask(HWND bar);

// The full path of a window's program; empty when the system does not tell.
[[nodiscard]] std::wstring ProgramOf(HWND window);

// Where the task list gets what it cannot see for itself. Tests have their own.
struct TaskSources {
    std::function<std::vector<HWND>()> windows = &TopLevelWindows;
    std::function<bool(HWND window)> isCloaked = &fw::IsCloaked;
    std::function<std::wstring(HWND window)> programOf = &ProgramOf;
    std::function<std::wstring(const std::wstring& file)> descriptionOf = &fw::FileDescription;
    std::function<fw::UniqueIcon(const std::wstring& file, int index)> libraryIcon = &fw::ExtractSmallIcon;
};

// A window that the user can switch to.
struct Task {
    HWND window = nullptr;
    TaskNames names;
    std::wstring program;
    fw::UniqueIcon icon; // small; empty when nobody had one
};

// What the task menu shows, as it was at the last refresh.
class TaskList {
public:
    explicit TaskList(TaskSources sources = {}) : sources_{std::move(sources)} {}

    // Windows that do not answer take little time, however many there are. The bar itself is no task.
    void Refresh(HWND bar);

    [[nodiscard]] std::span<const Task> Tasks() const { return tasks_; }
    // The rows of the menu; see PlanTaskMenu for the choice.
    [[nodiscard]] std::vector<base::MenuRow> MenuRows(int nameChoice) const;
    // The task behind a command of the menu; null when there is none.
    [[nodiscard]] const Task* Find(UINT command) const;
    // Lists the tasks as they are now and fills a pop-up with them and their icons.
    void BuildMenu(HMENU popup, launch::CAppMenuBar& menus, HWND bar, int nameChoice);
    // Brings the command's window to the foreground. A window that is gone does nothing.
    void SwitchTo(UINT command) const;

private:
    TaskSources sources_;
    std::vector<Task> tasks_;
};

} // namespace korvane::app
