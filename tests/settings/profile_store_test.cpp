#include "settings/logic/profile_store.h"

#include <gmock/gmock.h>

#include <climits>
#include <memory>

#include "settings/ini_backend.h"
#include "settings/logic/setting_keys.h"
#include "settings/registry_backend.h"
#include "tests/support/registry_test.h"
#include "tests/support/temp_folder.h"

namespace korvane::settings {
namespace {

using test::TempFolder;
using test::TempRegistryKey;

// One store over a back end that is empty at first.
class StoreUnderTest {
public:
    virtual ~StoreUnderTest() = default;
    virtual ProfileStore& Store() = 0;
    // True when the back end holds anything at all, be it an empty key or file.
    [[nodiscard]] virtual bool LeftTraces() const = 0;
};

class InRegistry final : public StoreUnderTest {
public:
    ProfileStore& Store() override { return store_; }
    [[nodiscard]] bool LeftTraces() const override { return key_.Exists(); }

private:
    TempRegistryKey key_;
    RegistryStore store_{key_.Root(), key_.Path()};
};

class InFile final : public StoreUnderTest {
public:
    ProfileStore& Store() override { return store_; }
    [[nodiscard]] bool LeftTraces() const override { return folder_.Has(L"test.dat"); }

private:
    TempFolder folder_;
    IniFileStore store_{folder_.File(L"test.dat")};
};

enum class BackEnd { kRegistry, kIniFile };

class EveryStore : public testing::TestWithParam<BackEnd> {
protected:
    std::unique_ptr<StoreUnderTest> place = GetParam() == BackEnd::kRegistry
                                                ? std::unique_ptr<StoreUnderTest>{std::make_unique<InRegistry>()}
                                                : std::make_unique<InFile>();
    ProfileStore& store = place->Store();
};

INSTANTIATE_TEST_SUITE_P(BackEnds, EveryStore, testing::Values(BackEnd::kRegistry, BackEnd::kIniFile),
                         [](const auto& tested) {
                             return std::string{tested.param == BackEnd::kRegistry ? "Registry" : "IniFile"};
                         });

std::vector<std::byte> Bytes(std::size_t count) {
    std::vector<std::byte> bytes(count);
    for (std::size_t i = 0; i < count; ++i) bytes[i] = static_cast<std::byte>(i * 37 + 0x3C);
    return bytes;
}

TEST_P(EveryStore, GivesEveryFallbackToAFreshUser) {
    for (const IntSetting& row : kEveryInt) EXPECT_EQ(store.Read(row), row.fallback);
    for (const TextSetting& row : kEveryText) EXPECT_EQ(store.Read(row), row.fallback);
    for (const BinarySetting& row : kEveryBinary) EXPECT_FALSE(store.Read(row));
    for (const ColourSetting& row : kEveryColour) EXPECT_EQ(store.Read(row, base::Colour{0x123456}).value, 0x123456U);
    for (const NumberedSetting& row : kEveryNumbered) EXPECT_EQ(store.Read(row, 1), L"");
}

TEST_P(EveryStore, NamesTheValuesOfASection) {
    EXPECT_THAT(store.ValueNames(L"Settings"), testing::IsEmpty());
    store.WriteInt(L"Settings", L"Number", 1);
    store.WriteText(L"Settings", L"Text", L"");
    store.WriteText(L"Settings\\Below", L"Other", L"x");
    std::vector<std::wstring> names;
    for (int i = 1; i <= 300; ++i) {
        names.push_back(std::wstring(40, L'n') + std::to_wstring(i));
        store.WriteInt(L"Many", names.back(), i);
    }

    EXPECT_THAT(store.ValueNames(L"Settings"), testing::UnorderedElementsAre(L"Number", L"Text"));
    EXPECT_THAT(store.ValueNames(L"Many"), testing::UnorderedElementsAreArray(names));
    EXPECT_THAT(store.ValueNames(L""), testing::IsEmpty());
}

TEST_P(EveryStore, CreatesNothingByReadingOrDeleting) {
    EXPECT_EQ(store.ReadInt(L"Settings", L"Missing", 7), 7);
    EXPECT_EQ(store.ReadText(L"Settings", L"Missing", L"x"), L"x");
    EXPECT_THAT(store.ValueNames(L"Settings"), testing::IsEmpty());
    EXPECT_FALSE(store.ReadBinary(L"Settings", L"Missing"));
    EXPECT_TRUE(store.DeleteValue(L"Settings", L"Missing"));
    EXPECT_TRUE(store.DeleteSection(L"Settings"));

    EXPECT_FALSE(place->LeftTraces());
}

TEST_P(EveryStore, ReadsBackEveryRowOfTheTable) {
    int number = 100;
    for (const IntSetting& row : kEveryInt) ASSERT_TRUE(store.Write(row, ++number));
    for (const TextSetting& row : kEveryText) ASSERT_TRUE(store.Write(row, row.section));
    for (const BinarySetting& row : kEveryBinary) ASSERT_TRUE(store.Write(row, Bytes(row.size)));
    ASSERT_TRUE(store.Write(keys::UserBarColor, base::Colour::Rgb(0x16, 0x9F, 0xFE)));
    for (const NumberedSetting& row : kEveryNumbered) ASSERT_TRUE(store.Write(row, 38, row.section));

    number = 100;
    for (const IntSetting& row : kEveryInt) EXPECT_EQ(store.Read(row), ++number);
    for (const TextSetting& row : kEveryText) EXPECT_EQ(store.Read(row), row.section);
    for (const BinarySetting& row : kEveryBinary) EXPECT_EQ(store.Read(row), Bytes(row.size));
    EXPECT_EQ(store.Read(keys::UserBarColor, {}), base::Colour::Rgb(0x16, 0x9F, 0xFE));
    for (const NumberedSetting& row : kEveryNumbered) EXPECT_EQ(store.Read(row, 38), row.section);
}

TEST_P(EveryStore, KeepsIntegersOfTheWholeRange) {
    for (const int value : {0, 1, -1, 5000, INT_MAX, INT_MIN}) {
        ASSERT_TRUE(store.WriteInt(L"Settings", L"Value", value));

        EXPECT_EQ(store.ReadInt(L"Settings", L"Value", 42), value);
    }
}

TEST_P(EveryStore, KeepsAColourWhoseTopByteIsSet) {
    ASSERT_TRUE(store.Write(keys::UserBarColor, base::Colour{0xFF0000FEU}));

    EXPECT_EQ(store.Read(keys::UserBarColor, {}).value, 0xFF0000FEU);
}

TEST_P(EveryStore, TellsAnEmptyTextFromAMissingOne) {
    ASSERT_TRUE(store.WriteText(L"Settings", L"Value", L""));

    EXPECT_EQ(store.ReadText(L"Settings", L"Value", L"fallback"), L"");
}

TEST_P(EveryStore, GivesALongFallbackWhole) {
    const std::wstring fallback = std::wstring(5000, L'f') + L' ';

    EXPECT_EQ(store.ReadText(L"Settings", L"Value", fallback), fallback);
}

TEST_P(EveryStore, FindsNamesInAnyCase) {
    ASSERT_TRUE(store.WriteInt(L"Settings", L"TopMostWindow", 3));

    EXPECT_EQ(store.ReadInt(L"SETTINGS", L"topmostwindow", 0), 3);
}

TEST_P(EveryStore, KeepsSectionsApart) {
    ASSERT_TRUE(store.WriteInt(section::kGeneral, L"SaveWindowPlacement", 1));

    EXPECT_EQ(store.Read(keys::SaveWindowPlacement), 0);
}

TEST_P(EveryStore, KeepsSixteenBytesWhole) {
    const auto bytes = Bytes(16);
    ASSERT_TRUE(store.WriteBinary(L"Settings\\WindowPlacement", L"WindowPosRect", bytes));

    EXPECT_EQ(store.ReadBinary(L"Settings\\WindowPlacement", L"WindowPosRect"), bytes);
}

TEST_P(EveryStore, KeepsEveryByteValue) {
    std::vector<std::byte> bytes;
    for (int i = 0; i < 256; ++i) bytes.push_back(static_cast<std::byte>(i));
    ASSERT_TRUE(store.WriteBinary(L"Settings", L"Value", bytes));

    EXPECT_EQ(store.ReadBinary(L"Settings", L"Value"), bytes);
}

TEST_P(EveryStore, TakesABinaryValueOfAnotherLengthForMissing) {
    for (const std::size_t length : {1U, 15U, 17U, 2000U}) {
        ASSERT_TRUE(store.Write(keys::WindowPosRect, Bytes(length)));

        EXPECT_FALSE(store.Read(keys::WindowPosRect)) << length;
        EXPECT_EQ(store.ReadBinary(section::kPlacement, L"WindowPosRect"), Bytes(length));
    }
}

TEST_P(EveryStore, TakesAnEmptyBinaryValueForMissing) {
    ASSERT_TRUE(store.WriteBinary(L"Settings", L"Value", {}));

    EXPECT_FALSE(store.ReadBinary(L"Settings", L"Value"));
}

TEST_P(EveryStore, DeletesAValueAndLeavesItsNeighbours) {
    ASSERT_TRUE(store.WriteInt(L"Settings", L"One", 1));
    ASSERT_TRUE(store.WriteInt(L"Settings", L"Two", 2));

    EXPECT_TRUE(store.DeleteValue(L"Settings", L"One"));

    EXPECT_EQ(store.ReadInt(L"Settings", L"One", 0), 0);
    EXPECT_EQ(store.ReadInt(L"Settings", L"Two", 0), 2);
    EXPECT_TRUE(store.DeleteValue(L"Settings", L"One"));
}

TEST_P(EveryStore, DeletesASectionAndNeitherItsParentNorItsNeighbour) {
    ASSERT_TRUE(store.WriteInt(section::kGeneral, L"Kept", 1));
    ASSERT_TRUE(store.WriteText(section::kLaunchItems, L"LaunchMenu01", L"a"));
    ASSERT_TRUE(store.WriteText(section::kLaunchItems, L"LaunchMenu02", L"b"));
    ASSERT_TRUE(store.WriteInt(section::kPlacement, L"Kept", 2));

    EXPECT_TRUE(store.DeleteSection(section::kLaunchItems));

    EXPECT_EQ(store.Read(keys::LaunchMenuItem, 1), L"");
    EXPECT_EQ(store.Read(keys::LaunchMenuItem, 2), L"");
    EXPECT_EQ(store.ReadInt(section::kGeneral, L"Kept", 0), 1);
    EXPECT_EQ(store.ReadInt(section::kPlacement, L"Kept", 0), 2);
}

TEST_P(EveryStore, RemovesTheUsersEmptySelectionButKeepsAnEmptyStandardOne) {
    ASSERT_TRUE(store.Write(keys::UserSearchCommand, L"1,2"));
    ASSERT_TRUE(store.Write(keys::UserSearchCommand, L""));
    ASSERT_TRUE(store.Write(keys::DefaultSearchCommand, L""));

    EXPECT_EQ(store.ReadText(section::kGeneral, L"UserSearchCommand", L"(none)"), L"(none)");
    EXPECT_EQ(store.Read(keys::DefaultSearchCommand), L"");
}

TEST_P(EveryStore, EndsATextAtItsFirstZero) {
    ASSERT_TRUE(store.WriteText(L"Settings", L"Value", std::wstring_view{L"seen\0unseen", 11}));

    EXPECT_EQ(store.ReadText(L"Settings", L"Value"), L"seen");
}

TEST_P(EveryStore, RefusesNamesThatWindowsWouldTakeForSomethingElse) {
    using namespace std::string_view_literals;
    ASSERT_TRUE(store.WriteInt(L"Settings", L"Value", 1));

    for (const auto bad : {L""sv, L"Val\0ue"sv}) {
        EXPECT_FALSE(store.WriteInt(L"Settings", bad, 2));
        EXPECT_FALSE(store.WriteText(L"Settings", bad, L"x"));
        EXPECT_FALSE(store.WriteBinary(L"Settings", bad, Bytes(1)));
        EXPECT_FALSE(store.DeleteValue(L"Settings", bad));
        EXPECT_FALSE(store.WriteInt(bad, L"Value", 2));
        EXPECT_FALSE(store.DeleteValue(bad, L"Value"));
        EXPECT_FALSE(store.DeleteSection(bad));
        EXPECT_EQ(store.ReadInt(L"Settings", bad, 9), 9);
        EXPECT_EQ(store.ReadInt(bad, L"Value", 9), 9);
        EXPECT_EQ(store.ReadText(L"Settings", bad, L"f"), L"f");
        EXPECT_EQ(store.ReadText(bad, L"Value", L"f"), L"f");
        EXPECT_FALSE(store.ReadBinary(bad, L"Value"));
    }

    EXPECT_EQ(store.ReadInt(L"Settings", L"Value", 0), 1);
}

TEST_P(EveryStore, CachesNothing) {
    ASSERT_TRUE(store.WriteInt(L"Settings", L"Value", 1));
    EXPECT_EQ(store.ReadInt(L"Settings", L"Value", 0), 1);

    ASSERT_TRUE(store.WriteInt(L"Settings", L"Value", 2));

    EXPECT_EQ(store.ReadInt(L"Settings", L"Value", 0), 2);
}

} // namespace
} // namespace korvane::settings
