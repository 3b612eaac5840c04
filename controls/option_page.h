#pragma once

#include <windows.h>

// What the pages of the options and the dialog around them have agreed on.
namespace korvane::controls {

// Asked when the page is about to be left and before all pages are saved. A page whose input is not acceptable tells
// the user why and answers with anything but 0; the dialog then stays where it is.
inline constexpr UINT kValidatePage = WM_APP + 10;

// Keeps what was typed into the boxes. The frame implements it; tests have their own.
class HistoryKeeper {
public:
    [[nodiscard]] virtual bool HistoriesEmpty() const = 0;
    // Both histories, without asking.
    virtual void ClearHistories() = 0;

protected:
    ~HistoryKeeper() = default;
};

} // namespace korvane::controls
