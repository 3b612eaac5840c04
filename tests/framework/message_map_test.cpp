#include "framework/message_map.h"

#include <gmock/gmock.h>

#include <string>

// Two entries of one map for the same message, and command ranges that overlap, do not compile; no test can show it.
namespace fw {
namespace {

// A map is a pure function: none of these tests needs a window.
class Mixin {
public:
    static constexpr auto Messages() {
        return MessageMap{
            On<WM_CLOSE>(&Mixin::OnClose),
            On<WM_DESTROY>(&Mixin::OnDestroy),
            On<WM_APP + 20>(&Mixin::OnOwn),
        };
    }
    std::string mixinLog;

private:
    Reply OnClose() {
        mixinLog += "close;";
        return 11;
    }
    void OnDestroy() { mixinLog += "destroy;"; }
    int OnOwn(const Message&) { return 12; }
};

class Target : public Mixin {
public:
    static constexpr auto Messages() {
        return MessageMap{
            On<WM_CREATE>(&Target::OnCreate),
            On<WM_TIMER>(&Target::OnTimer),
            On<WM_CLOSE>(&Target::OnClose),
            On<WM_DESTROY>(&Target::OnDestroy),
            On<WM_SHOWWINDOW>(&Target::OnShow),
            On<WM_SIZE>(&Target::OnSize),
            On<WM_ACTIVATE>(&Target::OnActivate),
            On<WM_MOUSEMOVE>(&Target::OnMouseMove),
            On<WM_CTLCOLORSTATIC>(&Target::OnColour),
            On<WM_APP + 1>(&Target::OnRaw),
            On<WM_APP + 2>(&Target::OnFlag),
            OnReflected<WM_DRAWITEM>(&Target::OnDraw),
            OnCommand<100>(&Target::OnSingle),
            OnCommand<200, 210>(&Target::OnRange),
            OnControl<200, 210, EN_CHANGE>(&Target::OnChange),
            OnControl<300, 300, CBN_SELCHANGE>(&Target::OnSelect),
            OnNotify<400, NM_CLICK>(&Target::OnNotifyClick),
            Chain<Mixin>(),
        };
    }
    std::string log;

private:
    void Log(const std::string& what) { log += what + ";"; }

    int OnCreate(const CREATESTRUCTW& create) {
        Log("create " + std::to_string(create.cx));
        return -1;
    }
    Reply OnTimer(UINT_PTR id) {
        if (id != 7) return kPassOn;
        Log("timer");
        return 0;
    }
    Reply OnClose() {
        Log("close");
        return kPassOn;
    }
    void OnDestroy() { Log("destroy"); }
    void OnShow(bool visible) { Log(visible ? "show" : "hide"); }
    void OnSize(UINT kind, SIZE size) {
        Log("size " + std::to_string(kind) + " " + std::to_string(size.cx) + "x" + std::to_string(size.cy));
    }
    void OnActivate(UINT state, bool minimised) {
        Log("activate " + std::to_string(state) + (minimised ? " minimised" : ""));
    }
    void OnMouseMove(UINT keys, POINT at) {
        Log("mouse " + std::to_string(keys) + " " + std::to_string(at.x) + "," + std::to_string(at.y));
    }
    HBRUSH OnColour(const Message& m) { return reinterpret_cast<HBRUSH>(m.wparam); }
    LRESULT OnRaw(const Message& m) { return static_cast<LRESULT>(m.wparam) + m.lparam; }
    bool OnFlag(const Message& m) { return m.wparam != 0; }
    void OnDraw(const DRAWITEMSTRUCT& item) { Log("draw " + std::to_string(item.CtlID)); }
    void OnSingle() { Log("single"); }
    void OnRange(UINT id) { Log("range " + std::to_string(id)); }
    void OnChange(UINT id) { Log("change " + std::to_string(id)); }
    void OnSelect() { Log("select"); }
    LRESULT OnNotifyClick(const NMHDR& header) { return static_cast<LRESULT>(header.idFrom) + 1; }
};

class MessageMapTest : public testing::Test {
protected:
    Reply Offer(UINT id, WPARAM wparam = 0, LPARAM lparam = 0) {
        static constexpr auto map = Target::Messages();
        return map(target, {nullptr, id, wparam, lparam});
    }
    Reply OfferReflected(UINT id, WPARAM wparam, LPARAM lparam) {
        static constexpr auto map = Target::Messages();
        return map(target, {nullptr, id, wparam, lparam, true});
    }
    // A notification of a control; 1 stands for its window.
    Reply OfferCommand(UINT id, UINT code, LPARAM control) { return Offer(WM_COMMAND, MAKEWPARAM(id, code), control); }

