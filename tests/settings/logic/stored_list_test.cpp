#include "settings/logic/stored_list.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <set>

#include "settings/logic/setting_keys.h"
#include "tests/support/fake_store.h"

using namespace korvane;
using namespace korvane::settings;
using korvane::test::FakeStore;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

using Lines = std::vector<std::wstring>;

constexpr const NumberedSetting& kList = keys::LaunchMenuItem;
constexpr std::size_t kMost = 6;

// One letter stands for a line, a dot for none.
Lines FromLetters(std::wstring_view letters) {
    Lines lines;
    for (const wchar_t letter : letters) lines.push_back(letter == L'.' ? std::wstring{} : std::wstring(1, letter));
    return lines;
}

std::wstring Letters(const std::vector<LineWrite>& plan) {
    std::wstring text;
    for (const auto& [number, line] : plan) text += std::to_wstring(number) + line + L" ";
    return text;
}

std::wstring Plan(std::wstring_view stored, std::wstring_view wanted) {
    return Letters(PlanListWrites(FromLetters(stored), FromLetters(wanted)));
}

void Put(FakeStore& store, const Lines& lines) {
    int number = 0;
    for (const auto& line : lines)
        if (++number; !line.empty()) store.Write(kList, number, line);
}

// What a reader of the list finds.
Lines Stored(const FakeStore& store) {
    Lines lines;
    for (int number = 1;; ++number) {
        auto line = store.Read(kList, number);
        if (line.empty()) return lines;
        lines.push_back(std::move(line));
    }
}

// Every list of the given length over a few letters, each letter once at most.
std::vector<Lines> Arrangements(std::size_t length) {
    std::vector<Lines> all;
    Lines letters = FromLetters(L"abcd");
    do all.emplace_back(letters.begin(), letters.begin() + static_cast<std::ptrdiff_t>(length));
    while (std::next_permutation(letters.begin(), letters.end()));
    std::sort(all.begin(), all.end());
    all.erase(std::unique(all.begin(), all.end()), all.end());
    return all;
}

} // namespace

TEST(ListPlan, WritesNothingForAListThatIsStoredAlready) {
    EXPECT_EQ(Plan(L"abc", L"abc"), L"");
    EXPECT_EQ(Plan(L"abcd", L"ab"), L"");
}

TEST(ListPlan, WritesOnlyWhatChanges) {
    EXPECT_EQ(Plan(L"abc", L"axc"), L"2x ");
}

TEST(ListPlan, GrowsBeforeItChanges) {
    EXPECT_EQ(Plan(L"", L"ab"), L"1a 2b ");
    EXPECT_EQ(Plan(L"ab", L"xyab"), L"3a 4b 1x 2y ");
}

TEST(ListPlan, MovesALineToItsNewPlaceBeforeAnotherTakesItsOldOne) {
    EXPECT_EQ(Plan(L"abcd", L"xabc"), L"4c 3b 2a 1x ");
    EXPECT_EQ(Plan(L"abcd", L"bcd"), L"1b 2c 3d ");
}

TEST(ListPlan, LetsOneOfTheLinesThatChangePlacesStepAside) {
    EXPECT_EQ(Plan(L"abc", L"bac"), L"4a 1b 2a ");
    EXPECT_EQ(Plan(L"abc", L"cab"), L"4a 1c 3b 2a ");
}

TEST(ListPlan, LeavesOutALineThatIsEmpty) {
    EXPECT_EQ(Plan(L"abc", L"a.x"), L"3x ");
    EXPECT_EQ(Plan(L".b", L"ab"), L"1a ");
}

TEST(StoringAList, MakesTheSectionWhatTheLinesSay) {
    FakeStore store;
    Put(store, FromLetters(L"abcdef"));
    store.WriteText(kList.section, L"LaunchMenu39", L"beyond the last");
    store.WriteInt(kList.section, L"Stray", 1);

    EXPECT_TRUE(StoreList(store, kList, FromLetters(L"bx"), kMost));

    EXPECT_EQ(Stored(store), FromLetters(L"bx"));
    EXPECT_EQ(store.sections[std::wstring{kList.section}].size(), 2U);
}

TEST(StoringAList, DeletesFromTheEndAndOnlyAtTheEnd) {
    FakeStore store;
    Put(store, FromLetters(L"abcd"));
    store.log.clear();

    EXPECT_TRUE(StoreList(store, kList, FromLetters(L"xb"), kMost));

    EXPECT_EQ(store.log, L"Settings\\LaunchMenuItem.LaunchMenu01=x\n"
                         L"delete Settings\\LaunchMenuItem.LaunchMenu04\n"
                         L"delete Settings\\LaunchMenuItem.LaunchMenu03\n");
}

TEST(StoringAList, LeavesNoSectionOfAnEmptyList) {
    for (const auto& nothing : {Lines{}, Lines{L"", L""}}) {
        FakeStore store;
        Put(store, FromLetters(L"ab"));

        EXPECT_TRUE(StoreList(store, kList, nothing, kMost));

        EXPECT_THAT(store.sections, IsEmpty());
    }
}

TEST(StoringAList, OverwritesAValueOfAnotherType) {
    FakeStore store;
    store.WriteInt(kList.section, L"LaunchMenu01", 5);

    EXPECT_TRUE(StoreList(store, kList, FromLetters(L"a"), kMost));

    EXPECT_EQ(Stored(store), FromLetters(L"a"));
}

TEST(StoringAList, DeletesNothingWhenSomethingCouldNotBeWritten) {
    FakeStore store;
    Put(store, FromLetters(L"abc"));
    store.writesThatSucceed = 1;

    EXPECT_FALSE(StoreList(store, kList, FromLetters(L"ba"), kMost));

    store.writesThatSucceed = -1;
    EXPECT_EQ(Stored(store), FromLetters(L"abca"));
}

// The process may end before any of the writes: here before the n-th, for each n, of the saving of each list over each
// other one. Which letters the old list has makes no difference.
TEST(StoringAList, LosesNoLineThatStaysWhereverItEnds) {
    std::vector<Lines> lists;
    for (std::size_t length = 1; length <= 4; ++length)
        for (auto& list : Arrangements(length)) lists.push_back(std::move(list));

    for (const auto& before : {FromLetters(L"a"), FromLetters(L"ab"), FromLetters(L"abc"), FromLetters(L"abcd")}) {
        for (const auto& after : lists) {
            FakeStore store;
            for (int writes = 0;; ++writes) {
                store.sections.clear();
                store.writesThatSucceed = -1;
                Put(store, before);
                store.writesThatSucceed = writes;
                const bool whole = StoreList(store, kList, after, kMost);

                const Lines found = Stored(store);
                for (const auto& line : after)
                    ASSERT_TRUE(std::count(before.begin(), before.end(), line) == 0 ||
                                std::count(found.begin(), found.end(), line) != 0)
                        << writes;
                for (const auto& line : found)
                    ASSERT_TRUE(std::count(before.begin(), before.end(), line) != 0 ||
                                std::count(after.begin(), after.end(), line) != 0);
                ASSERT_THAT(found, testing::Not(IsEmpty()));
                if (whole) {
                    ASSERT_EQ(found, after);
                    break;
                }
            }
        }
    }
}
