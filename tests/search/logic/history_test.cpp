#include "search/logic/history.h"

#include <gmock/gmock.h>

#include "settings/logic/setting_keys.h"
#include "tests/support/fake_store.h"

using namespace korvane;
using namespace korvane::search;
using korvane::test::FakeStore;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

History With(std::initializer_list<const wchar_t*> oldestFirst) {
    History history;
    for (const auto* const text : oldestFirst) history.Add(text);
    return history;
}

History Numbered(int count) {
    History history;
    for (int i = 1; i <= count; ++i) history.Add(L"text " + std::to_wstring(i));
    return history;
}

const settings::NumberedSetting& kList = settings::keys::RecentSearch;

} // namespace

TEST(History, PutsTheNewestFirst) {
    EXPECT_THAT(With({L"one", L"two"}).Entries(), ElementsAre(L"two", L"one"));
}

TEST(History, KeepsTheOldSpellingOfTheNewestEntry) {
    auto history = With({L"bar", L"foo"});

    history.Add(L"Foo");

    EXPECT_THAT(history.Entries(), ElementsAre(L"foo", L"bar"));
}

TEST(History, MovesAnOlderEntryToTheFrontInItsNewSpelling) {
    auto history = With({L"foo", L"b", L"a"});

    history.Add(L"Foo");

    EXPECT_THAT(history.Entries(), ElementsAre(L"Foo", L"a", L"b"));
}

TEST(History, TakesOneEntryOut) {
    auto history = With({L"c", L"b", L"a"});

    history.Remove(L"B");
    history.Remove(L"not there");

    EXPECT_THAT(history.Entries(), ElementsAre(L"a", L"c"));
}

TEST(History, KnowsCaseOnlyOfAsciiLetters) {
    auto history = With({L"ａ", L"x"});

    history.Add(L"Ａ");

    EXPECT_THAT(history.Entries(), ElementsAre(L"Ａ", L"x", L"ａ"));
}

TEST(History, PushesOutTheOldestAfterFifteen) {
    auto history = Numbered(15);

    history.Add(L"one more");

    EXPECT_EQ(history.Entries().size(), 15U);
    EXPECT_EQ(history.Entries().front(), L"one more");
    EXPECT_EQ(history.Entries().back(), L"text 2");
}

TEST(History, LosesNothingWhenAFullListRepeatsAnEntry) {
    auto history = Numbered(15);

    history.Add(L"TEXT 1");

    EXPECT_EQ(history.Entries().size(), 15U);
    EXPECT_EQ(history.Entries().front(), L"TEXT 1");
    EXPECT_EQ(history.Entries().back(), L"text 2");
}

TEST(History, TakesATextThatIsOneOfItsOwnEntries) {
    auto history = With({L"an entry that is too long to be stored within the string itself", L"b"});

    history.Add(history.Entries().back());

    EXPECT_THAT(history.Entries(),
                ElementsAre(L"an entry that is too long to be stored within the string itself", L"b"));
}

TEST(History, KeepsNoEmptyText) {
    auto history = With({L"a"});

    history.Add(L"");

    EXPECT_THAT(history.Entries(), ElementsAre(L"a"));
}

