#include "framework/message_loop.h"

#include <gmock/gmock.h>

#include <functional>
#include <string>

#include "tests/support/window_test.h"

namespace fw {
namespace {

class LoggedFilter final : public MessageFilter {
public:
    LoggedFilter(std::string& log, char name) : log_{log}, name_{name} {}

    bool PreTranslate(const MSG&) override {
        log_ += name_;
        if (onMessage) onMessage();
        return takes;
    }
    bool takes = false;
    std::function<void()> onMessage;

private:
    std::string& log_;
    char name_;
};

class MessageLoopTest : public korvane::test::WindowTest {
protected:
    void Process() {
        MSG message{};
        message.hwnd = Host();
        message.message = WM_COMMAND;
        message.wParam = 1;
        loop.Process(message);
    }
    [[nodiscard]] int Arrived() const { return host.CommandCount(1, 0); }

    std::string log;
    MessageLoop loop;
    LoggedFilter first{log, '1'};
    LoggedFilter second{log, '2'};
    LoggedFilter third{log, '3'};
};

TEST_F(MessageLoopTest, AsksTheNewestFilterFirst) {
    const auto a = loop.Add(first);
    const auto b = loop.Add(second);
    const auto c = loop.Add(third);

    Process();

    EXPECT_EQ(log, "321");
    EXPECT_EQ(Arrived(), 1);
}

TEST_F(MessageLoopTest, StopsAtTheFilterThatTakesTheMessage) {
    const auto a = loop.Add(first);
    const auto b = loop.Add(second);
    second.takes = true;

    Process();

    EXPECT_EQ(log, "2");
    EXPECT_EQ(Arrived(), 0);
}

TEST_F(MessageLoopTest, ForgetsAFilterWhenItsRegistrationDies) {
    const auto a = loop.Add(first);
    { const auto b = loop.Add(second); }

    Process();

    EXPECT_EQ(log, "1");
}

TEST_F(MessageLoopTest, ForgetsAFilterWhenItsRegistrationIsReset) {
    auto a = loop.Add(first);

    a.Reset();
    a.Reset();
    Process();

    EXPECT_EQ(log, "");
    EXPECT_EQ(Arrived(), 1);
}

TEST_F(MessageLoopTest, KeepsAFilterWhoseRegistrationIsMoved) {
    MessageLoop::Registration kept;
    {
        auto a = loop.Add(first);
        kept = std::move(a);
    }
    const MessageLoop::Registration keptAgain{std::move(kept)};

    Process();

    EXPECT_EQ(log, "1");
}

TEST_F(MessageLoopTest, SkipsAFilterThatANewerOneRemoved) {
    auto a = loop.Add(first);
    auto b = loop.Add(second);
    const auto c = loop.Add(third);
    third.onMessage = [&] { b.Reset(); };

    Process();

    EXPECT_EQ(log, "31");
}

TEST_F(MessageLoopTest, GoesOnWhenAFilterRemovesItselfOrANewerOne) {
    const auto a = loop.Add(first);
    auto b = loop.Add(second);
    auto c = loop.Add(third);
    second.onMessage = [&] {
        b.Reset();
        c.Reset();
    };

    Process();
    EXPECT_EQ(log, "321");

    Process();
    EXPECT_EQ(log, "3211");
}

TEST_F(MessageLoopTest, AsksAFilterThatAnotherAddedFromTheNextMessageOn) {
    MessageLoop::Registration added;
    const auto a = loop.Add(first);
    first.onMessage = [&] {
        first.onMessage = nullptr;
        added = loop.Add(second);
    };

    Process();
    EXPECT_EQ(log, "1");

    Process();
    EXPECT_EQ(log, "121");
}

TEST_F(MessageLoopTest, RunsUntilItIsToldToQuit) {
    const auto a = loop.Add(first);
    ::PostMessageW(Host(), WM_COMMAND, 1, 0);
    ::PostQuitMessage(3);

    EXPECT_EQ(loop.Run(), 3);
    EXPECT_EQ(Arrived(), 1);
    // The message that ends the loop is not a filter's business.
    EXPECT_EQ(log, "1");
}

} // namespace
} // namespace fw
