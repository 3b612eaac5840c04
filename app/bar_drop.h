#pragma once

#include <windows.h>

#include <functional>
#include <string>

#include "app/bar_controls.h"
#include "app/bar_keyboard.h"
#include "app/logic/bar_drop.h"
#include "framework/drop_target.h"

namespace korvane::app {

// What is dropped on the bar: text goes into a box, files become paths in the command input box or are opened with the
// program of a launch button.
class BarDrop final : private fw::DropHandler {
public:
    // Starts the item behind a launch button's command with more arguments.
    using StartItem = std::function<void(UINT command, const std::wstring& arguments)>;

    // Controls and keyboard outlive it.
    BarDrop(BarControls& controls, BarKeyboard& keyboard, StartItem start)
        : controls_{controls}, keyboard_{keyboard}, start_{std::move(start)} {}

    // `draggedOver` is told of everything that is dragged over the bar, wherever it may be dropped.
    void Start(HWND bar, std::function<void()> draggedOver);
    void Stop() { target_.Stop(); }

    // Something is being dragged over the bar.
    [[nodiscard]] bool DraggedOver() const;
    // What OLE calls; null before the start.
    [[nodiscard]] IDropTarget* Interface() const { return target_.Interface(); }

private:
    bool OnDragOver(const fw::DragData& data, POINT at) override;
    void OnDragLeave() override { over_ = false; }
    void OnDrop(const fw::DragData& data, POINT at) override;

    [[nodiscard]] HWND ControlAt(POINT at) const;
    [[nodiscard]] DropPlace PlaceOf(HWND control) const;
    [[nodiscard]] DropAction ActionAt(HWND control, const fw::DragData& data) const;
    void InsertText(search::Box box, const std::wstring& text, POINT at);
    void EnterPaths(const std::wstring& paths);

    BarControls& controls_;
    BarKeyboard& keyboard_;
    StartItem start_;
    std::function<void()> draggedOver_;
    HWND bar_ = nullptr;
    bool over_ = false;
    fw::DropTarget target_;
};

} // namespace korvane::app
