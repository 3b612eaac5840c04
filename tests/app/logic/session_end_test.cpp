#include "app/logic/session_end.h"

#include <gtest/gtest.h>

#include <string>

#include "res/ids.h"

using namespace korvane::app;

namespace {

constexpr unsigned long kAccessDenied = 5;
constexpr unsigned long kPrivilegeNotHeld = 1314;

// Answers as it is told and writes a log of what it was asked, one word each.
class FakeSessionHost final : public SessionHost {
public:
    unsigned long privilegeError = 0;
    unsigned long exitError = 0;
    bool answer = false;
    bool messageBoxOpen = false;
    std::string log;

    [[nodiscard]] unsigned long EnableShutdownPrivilege() override {
        log += "privilege ";
        return privilegeError;
    }
    [[nodiscard]] bool Ask(unsigned verbId) override {
        log += "ask:" + std::to_string(verbId) + " ";
        return answer;
    }
    void ShowError(unsigned long code) override { log += "error:" + std::to_string(code) + " "; }
    [[nodiscard]] unsigned long LeaveWindows(unsigned flags) override {
        log += "exit:" + std::to_string(flags) + " ";
        return exitError;
    }
    void SetMessageBoxOpen(bool open) override {
        messageBoxOpen = open;
        log += open ? "open " : "closed ";
    }
};

std::string Asking(unsigned verbId) {
    return "privilege open ask:" + std::to_string(verbId) + " ";
}

} // namespace

TEST(SessionCommandOf, SignsOutFromWindows8On) {
    EXPECT_EQ(SessionCommandOf(4100, true), (SessionCommand{0, IDS_SIGN_OUT_VERB}));
}

TEST(SessionCommandOf, LogsOffBeforeWindows8) {
    EXPECT_EQ(SessionCommandOf(4100, false), (SessionCommand{0, IDS_LOG_OFF_VERB}));
}

TEST(SessionCommandOf, ShutsDownOnEveryWindows) {
    EXPECT_EQ(SessionCommandOf(4101, true), (SessionCommand{1, IDS_SHUT_DOWN_VERB}));
    EXPECT_EQ(SessionCommandOf(4101, false), (SessionCommand{1, IDS_SHUT_DOWN_VERB}));
}

TEST(SessionCommandOf, RestartsOnEveryWindows) {
    EXPECT_EQ(SessionCommandOf(4102, true), (SessionCommand{2, IDS_RESTART_VERB}));
    EXPECT_EQ(SessionCommandOf(4102, false), (SessionCommand{2, IDS_RESTART_VERB}));
}

TEST(SessionCommandOf, RestartsForAnyOtherCommand) {
    for (const unsigned command : {0U, 4099U, 4103U, 65535U})
        EXPECT_EQ(SessionCommandOf(command, true), (SessionCommand{2, IDS_RESTART_VERB})) << command;
}

TEST(EndSession, AsksAndEndsOnYes) {
    FakeSessionHost host;
    host.answer = true;

    EndSession(ID_RESTART, true, host);

    EXPECT_EQ(host.log, Asking(IDS_RESTART_VERB) + "closed exit:2 ");
}

TEST(EndSession, EndsInTheWayThatWasAskedFor) {
    for (const unsigned command : {ID_SIGN_OUT, ID_SHUT_DOWN, ID_RESTART}) {
        FakeSessionHost host;
        host.answer = true;
        const SessionCommand session = SessionCommandOf(command, false);

        EndSession(command, false, host);

        EXPECT_EQ(host.log, Asking(session.verbId) + "closed exit:" + std::to_string(session.flags) + " ");
    }
}

TEST(EndSession, LeavesTheMessageBoxFlagSetWithoutAYes) {
    FakeSessionHost host;
    host.answer = false;

    EndSession(ID_SIGN_OUT, true, host);

    EXPECT_EQ(host.log, Asking(IDS_SIGN_OUT_VERB));
    EXPECT_TRUE(host.messageBoxOpen);
}

TEST(EndSession, ReportsAMissingPrivilegeAndAsksNothing) {
    FakeSessionHost host;
    host.privilegeError = kPrivilegeNotHeld;
    host.answer = true;

    EndSession(ID_SHUT_DOWN, true, host);

    EXPECT_EQ(host.log, "privilege open error:1314 closed ");
    EXPECT_FALSE(host.messageBoxOpen);
}

TEST(EndSession, ReportsThatWindowsRefused) {
    FakeSessionHost host;
    host.answer = true;
    host.exitError = kAccessDenied;

    EndSession(ID_SHUT_DOWN, true, host);

    EXPECT_EQ(host.log, Asking(IDS_SHUT_DOWN_VERB) + "closed exit:1 open error:5 closed ");
    EXPECT_FALSE(host.messageBoxOpen);
}

TEST(EndSession, AsksAgainAfterEveryNo) {
    FakeSessionHost host;

    EndSession(ID_RESTART, true, host);
    EndSession(ID_RESTART, true, host);

    EXPECT_EQ(host.log, Asking(IDS_RESTART_VERB) + Asking(IDS_RESTART_VERB));
}
