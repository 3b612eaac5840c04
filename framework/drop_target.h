#pragma once

#include <windows.h>

#include <ole2.h>

#include <string>
#include <vector>

#include "framework/unique_interface.h"

namespace fw {

// What is being dragged, as far as it is asked for. Borrowed from the drag.
class DragData {
public:
    explicit DragData(IDataObject& data) : data_{data} {}

    [[nodiscard]] bool HasText() const;
    [[nodiscard]] bool HasFiles() const;
    // Empty when the source does not give it after all.
    [[nodiscard]] std::wstring Text() const;
    // Full paths.
    [[nodiscard]] std::vector<std::wstring> Files() const;

private:
    IDataObject& data_;
};

// What becomes of a drag over a window. Points are of the screen.
class DropHandler {
public:
    // Whether it may be dropped here.
    virtual bool OnDragOver(const DragData& data, POINT at) = 0;
    virtual void OnDragLeave() = 0;
    virtual void OnDrop(const DragData& data, POINT at) = 0;

protected:
    ~DropHandler() = default;
};

// Makes a window and its children a target of drags for as long as it lives. The handler outlives it. Dragging needs
// OLE on the thread, which is started with the first target.
class DropTarget {
public:
    DropTarget() = default;
    DropTarget(const DropTarget&) = delete;
    DropTarget& operator=(const DropTarget&) = delete;
    ~DropTarget() { Stop(); }

    // False when Windows refuses; nothing can be dropped then.
    bool Start(HWND window, DropHandler& handler);
    void Stop();

    // What OLE calls. Null while it is not started.
    [[nodiscard]] IDropTarget* Interface() const { return target_.get(); }

private:
    HWND window_ = nullptr;
    UniqueInterface<IDropTarget> target_;
};

} // namespace fw
