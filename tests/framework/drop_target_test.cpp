#include "framework/drop_target.h"

#include <gmock/gmock.h>

#include "tests/support/dragged_data.h"
#include "tests/support/window_test.h"

using korvane::test::DraggedData;
using korvane::test::WindowTest;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class LoggingHandler final : public fw::DropHandler {
public:
    bool accepts = true;
    std::string log;
    std::wstring text;
    std::vector<std::wstring> files;

    bool OnDragOver(const fw::DragData& data, POINT at) override {
        log += "over " + std::to_string(at.x) + "," + std::to_string(at.y) + (data.HasText() ? " text" : "") +
               (data.HasFiles() ? " files" : "") + ";";
        return accepts;
    }
    void OnDragLeave() override { log += "leave;"; }
    void OnDrop(const fw::DragData& data, POINT) override {
        log += "drop;";
        text = data.Text();
        files = data.Files();
    }
};

struct DropTargetTest : WindowTest {
    LoggingHandler handler;
    fw::DropTarget target;

    void SetUp() override {
        WindowTest::SetUp();
        ASSERT_TRUE(target.Start(Host(), handler));
    }
    DWORD Enter(DraggedData& data, DWORD allowed = DROPEFFECT_COPY | DROPEFFECT_MOVE) const {
        target.Interface()->DragEnter(&data, MK_LBUTTON, {10, 20}, &allowed);
        return allowed;
    }
    DWORD Drop(DraggedData& data, DWORD allowed = DROPEFFECT_COPY | DROPEFFECT_MOVE) const {
        target.Interface()->Drop(&data, 0, {10, 20}, &allowed);
        return allowed;
    }
};

} // namespace

TEST_F(DropTargetTest, IsTheWindowsTargetUntilItIsStopped) {
    EXPECT_EQ(::RegisterDragDrop(Host(), target.Interface()), DRAGDROP_E_ALREADYREGISTERED);

    target.Stop();

    EXPECT_EQ(::RevokeDragDrop(Host()), DRAGDROP_E_NOTREGISTERED);
}

TEST_F(DropTargetTest, CopiesWhatTheHandlerAcceptsAndNeverMovesIt) {
    DraggedData data{L"text"};

    EXPECT_EQ(Enter(data), DWORD{DROPEFFECT_COPY});
    EXPECT_EQ(Enter(data, DROPEFFECT_LINK), DWORD{DROPEFFECT_LINK});
    EXPECT_EQ(Enter(data, DROPEFFECT_MOVE), DWORD{DROPEFFECT_NONE});
    handler.accepts = false;
    EXPECT_EQ(Enter(data), DWORD{DROPEFFECT_NONE});

    // The target holds the data as long as they are dragged over it.
    target.Interface()->DragLeave();
}

TEST_F(DropTargetTest, TellsTheHandlerWhatIsDraggedWhere) {
    DraggedData data{L"text", {L"C:\\a.txt"}};
    Enter(data);

    DWORD effect = DROPEFFECT_COPY;
    target.Interface()->DragOver(MK_LBUTTON, {11, 21}, &effect);
    target.Interface()->DragLeave();

    EXPECT_EQ(effect, DWORD{DROPEFFECT_COPY});
    EXPECT_EQ(handler.log, "over 10,20 text files;over 11,21 text files;leave;");
}

TEST_F(DropTargetTest, HandsOverTextAndFiles) {
    DraggedData data{L"東京 駅", {L"C:\\a b.txt", L"C:\\表.txt"}};
    Enter(data);

    EXPECT_EQ(Drop(data), DWORD{DROPEFFECT_COPY});

    EXPECT_EQ(handler.text, L"東京 駅");
    EXPECT_THAT(handler.files, ElementsAre(L"C:\\a b.txt", L"C:\\表.txt"));
}

TEST_F(DropTargetTest, EndsTheDragWhenTheDropIsRefused) {
    DraggedData data{L"text"};
    Enter(data);
    handler.log.clear();
    handler.accepts = false;

    EXPECT_EQ(Drop(data), DWORD{DROPEFFECT_NONE});

    EXPECT_EQ(handler.log, "over 10,20 text;leave;");
}

TEST_F(DropTargetTest, GivesNothingWhenTheSourceGivesNothing) {
    DraggedData data{std::nullopt};
    Enter(data);
    Drop(data);

    EXPECT_EQ(handler.text, L"");
    EXPECT_THAT(handler.files, IsEmpty());
}

TEST_F(DropTargetTest, HoldsTheDraggedDataOnlyWhileItIsDragged) {
    DraggedData data{L"text"};
    Enter(data);
    EXPECT_EQ(data.References(), 2U);
    target.Interface()->DragLeave();
    EXPECT_EQ(data.References(), 1U);

    Enter(data);
    Drop(data);
    EXPECT_EQ(data.References(), 1U);
}

TEST_F(DropTargetTest, LeavesTheHandlerAloneOnceItIsStopped) {
    DraggedData data{L"text"};
    IDropTarget* const kept = target.Interface();
    kept->AddRef();
    target.Stop();

    DWORD effect = DROPEFFECT_COPY;
    kept->DragEnter(&data, MK_LBUTTON, {10, 20}, &effect);
    kept->DragLeave();

    EXPECT_EQ(effect, DWORD{DROPEFFECT_NONE});
    EXPECT_EQ(handler.log, "");
    EXPECT_EQ(kept->Release(), 0U);
}
