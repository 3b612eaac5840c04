#include "launch/logic/item_check.h"

#include <gtest/gtest.h>

#include <map>
#include <string>

#include "res/ids.h"

using namespace korvane::launch;
using Field = ItemProblem::Field;

namespace {

class FakeFiles final : public FileLookup {
public:
    std::map<std::wstring, PathKind> kinds{{L"C:\\p.exe", PathKind::kFile},
                                           {L"C:\\w", PathKind::kFolder},
                                           {L"C:\\a.txt", PathKind::kFile},
                                           {L"C:\\sys\\notepad.exe", PathKind::kFile},
                                           {L"C:\\sys\\list.txt", PathKind::kFile}};
    std::map<std::wstring, std::wstring> onPath{{L"notepad.exe", L"C:\\sys\\notepad.exe"},
                                                {L"list.txt", L"C:\\sys\\list.txt"}};
    mutable std::wstring log; // what was asked

    [[nodiscard]] std::wstring OnSearchPath(const std::wstring& name) const override {
        log += L"search " + name + L"\n";
        const auto at = onPath.find(name);
        return at == onPath.end() ? std::wstring{} : at->second;
    }
    [[nodiscard]] PathKind KindOf(const std::wstring& path) const override {
        log += L"kind " + path + L"\n";
        const auto at = kinds.find(path);
        return at == kinds.end() ? PathKind::kNothing : at->second;
    }
};

struct ItemCheckTest : ::testing::Test {
    FakeFiles files;
    ItemFields fields{
        .program = L"C:\\p.exe", .name = L"n", .arguments = L"/a", .workingFolder = L"C:\\w", .hasIcon = true};

