#include "settings/registry_backend.h"

#include <gmock/gmock.h>

#include <string>

#include "settings/logic/setting_keys.h"
#include "tests/support/registry_test.h"

namespace korvane::settings {
namespace {

constexpr const wchar_t* kName = L"Value";

std::span<const std::byte> AsBytes(std::wstring_view text) {
    return std::as_bytes(std::span{text.data(), text.size()});
}

class RegistryStoreTest : public test::RegistryTest {
protected:
    // What the registry holds, whoever wrote it.
    struct Raw {
        DWORD type = REG_NONE;
        std::vector<BYTE> data;
        friend bool operator==(const Raw&, const Raw&) = default;
    };
    [[nodiscard]] Raw ReadRaw(const std::wstring& subkey, const wchar_t* name) const {
        Raw raw;
        raw.data.resize(4096);
        auto size = static_cast<DWORD>(raw.data.size());
        HKEY opened = nullptr;
        EXPECT_EQ(::RegOpenKeyExW(key.Root(), (key.Path() + L'\\' + subkey).c_str(), 0, KEY_READ, &opened),
                  ERROR_SUCCESS);
        const fw::UniqueKey owner{opened};
        EXPECT_EQ(::RegQueryValueExW(opened, name, nullptr, &raw.type, raw.data.data(), &size), ERROR_SUCCESS);
        raw.data.resize(size);
        return raw;
    }
    void SetText(DWORD type, std::wstring_view text) { key.SetRaw(L"Settings", kName, type, AsBytes(text)); }
    void SetBytes(DWORD type, std::vector<BYTE> bytes) {
        key.SetRaw(L"Settings", kName, type, std::as_bytes(std::span{bytes}));
    }
    [[nodiscard]] std::wstring Text() const { return store.ReadText(L"Settings", kName, L"fallback"); }
    [[nodiscard]] int Number() const { return store.ReadInt(L"Settings", kName, -7); }
    [[nodiscard]] auto Binary() const { return store.ReadBinary(L"Settings", kName); }