TEST(History, KeepsATextOfAnyLength) {
    History history;
    const std::wstring text(100'000, L'あ');

    history.Add(text);

    EXPECT_EQ(history.Entries().front(), text);
}

TEST(History, SavesTheNewestAndRemovesWhatWasThere) {
    FakeStore store;
    for (int i = 1; i <= 15; ++i) store.Write(kList, i, L"old");
    store.log.clear();

    EXPECT_TRUE(Numbered(12).Save(store, kList, 5));

    EXPECT_THAT(History::Restore(store, kList).Entries(),
                ElementsAre(L"text 12", L"text 11", L"text 10", L"text 9", L"text 8"));
    EXPECT_EQ(store.sections[std::wstring{kList.section}].size(), 5U);
}

TEST(History, SavesAsManyAsThereAreWhenMoreAreAllowed) {
    for (const int most : {2, 15, 2'147'483'647}) {
        FakeStore store;

        EXPECT_TRUE(With({L"a", L"b"}).Save(store, kList, most));

        EXPECT_EQ(store.sections[std::wstring{kList.section}].size(), 2U) << most;
    }
}

TEST(History, SavesNoneForANumberBelowOne) {
    for (const int most : {0, -1, -2'147'483'647 - 1}) {
        FakeStore store;
        store.Write(kList, 1, L"old");

        EXPECT_TRUE(With({L"a"}).Save(store, kList, most));

        EXPECT_TRUE(store.sections.empty()) << most;
    }
}

TEST(History, LosesNoEntryThatStaysWhereverItsSavingEnds) {
    auto history = Numbered(8);
    FakeStore before;
    history.Save(before, kList, 8);
    history.Add(L"text 3");
    history.Add(L"new");

    for (int writes = 0;; ++writes) {
        FakeStore store;
        store.sections = before.sections;
        store.writesThatSucceed = writes;
        const bool whole = history.Save(store, kList, 8);

        const auto restored = History::Restore(store, kList).Entries();
        for (const wchar_t* const kept : {L"text 2", L"text 3", L"text 4", L"text 5", L"text 6", L"text 7", L"text 8"})
            EXPECT_THAT(restored, testing::Contains(kept)) << writes;
        if (whole) break;
    }
}

TEST(History, SaysWhenItCannotBeSaved) {
    FakeStore store;
    store.writesThatSucceed = 0;

    EXPECT_FALSE(With({L"a"}).Save(store, kList, 5));
}

TEST(History, ComesBackInTheSavedOrder) {
    FakeStore store;
    const auto saved = With({L"c", L"b", L"a"});
    saved.Save(store, kList, 5);

    EXPECT_EQ(History::Restore(store, kList).Entries(), saved.Entries());
}

TEST(History, ComesBackUpToTheFirstGap) {
    FakeStore store;
    store.Write(kList, 1, L"a");
    store.Write(kList, 3, L"c");

    EXPECT_THAT(History::Restore(store, kList).Entries(), ElementsAre(L"a"));
}

TEST(History, ComesBackUpToTheFirstEmptyEntry) {
    FakeStore store;
    store.Write(kList, 1, L"a");
    store.Write(kList, 2, L"");
    store.Write(kList, 3, L"c");

    EXPECT_THAT(History::Restore(store, kList).Entries(), ElementsAre(L"a"));
}

TEST(History, ComesBackWithFifteenDistinctEntriesAtMost) {
    FakeStore store;
    store.Write(kList, 1, L"same");
    store.Write(kList, 2, L"SAME");
    for (int i = 3; i <= 40; ++i) store.Write(kList, i, L"text " + std::to_wstring(i));

    const auto history = History::Restore(store, kList);

    EXPECT_EQ(history.Entries().size(), 15U);
    EXPECT_EQ(history.Entries()[0], L"same");
    EXPECT_EQ(history.Entries()[1], L"text 3");
}

TEST(Histories, SaveTheCommandBoxFirst) {
    FakeStore store;
    Histories histories;
    histories.Of(Box::kCommand).Add(L"notepad");
    histories.Of(Box::kSearch).Add(L"tokyo");

    histories.SaveIfWanted(store);

    EXPECT_EQ(store.log, L"Settings\\RecentCommandList.ListItem01=notepad\n"
                         L"Settings\\RecentSearchList.ListItem01=tokyo\n");
}

TEST(Histories, SaveFiveEntriesUnlessToldOtherwise) {
    FakeStore store;
    Histories histories;
    histories.Of(Box::kSearch) = Numbered(12);

    histories.SaveIfWanted(store);

    EXPECT_EQ(store.sections[std::wstring{kList.section}].size(), 5U);
}

TEST(Histories, LeaveTheSavedOnesAloneWhileSavingIsOff) {
    FakeStore store;
    store.Write(kList, 1, L"kept");
    store.WriteInt(L"Settings", L"SaveRecentlyList", 0);
    store.log.clear();
    Histories histories;
    histories.Of(Box::kSearch).Add(L"new");

    histories.SaveIfWanted(store);
    histories.RestoreIfWanted(store);

    EXPECT_EQ(store.log, L"");
    EXPECT_THAT(histories.Of(Box::kSearch).Entries(), ElementsAre(L"new"));
}

TEST(Histories, ComeBackEachToItsBox) {
    FakeStore store;
    store.Write(settings::keys::RecentCommand, 1, L"notepad");
    store.Write(settings::keys::RecentSearch, 1, L"tokyo");
    Histories histories;

    histories.RestoreIfWanted(store);

    EXPECT_THAT(histories.Of(Box::kCommand).Entries(), ElementsAre(L"notepad"));
    EXPECT_THAT(histories.Of(Box::kSearch).Entries(), ElementsAre(L"tokyo"));
}

TEST(Histories, AreEmptyForANewUser) {
    const FakeStore store;
    Histories histories;

    histories.RestoreIfWanted(store);

    EXPECT_THAT(histories.Of(Box::kCommand).Entries(), IsEmpty());
    EXPECT_THAT(histories.Of(Box::kSearch).Entries(), IsEmpty());
}
