#pragma once

#include <windows.h>

#include <string>

#include "framework/handle.h"
#include "framework/message_map.h"

namespace korvane::controls {

// The tooltip control of one child window. It is a window of its own, owned by the child's parent.
class ToolTip {
public:
    ToolTip() = default;
    ToolTip(const ToolTip&) = delete;
    ToolTip& operator=(const ToolTip&) = delete;
    ~ToolTip() { Destroy(); }

    // False when Windows has no tooltip to give; the child then has none.
    bool Create(HWND child, const std::wstring& text);
    void SetText(const std::wstring& text);
    void Destroy();
    [[nodiscard]] HWND Handle() const { return window_.Get(); }

    // To be told when the child was enabled, disabled or moved: a disabled window hears nothing of the mouse, and its
    // place in the parent has to stand for it.
    void OnChildChanged();

private:
    void CoverPlace();
    void UncoverPlace();
    [[nodiscard]] bool Covers() const { return covered_ != nullptr; }
    static LRESULT CALLBACK RelayMouse(HWND parent, UINT id, WPARAM wparam, LPARAM lparam, UINT_PTR tip,
                                       DWORD_PTR) noexcept;

    fw::UniqueHandle<HWND, &::DestroyWindow> window_;
    HWND child_ = nullptr;
    HWND covered_ = nullptr; // the parent, while it hears the mouse for a disabled child
    std::wstring text_;
};

// The private message with which a window asks itself for its tooltip.
inline constexpr UINT kMakeTipMessage = WM_APP + 101;

// Mix-in of a child window T that is named by a tooltip: the text set, or else the window text at its creation.
template <class T>
class CToolTipHelper {
public:
    static constexpr auto Messages() {
        return fw::MessageMap{
            fw::On<kMakeTipMessage>(&CToolTipHelper::OnMakeTip),
            fw::On<WM_ENABLE>(&CToolTipHelper::OnChanged),
            fw::On<WM_WINDOWPOSCHANGED>(&CToolTipHelper::OnChanged),
            fw::On<WM_DESTROY>(&CToolTipHelper::OnDestroy),
        };
    }

    // May be called before the window is created.
    void SetTip(const std::wstring& text) {
        tipText_ = text;
        tip_.SetText(tipText_);
    }
    [[nodiscard]] const std::wstring& TipText() const { return tipText_; }
    [[nodiscard]] HWND TipWindow() const { return tip_.Handle(); }

protected:
    // Taken away for as long as something else is to be seen in its place. The window goes rather than being turned
    // off: a tooltip whose delay has begun would come all the same.
    void AllowTip(bool allowed) {
        allowed_ = allowed;
        if (!allowed) {
            tip_.Destroy();
        } else {
            MakeTip();
        }
    }

    // Asks for the tooltip, which comes with the first message that the loop takes. It costs as much time as the window
    // itself, and nobody can point at a bar that is not drawn yet.
    void CreateTip(const wchar_t* windowText) {
        if (tipText_.empty() && windowText) tipText_ = windowText;
        ::PostMessageW(static_cast<T&>(*this).Handle(), kMakeTipMessage, 0, 0);
    }

private:
    void MakeTip() {
        const HWND window = static_cast<T&>(*this).Handle();
        if (window && !tip_.Handle()) tip_.Create(window, tipText_);
    }

    void OnMakeTip(const fw::Message&) {
        if (allowed_) MakeTip();
    }

    fw::Reply OnChanged(const fw::Message&) {
        tip_.OnChildChanged();
        return fw::kPassOn;
    }

    fw::Reply OnDestroy(const fw::Message&) {
        tip_.Destroy();
        return fw::kPassOn;
    }

    std::wstring tipText_;
    ToolTip tip_;
    bool allowed_ = true;
};

} // namespace korvane::controls
