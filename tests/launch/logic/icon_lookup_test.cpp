#include "launch/logic/icon_lookup.h"

#include <gmock/gmock.h>

#include <map>
#include <string>

using namespace korvane::launch;
using testing::ElementsAre;
using testing::Optional;

namespace launch_test {

// A registry as a table of "root\key|name".
class FakeRegistry final : public RegistryTexts {
public:
    std::map<std::wstring, std::wstring> texts;

    [[nodiscard]] std::wstring Text(Root root, const std::wstring& key, const std::wstring& name) const override {
        const wchar_t* const roots[] = {L"classes\\", L"user\\", L"machine\\"};
        const auto at = texts.find(roots[static_cast<std::size_t>(root)] + key + L"|" + name);
        return at == texts.end() ? std::wstring{} : at->second;
    }
};

} // namespace launch_test

namespace {

const std::wstring kExts = L"user\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\FileExts\\";
const std::wstring kAppPaths = L"\\Software\\Microsoft\\Windows\\CurrentVersion\\App Paths\\";
const IconLocation kLast{L"imageres.dll", 11};

struct IconLookup : ::testing::Test {
    launch_test::FakeRegistry registry;

    [[nodiscard]] std::vector<IconLocation> Icons(const std::wstring& path,
                                                  DroppedKind kind = DroppedKind::kFile) const {
        return IconsFor(path, kind, registry, true);
    }
};

struct DefaultIconCase {
    const wchar_t* text;
    IconLocation expected;
};

TEST(DefaultIcon, IsAFileAndAnIndex) {
    const DefaultIconCase cases[] = {
        {L"C:\\i.dll,3", {L"C:\\i.dll", 3}},
        {L"C:\\i.dll,-5", {L"C:\\i.dll", -5}},
        {L" C:\\i.dll , 7 ", {L"C:\\i.dll", 7}},
        {L"C:\\i.ico", {L"C:\\i.ico", 0}},
        {L"\"C:\\a b\\i.dll\",4", {L"C:\\a b\\i.dll", 4}},
        {L"\"C:\\a,b\\i.dll\"", {L"C:\\a,b\\i.dll", 0}},
        {L"\"C:\\i.dll\" ,-2", {L"C:\\i.dll", -2}},
        {L"C:\\a b\\i.dll,2", {L"C:\\a b\\i.dll", 2}},
        {L"C:\\a,b\\i.dll,2", {L"C:\\a,b\\i.dll", 2}},
        {L"C:\\a,b\\i.ico", {L"C:\\a,b\\i.ico", 0}},
        {L"C:\\i.dll,", {L"C:\\i.dll,", 0}},
        {L"\"C:\\i.dll", {L"C:\\i.dll", 0}},
        {L"\"C:\\i.dll\",x", {L"C:\\i.dll", 0}},
        {L"i.dll,999999999999", {L"i.dll", 2147483647}},
    };
    for (const auto& [text, expected] : cases)
        EXPECT_THAT(ParseDefaultIcon(text, L"C:\\f.x"), Optional(expected)) << text;
}

TEST(DefaultIcon, StandsForTheFileItself) {
    for (const wchar_t* const text : {L"%1", L"\"%1\"", L" %1 "})
        EXPECT_THAT(ParseDefaultIcon(text, L"C:\\f.ico"), Optional(IconLocation{L"C:\\f.ico", 0}));
    EXPECT_THAT(ParseDefaultIcon(L"%1,2", L"C:\\f.ico"), Optional(IconLocation{L"C:\\f.ico", 2}));
}

// That index asks for the number of icons.
TEST(DefaultIcon, TakesTheFirstIconForTheIdentifierOne) {
    EXPECT_THAT(ParseDefaultIcon(L"C:\\i.dll,-1", L""), Optional(IconLocation{L"C:\\i.dll", 0}));
}

TEST(DefaultIcon, NamesNothingWithoutAFile) {
    for (const wchar_t* const text : {L"", L"  ", L",3", L"\"\",3", L"\""})
        EXPECT_EQ(ParseDefaultIcon(text, L"C:\\f.x"), std::nullopt) << text;
}

TEST(DefaultIcon, HasAnyLength) {
    const std::wstring file(100'000, L'f');

    EXPECT_THAT(ParseDefaultIcon(file + L",1", L""), Optional(IconLocation{file, 1}));
}

TEST(SystemProgramIcon, StandsOnePlaceFurtherOnSinceWindows7) {
    EXPECT_EQ(SystemProgramIcon(true), (IconLocation{L"imageres.dll", 11}));
    EXPECT_EQ(SystemProgramIcon(false), (IconLocation{L"imageres.dll", 10}));
}

TEST_F(IconLookup, TakesAProgramsOwnIcon) {
    registry.texts[L"classes\\.exe|"] = L"exefile";
    registry.texts[L"classes\\exefile\\DefaultIcon|"] = L"C:\\other.dll,1";

    for (const wchar_t* const path : {L"C:\\p.exe", L"C:\\p.COM", L"C:\\p.Bat"})
        EXPECT_THAT(Icons(path), ElementsAre(IconLocation{path, 0}, kLast));
}

TEST_F(IconLookup, EndsWithTheIconOfTheWindowsVersion) {
    EXPECT_THAT(IconsFor(L"C:\\f.x", DroppedKind::kFile, registry, false),
                ElementsAre(IconLocation{L"imageres.dll", 10}));
    EXPECT_THAT(ProgramIcons(L"C:\\p.exe", false),
                ElementsAre(IconLocation{L"C:\\p.exe", 0}, IconLocation{L"imageres.dll", 10}));
}

TEST_F(IconLookup, TakesTheIconOfTheRegisteredType) {
    registry.texts[L"classes\\.txt|"] = L"txtfile";
    registry.texts[L"classes\\txtfile\\DefaultIcon|"] = L"\"C:\\t.dll\",-102";

    EXPECT_THAT(Icons(L"C:\\f.txt"), ElementsAre(IconLocation{L"C:\\t.dll", -102}, kLast));
}

TEST_F(IconLookup, TriesTheTypesAndThenTheProgramsInTheirOrder) {
    registry.texts[kExts + L".txt\\UserChoice|ProgId"] = L"mine";
    registry.texts[L"classes\\mine\\DefaultIcon|"] = L"1.dll,1";
    registry.texts[L"classes\\.txt|"] = L"txtfile";
    registry.texts[L"classes\\txtfile\\DefaultIcon|"] = L"2.dll,2";
    registry.texts[L"classes\\.txt\\DefaultIcon|"] = L"3.dll,3";
    registry.texts[L"classes\\SystemFileAssociations\\.txt\\DefaultIcon|"] = L"4.dll,4";
    registry.texts[kExts + L".txt\\OpenWithList|MRUList"] = L"a";
    registry.texts[kExts + L".txt\\OpenWithList|a"] = L"5.exe";

    EXPECT_THAT(Icons(L"C:\\f.txt"),
                ElementsAre(IconLocation{L"1.dll", 1}, IconLocation{L"2.dll", 2}, IconLocation{L"3.dll", 3},
                            IconLocation{L"4.dll", 4}, IconLocation{L"5.exe", 0}, kLast));
}

TEST_F(IconLookup, TakesTheProgramsInTheOrderOfTheirLastUse) {
    registry.texts[kExts + L".x\\OpenWithList|MRUList"] = L"cab";
    registry.texts[kExts + L".x\\OpenWithList|a"] = L"a.exe";
    registry.texts[kExts + L".x\\OpenWithList|b"] = L"b.exe";
    registry.texts[kExts + L".x\\OpenWithList|c"] = L"C:\\c c.exe";
    registry.texts[kExts + L".x\\OpenWithList|d"] = L"never.exe";

    EXPECT_THAT(Icons(L"C:\\f.x"), ElementsAre(IconLocation{L"C:\\c c.exe", 0}, IconLocation{L"a.exe", 0},
                                               IconLocation{L"b.exe", 0}, kLast));
}

TEST_F(IconLookup, LeavesOutProgramsThatTheListDoesNotHave) {
    registry.texts[kExts + L".x\\OpenWithList|MRUList"] = L"zb?";
    registry.texts[kExts + L".x\\OpenWithList|b"] = L"b.exe";

    EXPECT_THAT(Icons(L"C:\\f.x"), ElementsAre(IconLocation{L"b.exe", 0}, kLast));
}

TEST_F(IconLookup, AsksTheRegistryForTheFolderOfAProgram) {
    registry.texts[kExts + L".x\\OpenWithList|MRUList"] = L"ab";
    registry.texts[kExts + L".x\\OpenWithList|a"] = L"a.exe";
    registry.texts[kExts + L".x\\OpenWithList|b"] = L"b.exe";
    registry.texts[L"machine" + kAppPaths + L"a.exe|"] = L"\"C:\\m\\a.exe\"";
    registry.texts[L"machine" + kAppPaths + L"b.exe|"] = L"C:\\m\\b.exe";
    registry.texts[L"user" + kAppPaths + L"b.exe|"] = L"C:\\u\\b.exe";

    EXPECT_THAT(Icons(L"C:\\f.x"),
                ElementsAre(IconLocation{L"C:\\m\\a.exe", 0}, IconLocation{L"C:\\u\\b.exe", 0}, kLast));
}

TEST_F(IconLookup, LooksAtTheRegistryAsWindowsDoesForFolders) {
    registry.texts[L"classes\\Folder\\DefaultIcon|"] = L"shell.dll,3";
    registry.texts[L"classes\\Directory\\DefaultIcon|"] = L"shell.dll,4";
    registry.texts[L"classes\\Drive\\DefaultIcon|"] = L"shell.dll,8";
    registry.texts[kExts + L".d\\OpenWithList|MRUList"] = L"a";
    registry.texts[kExts + L".d\\OpenWithList|a"] = L"a.exe";

    EXPECT_THAT(Icons(L"C:\\conf.d", DroppedKind::kFolder),
                ElementsAre(IconLocation{L"shell.dll", 3}, IconLocation{L"shell.dll", 4}, kLast));
    EXPECT_THAT(Icons(L"D:\\", DroppedKind::kDrive),
                ElementsAre(IconLocation{L"shell.dll", 8}, IconLocation{L"shell.dll", 3}, kLast));
}

TEST_F(IconLookup, TakesAFolderThatIsCalledLikeAProgramForAFolder) {
    EXPECT_THAT(Icons(L"C:\\tools.exe", DroppedKind::kFolder), ElementsAre(kLast));
}

TEST_F(IconLookup, HasATypeForFilesWithoutAnExtension) {
    registry.texts[L"classes\\Unknown\\DefaultIcon|"] = L"shell.dll,0";
    registry.texts[L"classes\\|"] = L"never";
    registry.texts[L"classes\\never\\DefaultIcon|"] = L"never.dll,0";

    EXPECT_THAT(Icons(L"C:\\noextension"), ElementsAre(IconLocation{L"shell.dll", 0}, kLast));
}

TEST_F(IconLookup, TakesTheFileItselfWhereItsTypeSaysSo) {
    registry.texts[L"classes\\.ico|"] = L"icofile";
    registry.texts[L"classes\\icofile\\DefaultIcon|"] = L"%1";

    EXPECT_THAT(Icons(L"C:\\f.ico"), ElementsAre(IconLocation{L"C:\\f.ico", 0}, kLast));
}

TEST_F(IconLookup, TakesShortcutsByTheirType) {
    registry.texts[L"classes\\.lnk|"] = L"lnkfile";
    registry.texts[L"classes\\lnkfile\\DefaultIcon|"] = L"shell.dll,29";

    EXPECT_THAT(Icons(L"C:\\f.lnk"), ElementsAre(IconLocation{L"shell.dll", 29}, kLast));
}

TEST_F(IconLookup, TakesAShortcutsOwnIconThenItsTargetsThenItsTypes) {
    registry.texts[L"classes\\.txt\\DefaultIcon|"] = L"text.dll,1";
    registry.texts[L"classes\\.lnk\\DefaultIcon|"] = L"link.dll,2";
    registry.texts[L"classes\\Folder\\DefaultIcon|"] = L"folder.dll,3";
    const auto icons = [this](const ShortcutIcon& shortcut) {
        return IconsForShortcut(L"C:\\f.lnk", shortcut, registry, true);
    };
    const IconLocation link{L"link.dll", 2};

    EXPECT_THAT(icons({{L"own.dll", -7}, L"C:\\f.txt"}),
                ElementsAre(IconLocation{L"own.dll", -7}, IconLocation{L"text.dll", 1}, link, kLast));
    EXPECT_THAT(icons({{}, L"C:\\p.exe"}), ElementsAre(IconLocation{L"C:\\p.exe", 0}, link, kLast));
    EXPECT_THAT(icons({{}, L"C:\\tools.exe", DroppedKind::kFolder}),
                ElementsAre(IconLocation{L"folder.dll", 3}, link, kLast));
    EXPECT_THAT(icons({{L"own.dll", -1}, L""}), ElementsAre(IconLocation{L"own.dll", 0}, link, kLast));
    EXPECT_THAT(icons({}), ElementsAre(link, kLast));
}

TEST_F(IconLookup, HasOnlyTheLastResortForATypeThatNobodyKnows) {
    EXPECT_THAT(Icons(L"C:\\f.unheard-of"), ElementsAre(kLast));
    EXPECT_THAT(Icons(L""), ElementsAre(kLast));
}

} // namespace
