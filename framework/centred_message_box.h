#pragma once

#include <windows.h>

#include <string>

// Message boxes in the middle of their owner. Every report to the user goes through them.
namespace fw {

enum class Centring { kOnOwner, kNone };

// Shows a message box and gives the button that ended it (IDYES and so on). When an owner is given and it is to be
// centred but is no window any more, a fixed warning is shown in its place and 0 returned.
int ShowMessage(HWND owner, const std::wstring& text, const std::wstring& caption, UINT flags,
                Centring centring = Centring::kOnOwner);

// The same with texts of the string table; the caption is the product's name unless another is given.
int ShowMessageById(HWND owner, UINT textId, UINT flags, Centring centring = Centring::kOnOwner);
int ShowMessageById(HWND owner, UINT textId, UINT captionId, UINT flags, Centring centring = Centring::kOnOwner);

// The same with the product's name as caption.
int ShowProductMessage(HWND owner, const std::wstring& text, UINT flags, Centring centring = Centring::kOnOwner);

// The system's text for an error code; 0 means the calling thread's last error. A null caption gives the platform's
// own.
int ShowSystemError(HWND owner, DWORD code, const wchar_t* caption, Centring centring = Centring::kOnOwner);
int ShowProductSystemError(HWND owner, DWORD code, Centring centring = Centring::kOnOwner);

// The system's text for an error code, in the user's language; empty when there is none.
[[nodiscard]] std::wstring SystemErrorText(DWORD code);

} // namespace fw
