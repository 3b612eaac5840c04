#include "launch/logic/import_rules.h"

#include <gmock/gmock.h>

using namespace korvane::launch;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

TEST(ImportNotes, TellOfNothingFoundOnlyWhenAllIsSearched) {
    EXPECT_EQ(NoteFor(true, false), ImportNote::kSearching);
    EXPECT_EQ(NoteFor(true, true), ImportNote::kSearching);
    EXPECT_EQ(NoteFor(false, true), ImportNote::kNone);
    EXPECT_EQ(NoteFor(false, false), ImportNote::kNothingFound);
}

TEST(ImportSources, StandInTheirOrder) {
    ASSERT_EQ(kImportSources.size(), 4U);
    EXPECT_EQ(kImportSources[0].folder, ImportFolder::kPrograms);
    EXPECT_EQ(kImportSources[1].folder, ImportFolder::kCommonPrograms);
    EXPECT_EQ(kImportSources[2].folder, ImportFolder::kQuickLaunch);
    EXPECT_EQ(kImportSources[3].folder, ImportFolder::kAskedFor);
}

TEST(ImportSources, TakeSubfoldersInAllButQuickLaunch) {
    EXPECT_TRUE(ScansSubfolders(0));
    EXPECT_TRUE(ScansSubfolders(1));
    EXPECT_FALSE(ScansSubfolders(2));
    EXPECT_TRUE(ScansSubfolders(3));
    EXPECT_TRUE(ScansSubfolders(4));
    EXPECT_TRUE(ScansSubfolders(40));
}

TEST(ImportSources, DoNothingWhenTheSameIsChosenAgain) {
    for (const int source : {0, 1, 2, 3, 4}) EXPECT_EQ(StepForSource(source, source), SourceStep::kNothing);
    EXPECT_EQ(StepForSource(-1, 0), SourceStep::kNothing);
}

TEST(ImportSources, LeadToTheirFolders) {
    EXPECT_EQ(StepForSource(0, 4), SourceStep::kScanSpecialFolder);
    EXPECT_EQ(StepForSource(1, 0), SourceStep::kScanSpecialFolder);
    EXPECT_EQ(StepForSource(2, 0), SourceStep::kScanSpecialFolder);
    EXPECT_EQ(StepForSource(3, 0), SourceStep::kAskForFolder);
    EXPECT_EQ(StepForSource(4, 0), SourceStep::kScanFolderAskedFor);
    EXPECT_EQ(StepForSource(5, 4), SourceStep::kScanFolderAskedFor);
    EXPECT_EQ(StepForSource(0, -1), SourceStep::kScanSpecialFolder);
}

TEST(ImportRules, PassOverTheEntriesForAFolderItself) {
    EXPECT_TRUE(IsDotEntry(L"."));
    EXPECT_TRUE(IsDotEntry(L".."));
    EXPECT_FALSE(IsDotEntry(L"..."));
    EXPECT_FALSE(IsDotEntry(L".a"));
}

constexpr LaunchLineParts kWhole{.path = L"C:\\p.exe",
                                 .arguments = L"/a",
                                 .workingFolder = L"C:\\",
                                 .iconFile = L"C:\\i.ico",
                                 .iconIndex = 2,
                                 .name = L"n"};

LaunchLineParts With(std::wstring_view LaunchLineParts::*field, std::wstring_view text) {
    LaunchLineParts parts = kWhole;
    parts.*field = text;
    return parts;
}

TEST(ImportRules, KeepWhatReadsBackAsItIs) {
    EXPECT_TRUE(CanBeKept(kWhole));
    EXPECT_TRUE(CanBeKept(With(&LaunchLineParts::arguments, L"")));
    EXPECT_TRUE(CanBeKept(With(&LaunchLineParts::workingFolder, L"")));
    EXPECT_TRUE(CanBeKept(With(&LaunchLineParts::arguments, L" /a /b ")));
    LaunchLineParts negative = kWhole;
    negative.iconIndex = -32512;
    EXPECT_TRUE(CanBeKept(negative));
    EXPECT_TRUE(CanBeKept(With(&LaunchLineParts::name, L"A,B"))) << "reads back as A";
}

TEST(ImportRules, RefuseWhatWouldShiftTheFieldsBehindIt) {
    EXPECT_FALSE(CanBeKept(With(&LaunchLineParts::path, L"C:\\a,b.exe")));
    EXPECT_FALSE(CanBeKept(With(&LaunchLineParts::arguments, L"shell32.dll,Control_RunDLL")));
    EXPECT_FALSE(CanBeKept(With(&LaunchLineParts::workingFolder, L"C:\\a,b")));
    EXPECT_FALSE(CanBeKept(With(&LaunchLineParts::iconFile, L"C:\\a,b.ico")));
    EXPECT_FALSE(CanBeKept(With(&LaunchLineParts::path, L"")));
    EXPECT_FALSE(CanBeKept(With(&LaunchLineParts::iconFile, L"")));
    EXPECT_FALSE(CanBeKept(With(&LaunchLineParts::name, L"")));
    EXPECT_FALSE(CanBeKept(With(&LaunchLineParts::name, L",")));
}

constexpr ImportRow kGrey{false, true, false};
constexpr ImportRow kNew{true, true, false};
constexpr ImportRow kOld{true, true, true};
constexpr ImportRow kUnselected{true, false, false};
constexpr ImportRow kLeft{true, false, true};

TEST(ImportSelection, IsRefusedForGreyRows) {
    const ImportRow rows[] = {kNew, kGrey, kUnselected, kGrey};

    EXPECT_THAT(RefusedRows(rows, 35), ElementsAre(1, 3));
}

TEST(ImportSelection, IsRefusedWhereThereIsNoPlace) {
    const ImportRow rows[] = {kNew, kNew, kNew, kNew};

    EXPECT_THAT(RefusedRows(rows, 4), IsEmpty());
    EXPECT_THAT(RefusedRows(rows, 2), ElementsAre(2, 3));
    EXPECT_THAT(RefusedRows(rows, 0), ElementsAre(0, 1, 2, 3));
}

TEST(ImportSelection, KeepsWhatWasSelectedBefore) {
    const ImportRow rows[] = {kNew, kGrey, kNew, kOld, kUnselected, kOld};

    EXPECT_THAT(RefusedRows(rows, 3), ElementsAre(1, 2));
    EXPECT_THAT(RefusedRows(rows, 2), ElementsAre(0, 1, 2));
}

TEST(ImportSelection, GivesAPlaceBackThatWasLeft) {
    const ImportRow rows[] = {kLeft, kNew};

    EXPECT_THAT(RefusedRows(rows, 1), IsEmpty());
}

TEST(ImportSelection, OfNothingRefusesNothing) {
    EXPECT_THAT(RefusedRows({}, 35), IsEmpty());
}

TEST(ImportRoots, AreTheShareOrTheDrive) {
    EXPECT_EQ(RootOf(L"\\\\Server\\Share\\a\\b.exe"), L"\\\\server\\share");
    EXPECT_EQ(RootOf(L"\\\\Server\\Share"), L"\\\\server\\share");
    EXPECT_EQ(RootOf(L"\\\\Server"), L"\\\\server");
    EXPECT_EQ(RootOf(L"Z:\\a.exe"), L"z:");
    EXPECT_EQ(RootOf(L"z:"), L"z:");
    EXPECT_EQ(RootOf(L"a.exe"), L"");
    EXPECT_EQ(RootOf(L"%windir%\\a.exe"), L"");
    EXPECT_EQ(RootOf(L""), L"");
    EXPECT_EQ(RootOf(L"\\\\"), L"\\\\");
}

} // namespace