    RegistryStore store{key.Root(), key.Path()};
};

TEST_F(RegistryStoreTest, StoresAnIntegerAsADword) {
    ASSERT_TRUE(store.WriteInt(L"Settings", kName, -2));

    EXPECT_EQ(ReadRaw(L"Settings", kName), (Raw{REG_DWORD, {0xFE, 0xFF, 0xFF, 0xFF}}));
}

TEST_F(RegistryStoreTest, StoresATextWithItsTerminatingZero) {
    ASSERT_TRUE(store.WriteText(L"Settings", kName, L"東"));

    EXPECT_EQ(ReadRaw(L"Settings", kName), (Raw{REG_SZ, {0x71, 0x67, 0, 0}}));
}

TEST_F(RegistryStoreTest, StoresSixteenBytesAsTheyAre) {
    std::vector<BYTE> bytes;
    for (BYTE i = 0; i < 16; ++i) bytes.push_back(static_cast<BYTE>(i * 16));
    ASSERT_TRUE(store.Write(keys::WindowPosRect, std::as_bytes(std::span{bytes})));

    EXPECT_EQ(ReadRaw(L"Settings\\WindowPlacement", L"WindowPosRect"), (Raw{REG_BINARY, bytes}));
}

TEST_F(RegistryStoreTest, MakesASubkeyTwoLevelsDeepOfASectionWithABackslash) {
    ASSERT_TRUE(store.Write(keys::SaveWindowPlacement, 1));

    EXPECT_TRUE(key.Exists(L"Settings"));
    EXPECT_TRUE(key.Exists(L"Settings\\WindowPlacement"));
    EXPECT_EQ(store.Read(keys::SaveWindowPlacement), 1);
}

TEST_F(RegistryStoreTest, DeletesASectionsSubkeyOnly) {
    ASSERT_TRUE(store.Write(keys::LaunchMenuItem, 1, L"a"));

    EXPECT_TRUE(store.DeleteSection(section::kLaunchItems));

    EXPECT_FALSE(key.Exists(L"Settings\\LaunchMenuItem"));
    EXPECT_TRUE(key.Exists(L"Settings"));
}

TEST_F(RegistryStoreTest, WillNotDeleteASectionThatHasOthersBelowIt) {
    ASSERT_TRUE(store.Write(keys::ConfirmExitApp, 1));
    ASSERT_TRUE(store.Write(keys::SaveWindowPlacement, 1));

    EXPECT_FALSE(store.DeleteSection(section::kGeneral));

    EXPECT_EQ(store.Read(keys::ConfirmExitApp), 1);
    EXPECT_EQ(store.Read(keys::SaveWindowPlacement), 1);
}

TEST_F(RegistryStoreTest, WillNotDeleteTheKeyAboveASectionThatEndsInABackslash) {
    ASSERT_TRUE(store.Write(keys::ConfirmExitApp, 1));

    EXPECT_FALSE(store.DeleteSection(L"Settings\\"));
    EXPECT_FALSE(store.DeleteSection(L"\\"));

    EXPECT_EQ(store.Read(keys::ConfirmExitApp), 1);
}

TEST_F(RegistryStoreTest, DeletesASectionThatStandsDirectlyBelowTheRoot) {
    const std::wstring path = key.Path() + L"\\Alone";
    RegistryStore withoutBaseKey{key.Root(), L""};
    ASSERT_TRUE(withoutBaseKey.WriteInt(path, kName, 5));
    EXPECT_EQ(withoutBaseKey.ReadInt(path, kName, 0), 5);

    EXPECT_TRUE(withoutBaseKey.DeleteSection(path));

    EXPECT_FALSE(key.Exists(L"Alone"));
}

TEST_F(RegistryStoreTest, KeepsALongJapaneseTextWhole) {
    std::wstring text;
    while (text.size() < 100000) text += L"検索";
    ASSERT_TRUE(store.WriteText(L"Settings", kName, text));

    EXPECT_EQ(Text(), text);
}

TEST_F(RegistryStoreTest, ReadsATextThatLacksItsTerminatingZero) {
    SetText(REG_SZ, {L"abc", 3});

    EXPECT_EQ(Text(), L"abc");
}

TEST_F(RegistryStoreTest, CutsATextAtItsFirstZero) {
    SetText(REG_SZ, {L"abc\0def\0", 8});

    EXPECT_EQ(Text(), L"abc");
}

TEST_F(RegistryStoreTest, DropsHalfACharacterAtTheEndOfAText) {
    SetBytes(REG_SZ, {'a', 0, 'b', 0, 'c'});

    EXPECT_EQ(Text(), L"ab");
}

TEST_F(RegistryStoreTest, ReadsATextOfNoBytesAsEmpty) {
    SetBytes(REG_SZ, {});

    EXPECT_EQ(Text(), L"");
}

TEST_F(RegistryStoreTest, ReadsAnExpandableTextUnexpanded) {
    SetText(REG_EXPAND_SZ, {L"%windir%\\a", 11});

    EXPECT_EQ(Text(), L"%windir%\\a");
}

TEST_F(RegistryStoreTest, ExpandsAnExpandableTextWhenAskedTo) {
    ::SetEnvironmentVariableW(L"KorvaneTestFolder", std::wstring(2000, L'f').c_str());
    const RegistryStore expanding{key.Root(), key.Path(), {.expandTexts = true}};

    SetText(REG_EXPAND_SZ, {L"C:\\%KorvaneTestFolder%\\a", 25});
    EXPECT_EQ(expanding.ReadText(L"Settings", kName), L"C:\\" + std::wstring(2000, L'f') + L"\\a");

    SetText(REG_EXPAND_SZ, {L"%KorvaneTestNothing%\\100%", 27});
    EXPECT_EQ(expanding.ReadText(L"Settings", kName), L"%KorvaneTestNothing%\\100%");

    SetText(REG_EXPAND_SZ, {L"", 1});
    EXPECT_EQ(expanding.ReadText(L"Settings", kName, L"fallback"), L"");
    ::SetEnvironmentVariableW(L"KorvaneTestFolder", nullptr);
}

TEST_F(RegistryStoreTest, ExpandsNoPlainText) {
    const RegistryStore expanding{key.Root(), key.Path(), {.expandTexts = true}};
    SetText(REG_SZ, {L"%windir%\\a", 11});

    EXPECT_EQ(expanding.ReadText(L"Settings", kName), L"%windir%\\a");
}

TEST_F(RegistryStoreTest, ReadsAndWritesThroughTheViewOf32BitPrograms) {
    // The current user's values look the same in every view.
    RegistryStore other{key.Root(), key.Path(), {.view = RegistryView::k32Bit}};

    EXPECT_TRUE(other.WriteText(L"Settings", kName, L"abc"));
    EXPECT_EQ(other.ReadText(L"Settings", kName), L"abc");
    EXPECT_EQ(Text(), L"abc");
    EXPECT_TRUE(other.DeleteSection(L"Settings"));
    EXPECT_EQ(Text(), L"fallback");
}

TEST_F(RegistryStoreTest, TakesATextOfAnotherTypeForMissing) {
    SetText(REG_BINARY, {L"abc", 4});
    EXPECT_EQ(Text(), L"fallback");

    SetBytes(REG_DWORD, {1, 0, 0, 0});
    EXPECT_EQ(Text(), L"fallback");
}

TEST_F(RegistryStoreTest, TakesAnIntegerOfAnotherTypeForMissing) {
    SetText(REG_SZ, {L"12", 3});
    EXPECT_EQ(Number(), -7);

    SetText(REG_SZ, {L"1", 2});
    EXPECT_EQ(Number(), -7);

    SetBytes(REG_BINARY, {1, 0, 0, 0});
    EXPECT_EQ(Number(), -7);
}

TEST_F(RegistryStoreTest, TakesAnIntegerOfAnotherLengthForMissing) {
    SetBytes(REG_DWORD, {1, 0});
    EXPECT_EQ(Number(), -7);

    SetBytes(REG_DWORD, {});
    EXPECT_EQ(Number(), -7);

    SetBytes(REG_DWORD, {1, 0, 0, 0, 0, 0, 0, 0});
    EXPECT_EQ(Number(), -7);

    SetBytes(REG_QWORD, {1, 0, 0, 0, 0, 0, 0, 0});
    EXPECT_EQ(Number(), -7);
}

TEST_F(RegistryStoreTest, TakesABinaryValueOfAnotherTypeForMissing) {
    SetText(REG_SZ, {L"MD", 3});
    EXPECT_FALSE(Binary());

    SetBytes(REG_DWORD, {1, 0, 0, 0});
    EXPECT_FALSE(Binary());
}

TEST_F(RegistryStoreTest, TakesAPlacementOfFifteenBytesForMissing) {
    key.SetRaw(section::kPlacement, L"WindowPosRect", REG_BINARY, std::vector<std::byte>(15));

    EXPECT_FALSE(store.Read(keys::WindowPosRect));
}

TEST_F(RegistryStoreTest, OverwritesAValueOfAnotherType) {
    SetText(REG_SZ, {L"12", 3});

    ASSERT_TRUE(store.WriteInt(L"Settings", kName, 12));

    EXPECT_EQ(Number(), 12);
}

TEST_F(RegistryStoreTest, ReportsAWriteToAKeyThatCannotBe) {
    // A key's name has at most 255 characters.
    const std::wstring tooLong(300, L'k');

    EXPECT_FALSE(store.WriteInt(tooLong, kName, 1));
    EXPECT_EQ(store.ReadInt(tooLong, kName, 4), 4);
}

TEST(RegistryStore, ReadsTheMachinesPartOfTheRegistry) {
    const RegistryStore machine{HKEY_LOCAL_MACHINE, L"SOFTWARE\\Microsoft\\Windows NT"};

    EXPECT_NE(machine.ReadText(L"CurrentVersion", L"ProductName"), L"");
    EXPECT_EQ(machine.ReadText(L"CurrentVersion", L"NoSuchValue", L"none"), L"none");
}

} // namespace
} // namespace korvane::settings