    Target target;
};

TEST_F(MessageMapTest, PassesOnWhatItHasNoEntryFor) {
    EXPECT_FALSE(Offer(WM_PAINT));
    EXPECT_FALSE(OfferCommand(101, 0, 0));
}

TEST_F(MessageMapTest, AnswersZeroForAHandlerWithoutAResult) {
    EXPECT_EQ(Offer(WM_SHOWWINDOW, TRUE), Reply{0});
    EXPECT_EQ(Offer(WM_SHOWWINDOW, FALSE), Reply{0});
    EXPECT_EQ(target.log, "show;hide;");
}

TEST_F(MessageMapTest, AnswersWithTheHandlersResult) {
    CREATESTRUCTW create{};
    create.cx = 640;

    EXPECT_EQ(Offer(WM_CREATE, 0, reinterpret_cast<LPARAM>(&create)), Reply{-1});
    EXPECT_EQ(target.log, "create 640;");
    EXPECT_EQ(Offer(WM_CTLCOLORSTATIC, 0x1234), Reply{0x1234});
    EXPECT_EQ(Offer(WM_APP + 2, 5), Reply{1});
    EXPECT_EQ(Offer(WM_APP + 2, 0), Reply{0});
}

TEST_F(MessageMapTest, GivesTheRawMessageToAHandlerThatAsksForIt) {
    EXPECT_EQ(Offer(WM_APP + 1, 40, 2), Reply{42});
}

TEST_F(MessageMapTest, TellsADeclinedMessageFromOneAnsweredWithZero) {
    EXPECT_EQ(Offer(WM_TIMER, 7), Reply{0});
    EXPECT_EQ(Offer(WM_TIMER, 8), Reply{});
    EXPECT_EQ(target.log, "timer;");
}

TEST_F(MessageMapTest, HandsADeclinedMessageToTheChainedMap) {
    EXPECT_EQ(Offer(WM_CLOSE), Reply{11});
    EXPECT_EQ(target.log, "close;");
    EXPECT_EQ(target.mixinLog, "close;");
}

TEST_F(MessageMapTest, KeepsAnAnsweredMessageFromTheChainedMap) {
    EXPECT_EQ(Offer(WM_DESTROY), Reply{0});
    EXPECT_EQ(target.mixinLog, "");
}

TEST_F(MessageMapTest, AsksTheChainedMapForWhatItHasNoEntryFor) {
    EXPECT_EQ(Offer(WM_APP + 20), Reply{12});
}

TEST_F(MessageMapTest, ReadsSignedMouseCoordinates) {
    Offer(WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(-5, -300));

    EXPECT_EQ(target.log, "mouse 1 -5,-300;");
}

TEST_F(MessageMapTest, UnpacksWords) {
    Offer(WM_SIZE, SIZE_MAXIMIZED, MAKELPARAM(40000, 32));
    Offer(WM_ACTIVATE, MAKEWPARAM(WA_CLICKACTIVE, 1));
    Offer(WM_ACTIVATE, MAKEWPARAM(WA_INACTIVE, 0));

    EXPECT_EQ(target.log, "size 2 40000x32;activate 2 minimised;activate 0;");
}

TEST_F(MessageMapTest, TakesMenuAcceleratorAndClickForOneCommand) {
    EXPECT_TRUE(OfferCommand(100, 0, 0));
    EXPECT_TRUE(OfferCommand(100, 1, 0));
    EXPECT_TRUE(OfferCommand(100, BN_CLICKED, 1));

    EXPECT_EQ(target.log, "single;single;single;");
}

TEST_F(MessageMapTest, TakesNoOtherNotificationForACommand) {
    EXPECT_FALSE(OfferCommand(100, BN_SETFOCUS, 1));
    EXPECT_FALSE(OfferCommand(100, EN_CHANGE, 1));
    // The code of an accelerator, but sent by a control.
    EXPECT_FALSE(OfferCommand(100, CBN_SELCHANGE, 1));

    EXPECT_EQ(target.log, "");
}

TEST_F(MessageMapTest, GivesTheIdentifierOfACommandInARange) {
    EXPECT_FALSE(OfferCommand(199, 0, 0));
    EXPECT_TRUE(OfferCommand(200, 0, 0));
    EXPECT_TRUE(OfferCommand(210, 1, 0));
    EXPECT_FALSE(OfferCommand(211, 0, 0));

    EXPECT_EQ(target.log, "range 200;range 210;");
}

TEST_F(MessageMapTest, TellsAControlsNotificationFromACommandOfTheSameIdentifier) {
    EXPECT_TRUE(OfferCommand(205, EN_CHANGE, 1));
    EXPECT_TRUE(OfferCommand(300, CBN_SELCHANGE, 1));
    EXPECT_FALSE(OfferCommand(300, CBN_DROPDOWN, 1));

    EXPECT_EQ(target.log, "change 205;select;");
}

TEST_F(MessageMapTest, FindsANotificationByIdentifierAndCode) {
    NMHDR header{nullptr, 400, static_cast<UINT>(NM_CLICK)};
    EXPECT_EQ(Offer(WM_NOTIFY, 400, reinterpret_cast<LPARAM>(&header)), Reply{401});

    header.code = static_cast<UINT>(NM_RCLICK);
    EXPECT_FALSE(Offer(WM_NOTIFY, 400, reinterpret_cast<LPARAM>(&header)));

    header = {nullptr, 401, static_cast<UINT>(NM_CLICK)};
    EXPECT_FALSE(Offer(WM_NOTIFY, 401, reinterpret_cast<LPARAM>(&header)));
}

TEST_F(MessageMapTest, TellsAReflectedMessageFromOneOfItsOwn) {
    DRAWITEMSTRUCT item{};
    item.CtlID = 9;

    EXPECT_FALSE(Offer(WM_DRAWITEM, 9, reinterpret_cast<LPARAM>(&item)));
    EXPECT_TRUE(OfferReflected(WM_DRAWITEM, 9, reinterpret_cast<LPARAM>(&item)));
    EXPECT_EQ(target.log, "draw 9;");
}

TEST_F(MessageMapTest, KeepsAReflectedMessageFromWhoeverWaitsForOneOfItsOwn) {
    NMHDR header{nullptr, 400, static_cast<UINT>(NM_CLICK)};

    EXPECT_FALSE(OfferReflected(WM_SIZE, SIZE_RESTORED, MAKELPARAM(300, 40)));
    EXPECT_FALSE(OfferReflected(WM_COMMAND, MAKEWPARAM(205, EN_CHANGE), 1));
    EXPECT_FALSE(OfferReflected(WM_NOTIFY, 400, reinterpret_cast<LPARAM>(&header)));
    EXPECT_EQ(target.log, "");
}

TEST_F(MessageMapTest, TakesNoMessageNumberForAReflectedMessage) {
    // Those in between are the program's own, and some of them are mapped here.
    for (UINT number = WM_USER; number < WM_APP; ++number) EXPECT_FALSE(Offer(number, 9, 1)) << number;
    for (UINT number = 0xC000; number <= 0xFFFF; ++number) EXPECT_FALSE(Offer(number, 9, 1)) << number;
    EXPECT_EQ(target.log, "");
}

} // namespace
} // namespace fw