    [[nodiscard]] std::optional<ItemProblem> Problem(bool anyFile = false) const {
        return CheckItem(fields, files, anyFile).problem;
    }
};

TEST_F(ItemCheckTest, AcceptsAWholeItemAsItStands) {
    const ItemCheck check = CheckItem(fields, files);

    EXPECT_EQ(check.problem, std::nullopt);
    EXPECT_EQ(check.accepted, fields);
}

TEST_F(ItemCheckTest, WantsAnIconFirstOfAll) {
    fields = {
        .program = L"C:\\gone.exe", .name = L"&", .arguments = {}, .workingFolder = L"C:\\gone", .hasIcon = false};

    EXPECT_EQ(Problem(), (ItemProblem{IDS_NO_ITEM_ICON, {}, Field::kIcon}));
    EXPECT_EQ(files.log, L"");
}

TEST_F(ItemCheckTest, WantsTheProgramBeforeTheName) {
    fields.program = L"C:\\gone.exe";
    fields.name = L"&";
    fields.workingFolder = L"C:\\gone";

    EXPECT_EQ(Problem(), (ItemProblem{IDS_FILE_NOT_FOUND, L"C:\\gone.exe", Field::kProgram}));
}

TEST_F(ItemCheckTest, RefusesAnAmpersandBeforeItLooksForTheFolder) {
    fields.name = L"A & B";
    fields.workingFolder = L"C:\\gone";

    EXPECT_EQ(Problem(), (ItemProblem{IDS_AMPERSAND_IN_NAME, {}, Field::kName}));
}

TEST_F(ItemCheckTest, WantsTheWorkingFolderLast) {
    fields.workingFolder = L"C:\\gone";

    EXPECT_EQ(Problem(), (ItemProblem{IDS_FOLDER_NOT_FOUND, L"C:\\gone", Field::kWorkingFolder}));
}

TEST_F(ItemCheckTest, TakesAFileForNoWorkingFolder) {
    fields.workingFolder = L"C:\\a.txt";

    EXPECT_EQ(Problem(), (ItemProblem{IDS_FOLDER_NOT_FOUND, L"C:\\a.txt", Field::kWorkingFolder}));
}

TEST_F(ItemCheckTest, DoesNotLookForAnEmptyWorkingFolder) {
    for (const wchar_t* const empty : {L"", L"  ", L"\"\""}) {
        fields.workingFolder = empty;
        files.log.clear();

        EXPECT_EQ(Problem(), std::nullopt);
        EXPECT_EQ(files.log, L"kind C:\\p.exe\n");
    }
}

TEST_F(ItemCheckTest, TakesTheFullPathOfAProgramOnTheSearchPath) {
    fields.program = L"notepad.exe";

    const ItemCheck check = CheckItem(fields, files);

    EXPECT_EQ(check.problem, std::nullopt);
    EXPECT_EQ(check.accepted.program, L"C:\\sys\\notepad.exe");
}

TEST_F(ItemCheckTest, DoesNotSearchForAProgramThatHasABackslash) {
    fields.program = L"sub\\notepad.exe";

    EXPECT_EQ(Problem(), (ItemProblem{IDS_FILE_NOT_FOUND, L"sub\\notepad.exe", Field::kProgram}));
    EXPECT_EQ(files.log, L"kind sub\\notepad.exe\n");
}

TEST_F(ItemCheckTest, NamesAProgramThatIsNowhereAsItWasTyped) {
    fields.program = L"nowhere.exe";

    EXPECT_EQ(Problem(), (ItemProblem{IDS_FILE_NOT_FOUND, L"nowhere.exe", Field::kProgram}));
}

TEST_F(ItemCheckTest, FindsNoEmptyProgram) {
    fields.program = L" \"\" ";

    EXPECT_EQ(Problem(), (ItemProblem{IDS_FILE_NOT_FOUND, L"", Field::kProgram}));
}

TEST_F(ItemCheckTest, AsksWhetherAFileThatIsNoProgramIsMeant) {
    fields.program = L"C:\\a.txt";

    EXPECT_EQ(Problem(), (ItemProblem{IDS_NOT_EXECUTABLE, L"C:\\a.txt", Field::kProgram, true}));
    EXPECT_EQ(Problem(true), std::nullopt);
}

TEST_F(ItemCheckTest, AsksWithTheFullPathOfAFileOnTheSearchPath) {
    fields.program = L"list.txt";

    EXPECT_EQ(Problem(), (ItemProblem{IDS_NOT_EXECUTABLE, L"C:\\sys\\list.txt", Field::kProgram, true}));
}

TEST_F(ItemCheckTest, ChecksTheRestAfterAFileIsAccepted) {
    fields.program = L"C:\\a.txt";
    fields.name = L"&x";

    EXPECT_EQ(Problem(true), (ItemProblem{IDS_AMPERSAND_IN_NAME, {}, Field::kName}));
}

TEST_F(ItemCheckTest, AcceptsAFileThatIsGoneByThenNeither) {
    fields.program = L"C:\\gone.txt";

    EXPECT_EQ(Problem(true), (ItemProblem{IDS_FILE_NOT_FOUND, L"C:\\gone.txt", Field::kProgram}));
}

TEST_F(ItemCheckTest, TakesAFolderWithoutAsking) {
    fields.program = L"C:\\w";

    EXPECT_EQ(Problem(), std::nullopt);
}

TEST_F(ItemCheckTest, KnowsProgramsByAnyOfTheThreeExtensions) {
    for (const wchar_t* const program : {L"C:\\x.exe", L"C:\\x.COM", L"C:\\x.Bat"}) {
        files.kinds[program] = PathKind::kFile;
        fields.program = program;

        EXPECT_EQ(Problem(), std::nullopt);
    }
    files.kinds[L"C:\\x"] = PathKind::kFile;
    fields.program = L"C:\\x";
    EXPECT_EQ(Problem().value().text, unsigned{IDS_NOT_EXECUTABLE});
}

TEST_F(ItemCheckTest, StoresWhatWasMeant) {
    fields = {.program = L" \"C:\\p.exe\" ",
              .name = L"  n n ",
              .arguments = L" \"a b\" ",
              .workingFolder = L"\"C:\\w\"",
              .hasIcon = true};

    const ItemCheck check = CheckItem(fields, files);

    EXPECT_EQ(check.problem, std::nullopt);
    EXPECT_EQ(check.accepted, (ItemFields{.program = L"C:\\p.exe",
                                          .name = L"n n",
                                          .arguments = L"\"a b\"",
                                          .workingFolder = L"C:\\w",
                                          .hasIcon = true}));
}

} // namespace
