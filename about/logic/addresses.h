#pragma once

// Where the maker is to be found.
namespace korvane::about::address {

inline constexpr const wchar_t* kAuthorSite = L"https://korvane.example/";
inline constexpr const wchar_t* kOnlineDocuments = L"https://korvane.example/docs/";
inline constexpr const wchar_t* kSupportMail = L"support@korvane.example";

} // namespace korvane::about::address
