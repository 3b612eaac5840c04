#include "app/task_list.h"

#include <shellapi.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <map>

#include "app/foreground.h"
#include "app/logic/whole_characters.h"
#include "framework/menu_rows.h"
#include "framework/string_table.h"
#include "framework/windows_version.h"
#include "res/ids.h"

namespace korvane::app {
namespace {

using std::chrono::milliseconds;
using std::chrono::steady_clock;

// The menu waits so long for one window's icon, and so long for those of all windows together.
constexpr milliseconds kPatienceWithOne{100};
constexpr milliseconds kPatienceWithAll{500};

std::wstring TitleOf(HWND window) {
    // GetWindowText would ask a window of this process, and wait for a thread that does not answer; this one only looks
    // up what the system remembers, as both do for other processes.
    std::array<wchar_t, kLongestTaskTitle + 2> text{};
    const int length = ::InternalGetWindowText(window, text.data(), static_cast<int>(text.size()));
    std::wstring title{text.data(), static_cast<std::size_t>(std::max(length, 0))};
    CutToLength(title, kLongestTaskTitle);
    return title;
}

// Makes the entries of one refresh. What several windows have in common is found out once.
class TaskReader {
public:
    explicit TaskReader(const TaskSources& sources) : sources_{sources} {}

    // False for a window that is gone.
    [[nodiscard]] bool Read(HWND window, std::wstring title, Task& task) {
        if (!::IsWindow(window)) return false;
        task.window = window;
        task.program = sources_.programOf(window);
        task.names = {std::move(title), DescriptionOf(task.program)};
        task.icon = IconOf(window, task.program);
        return true;
    }

private:
    const std::wstring& DescriptionOf(const std::wstring& program) {
        const auto [known, added] = descriptions_.try_emplace(program);
        if (!added) return known->second;
        if (!program.empty()) known->second = sources_.descriptionOf(program);
        if (known->second.empty()) known->second = L"Unknown Application";
        return known->second;
    }

    fw::UniqueIcon IconOf(HWND window, const std::wstring& program) {
        // The window keeps its own icons, and may destroy them at any time.
        if (const HICON own = AskForIcon(window))
            if (fw::UniqueIcon icon{::CopyIcon(own)}) return icon;
        if (const auto ofClass = reinterpret_cast<HICON>(::GetClassLongPtrW(window, GCLP_HICONSM)))
            if (fw::UniqueIcon icon{::CopyIcon(ofClass)}) return icon;
        if (!program.empty())
            if (fw::UniqueIcon icon = ShellIconOf(program)) return icon;
        return sources_.libraryIcon(L"imageres.dll", DefaultTaskIcon(fw::IsWindowsAtLeast(fw::kWindows7)));
    }

    // Borrowed; null when the window has none or does not say so in time.
    HICON AskForIcon(HWND window) {
        if (patience_ <= milliseconds::zero() || ::IsHungAppWindow(window)) return nullptr;
        const auto wait = std::min(patience_, kPatienceWithOne);
        const auto start = steady_clock::now();
        DWORD_PTR answer = 0;
        if (!::SendMessageTimeoutW(window, WM_GETICON, ICON_SMALL, 0, SMTO_ABORTIFHUNG, static_cast<UINT>(wait.count()),
                                   &answer))
            answer = 0;
        patience_ -= std::chrono::duration_cast<milliseconds>(steady_clock::now() - start);
        return reinterpret_cast<HICON>(answer);
    }

    static fw::UniqueIcon ShellIconOf(const std::wstring& program) {
        SHFILEINFOW info{};
        if (!::SHGetFileInfoW(program.c_str(), 0, &info, sizeof info, SHGFI_ICON | SHGFI_SMALLICON)) return {};
        return fw::UniqueIcon{info.hIcon};
    }

    const TaskSources& sources_;
    std::map<std::wstring, std::wstring> descriptions_;
    milliseconds patience_ = kPatienceWithAll;
};

BOOL CALLBACK Collect(HWND window, LPARAM windows) noexcept {
    reinterpret_cast<std::vector<HWND>*>(windows)->push_back(window);
    return TRUE;
}

bool IsTaskWindow(HWND window, HWND bar, const std::wstring& title, bool cloaked) {
    const auto style = static_cast<DWORD>(::GetWindowLongPtrW(window, GWL_STYLE));
    const auto extendedStyle = static_cast<DWORD>(::GetWindowLongPtrW(window, GWL_EXSTYLE));
    return IsTask({.own = window == bar,
                   .visible = (style & WS_VISIBLE) != 0,
                   .toolWindow = (extendedStyle & WS_EX_TOOLWINDOW) != 0,
                   .owned = ::GetWindow(window, GW_OWNER) != nullptr,
                   .titled = !title.empty(),
                   .cloaked = cloaked});
}

} // namespace

HWND TopmostTask(HWND bar) {
    for (const HWND window : TopLevelWindows())
        if (!::IsIconic(window) && IsTaskWindow(window, bar, TitleOf(window), fw::IsCloaked(window))) return window;
    return nullptr;
}

std::vector<HWND> TopLevelWindows() {
    std::vector<HWND> windows;
    ::EnumWindows(&Collect, reinterpret_cast<LPARAM>(&windows));
    return windows;
}

std::wstring ProgramOf(HWND window) {
    DWORD id = 0;
    ::GetWindowThreadProcessId(window, &id);
    const fw::UniqueKernelHandle process{id != 0 ? ::OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION, FALSE, id)
                                                 : nullptr};
    if (!process) return {};
    constexpr DWORD kLongestPath = 32767; // that Windows knows
    for (const DWORD room : {DWORD{MAX_PATH}, kLongestPath}) {
        std::wstring path(room, L'\0');
        DWORD length = room; // without the zero afterwards
        if (::QueryFullProcessImageNameW(process.Get(), 0, path.data(), &length)) {
            path.resize(length);
            return path;
        }
    }
    return {};
}

void TaskList::Refresh(HWND bar) {
    std::vector<Task> tasks;
    TaskReader reader{sources_};
    for (const HWND window : sources_.windows()) {
        if (tasks.size() == kMostTasks) break;
        std::wstring title = TitleOf(window);
        const bool isTask = IsTaskWindow(window, bar, title, sources_.isCloaked(window));
        Task task;
        if (isTask && reader.Read(window, std::move(title), task)) tasks.push_back(std::move(task));
    }
    tasks_ = std::move(tasks);
}

std::vector<base::MenuRow> TaskList::MenuRows(int nameChoice) const {
    std::vector<TaskNames> names;
    names.reserve(tasks_.size());
    for (const Task& task : tasks_) names.push_back(task.names);
    return PlanTaskMenu(names, nameChoice, fw::LoadText(IDS_NO_TASK));
}

const Task* TaskList::Find(UINT command) const {
    const auto index = TaskIndexOf(command);
    return index && *index < tasks_.size() ? &tasks_[*index] : nullptr;
}

void TaskList::BuildMenu(HMENU popup, launch::CAppMenuBar& menus, HWND bar, int nameChoice) {
    Refresh(bar);
    fw::FillMenu(popup, MenuRows(nameChoice));
    for (UINT command = ID_TASK_FIRST; command <= ID_TASK_LAST; ++command) {
        const Task* const task = Find(command);
        if (task) {
            menus.AddIcon(command, task->icon.Get());
        } else {
            menus.RemoveImage(command);
        }
    }
}

void TaskList::SwitchTo(UINT command) const {
    const Task* const task = Find(command);
    if (task && ::IsWindow(task->window)) BringToForeground(task->window);
}

} // namespace korvane::app
