#include "settings/logic/file_replacing.h"

#include <gmock/gmock.h>

#include <map>
#include <optional>

using namespace korvane::settings;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

namespace {

constexpr unsigned long kSharingViolation = 32;
constexpr unsigned long kDiskFull = 112;
constexpr unsigned long kHalfReplaced = 1176;

// Files in memory, of which every operation can be made to fail or to be the last thing that ever happens.
class MemoryFiles final : public FileOperations {
public:
    std::map<std::wstring, std::string> content;
    std::string log;
    unsigned long writeError = 0;
    unsigned long replaceError = 0;
    unsigned long moveError = 0;
    int stepsToLive = -1; // a negative number stands for ever

    [[nodiscard]] unsigned long WriteNew(const std::wstring& path, std::string_view bytes) override {
        log += "write;";
        // Making the file, the content and the way to the disk may each be the last.
        if (!Lives()) return kDead;
        content[path] = {};
        if (!Lives()) return kDead;
        content[path] = bytes.substr(0, bytes.size() / 2);
        if (!Lives()) return kDead;
        if (writeError == 0) content[path] = bytes;
        return writeError;
    }
    [[nodiscard]] unsigned long CopyNew(const std::wstring& from, const std::wstring& to) override {
        return WriteNew(to, content.at(from));
    }
    [[nodiscard]] bool Exists(const std::wstring& path) const override { return content.contains(path); }
    [[nodiscard]] unsigned long Replace(const std::wstring& target, const std::wstring& with) override {
        log += "replace;";
        if (!Lives()) return kDead;
        if (replaceError == kHalfReplaced) content.erase(target);
        if (replaceError == 0) Rename(with, target);
        return replaceError;
    }
    [[nodiscard]] unsigned long MoveOver(const std::wstring& from, const std::wstring& to) override {
        log += "move;";
        if (!Lives()) return kDead;
        if (moveError == 0) Rename(from, to);
        return moveError;
    }
    [[nodiscard]] unsigned long Delete(const std::wstring& path) override {
        log += "delete;";
        if (Lives()) content.erase(path);
        return 0;
    }
    [[nodiscard]] bool Dead() const { return stepsToLive == 0; }

private:
    static constexpr unsigned long kDead = 1;

    bool Lives() {
        if (stepsToLive > 0) --stepsToLive;
        return stepsToLive != 0;
    }
    void Rename(const std::wstring& from, const std::wstring& to) {
        const std::string bytes = content.at(from);
        content.erase(from);
        content[to] = bytes;
    }
};

struct ReplacingAFile : testing::Test {
    MemoryFiles files;
    unsigned long Replace() { return ReplaceContent(files, L"a.dat", "new content"); }
};

} // namespace

TEST_F(ReplacingAFile, PutsTheNewContentInTheOldOnesPlace) {
    files.content[L"a.dat"] = "old content";

    EXPECT_EQ(Replace(), 0U);

    EXPECT_EQ(files.log, "write;replace;");
    EXPECT_THAT(files.content, ElementsAre(Pair(L"a.dat", "new content")));
}

TEST_F(ReplacingAFile, MakesAFileThatWasNotThere) {
    EXPECT_EQ(Replace(), 0U);

    EXPECT_EQ(files.log, "write;move;");
    EXPECT_THAT(files.content, ElementsAre(Pair(L"a.dat", "new content")));
}

TEST_F(ReplacingAFile, HasASecondWayWhereTheFirstFails) {
    files.content[L"a.dat"] = "old content";
    files.replaceError = 50;

    EXPECT_EQ(Replace(), 0U);

    EXPECT_EQ(files.log, "write;replace;move;");
    EXPECT_THAT(files.content, ElementsAre(Pair(L"a.dat", "new content")));
}

TEST_F(ReplacingAFile, KeepsTheOldContentWhenTheDiskIsFull) {
    files.content[L"a.dat"] = "old content";
    files.writeError = kDiskFull;

    EXPECT_EQ(Replace(), kDiskFull);

    EXPECT_THAT(files.content, ElementsAre(Pair(L"a.dat", "old content")));
}

TEST_F(ReplacingAFile, KeepsTheOldContentWhenNeitherWayIsOpen) {
    files.content[L"a.dat"] = "old content";
    files.replaceError = kSharingViolation;
    files.moveError = 5;

    EXPECT_EQ(Replace(), kSharingViolation);

    EXPECT_THAT(files.content, ElementsAre(Pair(L"a.dat", "old content")));
}

TEST_F(ReplacingAFile, SaysWhyAFileCannotBeMade) {
    files.moveError = 5;

    EXPECT_EQ(Replace(), 5U);

    EXPECT_THAT(files.content, IsEmpty());
}

TEST_F(ReplacingAFile, NeverDeletesTheOnlyContentThatIsLeft) {
    files.content[L"a.dat"] = "old content";
    files.replaceError = kHalfReplaced;
    files.moveError = 5;

    EXPECT_EQ(Replace(), kHalfReplaced);

    EXPECT_THAT(files.content, ElementsAre(Pair(L"a.dat.tmp", "new content")));
}

TEST_F(ReplacingAFile, LeavesTheOldOrTheNewContentWhereverItEnds) {
    for (const unsigned long replaceError : {0UL, 50UL}) {
        for (int steps = 1; steps < 10; ++steps) {
            files = {};
            files.content[L"a.dat"] = "old content";
            // What an earlier attempt left behind is no obstacle.
            files.content[L"a.dat.tmp"] = "rubbish";
            files.replaceError = replaceError;
            files.stepsToLive = steps;

            static_cast<void>(Replace());

            EXPECT_THAT(files.content[L"a.dat"], testing::AnyOf("old content", "new content")) << steps;
            EXPECT_TRUE(files.Dead() || files.content[L"a.dat"] == "new content") << steps;
        }
    }
}

TEST_F(ReplacingAFile, CopiesAnotherOneWithoutTouchingIt) {
    files.content[L"a.dat"] = "what it is";
    files.content[L"a.bak"] = "earlier copy";

    EXPECT_EQ(ReplaceByCopy(files, L"a.bak", L"a.dat"), 0U);

    EXPECT_THAT(files.content, ElementsAre(Pair(L"a.bak", "what it is"), Pair(L"a.dat", "what it is")));
}

TEST_F(ReplacingAFile, KeepsTheEarlierCopyWhenThereCanBeNoNewOne) {
    files.content[L"a.dat"] = "what it is";
    files.content[L"a.bak"] = "earlier copy";
    files.writeError = kDiskFull;

    EXPECT_EQ(ReplaceByCopy(files, L"a.bak", L"a.dat"), kDiskFull);

    EXPECT_THAT(files.content, ElementsAre(Pair(L"a.bak", "earlier copy"), Pair(L"a.dat", "what it is")));
}
