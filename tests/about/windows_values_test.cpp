#include "about/windows_values.h"

#include <gtest/gtest.h>

#include <windows.h>

#include "base/format_text.h"
#include "framework/system_library.h"
#include "tests/support/fake_store.h"
#include "tests/support/registry_test.h"

namespace korvane::about {
namespace {

using korvane::test::FakeStore;

constexpr const wchar_t* kSection = L"CurrentVersion";

FakeStore WindowsThatSays(std::wstring product, std::wstring owner, std::wstring organization) {
    FakeStore store;
    store.sections[kSection] = {{L"ProductName", std::move(product)},
                                {L"RegisteredOwner", std::move(owner)},
                                {L"RegisteredOrganization", std::move(organization)}};
    return store;
}

TEST(WindowsIdentity, TakesItsNameFromTheRegistry) {
    EXPECT_EQ(ReadWindowsIdentity(WindowsThatSays(L"Windows 7 Ultimate", L"", L"")).productName, L"Windows 7 Ultimate");
}

TEST(WindowsIdentity, HasNoNameWhenTheRegistryHasNone) {
    EXPECT_EQ(ReadWindowsIdentity(FakeStore{}).productName, L"");
}

TEST(WindowsIdentity, TakesItsNameFromTheRealRegistryToo) {
    EXPECT_NE(ReadWindowsIdentity().productName, L"");
}

// tests/framework/on_every_windows.sh runs this as each Windows that a rule tells apart; without the program's manifest
// all after 8 would have 8's numbers.
TEST(WindowsIdentity, HasTheNumbersThatTheKernelNames) {
    using RtlGetVersion = LONG WINAPI(OSVERSIONINFOW*);
    auto* const kernelVersion = fw::FunctionOf<RtlGetVersion>(::GetModuleHandleW(L"ntdll.dll"), "RtlGetVersion");
    ASSERT_NE(kernelVersion, nullptr);
    OSVERSIONINFOW kernel{};
    kernel.dwOSVersionInfoSize = sizeof kernel;
    kernelVersion(&kernel);

    const WindowsIdentity windows = ReadWindowsIdentity(FakeStore{});

    wchar_t expected[16]{};
    if (::GetEnvironmentVariableW(L"KORVANE_EXPECTED_WINDOWS", expected, 16) != 0) {
        EXPECT_EQ(base::FormatText(L"%d.%d", windows.major, windows.minor), expected);
    }
    EXPECT_EQ(windows,
              (WindowsIdentity{L"", static_cast<int>(kernel.dwMajorVersion), static_cast<int>(kernel.dwMinorVersion),
                               static_cast<int>(kernel.dwBuildNumber)}));
}

TEST(Licensee, IsWhoTheRegistryNames) {
    const Licensee licensee = ReadLicensee(WindowsThatSays(L"", L"山田 太郎", L"株式会社 山田"));

    EXPECT_EQ(licensee.owner, L"山田 太郎");
    EXPECT_EQ(licensee.organization, L"株式会社 山田");
}

TEST(Licensee, IsNobodyWhenTheRegistryNamesNone) {
    const Licensee licensee = ReadLicensee(FakeStore{});

    EXPECT_EQ(licensee.owner, L"");
    EXPECT_EQ(licensee.organization, L"");
}

class LicenseeInTheRegistry : public test::RegistryTest {};

TEST_F(LicenseeInTheRegistry, IsNobodyWhenTheValuesHaveAnotherType) {
    const settings::RegistryStore store{key.Root(), key.Path()};
    const int number = 5;
    key.SetRaw(kSection, L"RegisteredOwner", REG_DWORD, std::as_bytes(std::span{&number, 1}));
    key.SetRaw(kSection, L"RegisteredOrganization", REG_BINARY, std::as_bytes(std::span{&number, 1}));

    const Licensee licensee = ReadLicensee(store);

    EXPECT_EQ(licensee.owner, L"");
    EXPECT_EQ(licensee.organization, L"");
}

} // namespace
} // namespace korvane::about
