#include "framework/window.h"

#include <gmock/gmock.h>

#include <cstdio>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>

#include "framework/abnormal_end.h"

#include "tests/support/window_test.h"

namespace fw {
namespace {

// A window that tells what happens to it.
class LoggedWindow final : public Window<LoggedWindow> {
public:
    static constexpr WindowClass kClass{.name = L"KorvaneTestLogged_WndClass"};
    static constexpr auto Messages() {
        return MessageMap{
            On<WM_CREATE>(&LoggedWindow::OnCreate),   On<WM_DESTROY>(&LoggedWindow::OnDestroy),
            On<WM_APP>(&LoggedWindow::OnCall),        On<WM_APP + 1>(&LoggedWindow::OnNested),
            On<WM_SETTEXT>(&LoggedWindow::OnSetText),
        };
    }

    explicit LoggedWindow(std::string& log) : log_{log} {}

    std::function<void()> onCreate;
    std::function<void()> onCall;
    bool refusesToBeCreated = false;
    bool deletesItself = false;

protected:
    void OnFinalMessage() override {
        log_ += Handle() ? "final while bound;" : "final;";
        if (deletesItself) delete this;
    }

private:
    int OnCreate(const CREATESTRUCTW&) {
        log_ += "create;";
        if (onCreate) onCreate();
        return refusesToBeCreated ? -1 : 0;
    }
    Reply OnDestroy() {
        log_ += "destroy;";
        return kPassOn;
    }
    LRESULT OnCall(const Message& m) {
        log_ += "call;";
        if (onCall) onCall();
        return static_cast<LRESULT>(m.wparam);
    }
    LRESULT OnNested(const Message& m) {
        // The result of the inner message must not become that of the outer one.
        const LRESULT inner = ::SendMessageW(m.window, WM_APP, 5, 0);
        return inner * 10;
    }
    Reply OnSetText(const Message&) {
        log_ += "text;";
        return kPassOn;
    }

    std::string& log_;
};

// A class of our own over the system's button.
class OwnButton final : public Window<OwnButton> {
public:
    static constexpr WindowClass kClass{.name = L"KorvaneTestButton_WndClass", .base = L"BUTTON"};
    static constexpr auto Messages() {
        return MessageMap{
            OnReflected<WM_COMMAND>(&OwnButton::OnReflectedCommand),
            OnReflected<WM_NOTIFY>(&OwnButton::OnReflectedNotify),
            OnReflected<WM_DRAWITEM>(&OwnButton::OnDraw),
            On<WM_APP>(&OwnButton::OnCall),
        };
    }
    int commands = 0;
    int notifications = 0;
    int drawings = 0;
    bool declines = false;

private:
    Reply OnReflectedCommand(const Message&) {
        ++commands;
        return declines ? Reply{} : Reply{0};
    }
    void OnReflectedNotify(const Message&) { ++notifications; }
    void OnDraw(const DRAWITEMSTRUCT&) { ++drawings; }
    LRESULT OnCall(const Message&) { return 99; }
};

class WindowLifeTest : public korvane::test::WindowTest {
protected:
    std::string log;
};

TEST_F(WindowLifeTest, ObjectIsFoundByItsWindow) {
    LoggedWindow window{log};
    EXPECT_EQ(window.Handle(), nullptr);

    ASSERT_TRUE(window.Create({.style = WS_CHILD, .parent = Host()}));

    EXPECT_TRUE(::IsWindow(window.Handle()));
    EXPECT_EQ(WindowObject::From(window.Handle()), &window);
    EXPECT_EQ(Send(window.Handle(), WM_APP, 17), 17);
}

TEST_F(WindowLifeTest, ForeignWindowHasNoObject) {
    EXPECT_EQ(WindowObject::From(::GetDesktopWindow()), nullptr);
    EXPECT_EQ(WindowObject::From(nullptr), nullptr);
}

TEST_F(WindowLifeTest, CreationTakesTheOptions) {
    LoggedWindow window{log};
    ASSERT_TRUE(window.Create({.text = L"名前",
                               .rect = {10, 20, 110, 70},
                               .style = WS_CHILD,
                               .extendedStyle = WS_EX_CLIENTEDGE,
                               .parent = Host(),
                               .id = 77}));

    wchar_t text[16] = L"";
    ::GetWindowTextW(window.Handle(), text, 16);
    EXPECT_STREQ(text, L"名前");
    EXPECT_EQ(::GetDlgCtrlID(window.Handle()), 77);
    EXPECT_EQ(::GetParent(window.Handle()), Host());
    EXPECT_EQ(WindowRect(window.Handle()).Extent(), (korvane::base::Size{100, 50}));
    EXPECT_NE(::GetWindowLongPtrW(window.Handle(), GWL_EXSTYLE) & WS_EX_CLIENTEDGE, 0);
}

TEST_F(WindowLifeTest, ObjectOutlivesItsWindow) {
    LoggedWindow window{log};
    ASSERT_TRUE(window.Create({.style = WS_CHILD, .parent = Host()}));
    const HWND handle = window.Handle();

    ::DestroyWindow(handle);

    EXPECT_EQ(window.Handle(), nullptr);
    EXPECT_EQ(WindowObject::From(handle), nullptr);
    EXPECT_EQ(log, "create;destroy;final;");
}

TEST_F(WindowLifeTest, ObjectCanMakeAWindowAgain) {
    LoggedWindow window{log};
    ASSERT_TRUE(window.Create({.style = WS_CHILD, .parent = Host()}));
    ::DestroyWindow(window.Handle());

    ASSERT_TRUE(window.Create({.style = WS_CHILD, .parent = Host()}));

    EXPECT_EQ(WindowObject::From(window.Handle()), &window);
}

TEST_F(WindowLifeTest, ObjectTakesItsWindowAlongWithoutHearingOfIt) {
    HWND handle = nullptr;
    {
        LoggedWindow window{log};
        ASSERT_TRUE(window.Create({.style = WS_CHILD, .parent = Host()}));
        handle = window.Handle();
    }

    EXPECT_FALSE(::IsWindow(handle));
    EXPECT_EQ(WindowObject::From(handle), nullptr);
    EXPECT_EQ(log, "create;");
}

TEST_F(WindowLifeTest, ChildDiesWithItsParent) {
    LoggedWindow parent{log};
    ASSERT_TRUE(parent.Create({.style = WS_POPUP}));
    LoggedWindow child{log};
    ASSERT_TRUE(child.Create({.style = WS_CHILD, .parent = parent.Handle()}));
    log.clear();

    ::DestroyWindow(parent.Handle());

    EXPECT_EQ(child.Handle(), nullptr);
    EXPECT_EQ(parent.Handle(), nullptr);
    EXPECT_EQ(log, "destroy;destroy;final;final;");
}

TEST_F(WindowLifeTest, AnOwnersPopUpsGoBeforeItWhenItAsksForThat) {
    LoggedWindow owner{log};
    ASSERT_TRUE(owner.Create({.style = WS_POPUP}));
    auto* const popUp = new LoggedWindow{log};
    popUp->deletesItself = true;
    ASSERT_TRUE(popUp->Create({.style = WS_POPUP, .parent = owner.Handle()}));
    std::string logOfOwned;
    LoggedWindow ownedByPopUp{logOfOwned};
    ASSERT_TRUE(ownedByPopUp.Create({.style = WS_POPUP, .parent = popUp->Handle()}));
    LoggedWindow another{log};
    ASSERT_TRUE(another.Create({.style = WS_POPUP}));
    const HWND foreign =
        ::CreateWindowExW(0, L"STATIC", L"", WS_POPUP, 0, 0, 0, 0, owner.Handle(), nullptr, nullptr, nullptr);
    log.clear();
    logOfOwned.clear();

    DestroyOwnedPopUps(owner.Handle());

    EXPECT_EQ(log, "destroy;final;");
    EXPECT_EQ(logOfOwned, "destroy;final;");
    EXPECT_NE(owner.Handle(), nullptr);
    EXPECT_NE(another.Handle(), nullptr);
    EXPECT_TRUE(::IsWindow(foreign)) << "which its own object takes care of";
}

// Anything, as a pointer.
constexpr LPARAM kWildPointer = 0x44332211;

TEST_F(WindowLifeTest, IsBoundOnceHoweverOftenItIsToldOfItsCreation) {
    LoggedWindow window{log};
    ASSERT_TRUE(window.Create({.text = L"name", .style = WS_CHILD, .parent = Host()}));
    log.clear();

    EXPECT_EQ(Send(window.Handle(), WM_NCCREATE, 0, kWildPointer), FALSE);
    EXPECT_EQ(Send(window.Handle(), WM_CREATE, 0, kWildPointer), 0);

    EXPECT_EQ(WindowObject::From(window.Handle()), &window);
    EXPECT_EQ(log, "");
    EXPECT_EQ(Send(window.Handle(), WM_APP, 17), 17);
}

TEST_F(WindowLifeTest, IsNotBoundToAWindowThatIsCreatedMeanwhile) {
    LoggedWindow outer{log};
    LoggedWindow inner{log};
    outer.onCreate = [&] { EXPECT_TRUE(inner.Create({.style = WS_CHILD, .parent = Host()})); };

    ASSERT_TRUE(outer.Create({.style = WS_CHILD, .parent = Host()}));

    EXPECT_EQ(WindowObject::From(outer.Handle()), &outer);
    EXPECT_EQ(WindowObject::From(inner.Handle()), &inner);
    EXPECT_NE(outer.Handle(), inner.Handle());
}

TEST_F(WindowLifeTest, CanBeCreatedAnewWithANewWindow) {
    LoggedWindow window{log};
    ASSERT_TRUE(window.Create({.style = WS_CHILD, .parent = Host()}));
    ::DestroyWindow(window.Handle());
    log.clear();

    ASSERT_TRUE(window.Create({.style = WS_CHILD, .parent = Host()}));

    EXPECT_EQ(log, "create;");
}

TEST_F(WindowLifeTest, NoWindowComesToBeThatNothingStandsBehind) {
    LoggedWindow window{log};
    ASSERT_TRUE(window.Create({.style = WS_CHILD, .parent = Host()}));

    EXPECT_EQ(::CreateWindowExW(0, LoggedWindow::kClass.name, L"", WS_CHILD, 0, 0, 0, 0, Host(), nullptr,
                                ::GetModuleHandleW(nullptr), reinterpret_cast<void*>(kWildPointer)),
              nullptr);
}

TEST_F(WindowLifeTest, AnExceptionFromAHandlerEndsTheProcessAfterItsLastAct) {
    EXPECT_EXIT(
        {
            GuardAgainstAbnormalEnd();
            SetLastAct([] {
                std::fputs("the last act", stderr);
                std::fflush(stderr);
            });
            LoggedWindow window{log};
            window.onCall = [] { throw std::runtime_error{"of a handler"}; };
            (void)window.Create({.style = WS_CHILD, .parent = Host()});
            Send(window.Handle(), WM_APP);
            std::fputs("went on", stderr);
        },
        testing::ExitedWithCode(kExitUnhandledException), "the last act$");
}

TEST_F(WindowLifeTest, RefusedCreationLeavesNothingBehind) {
    LoggedWindow window{log};
    window.refusesToBeCreated = true;

    EXPECT_FALSE(window.Create({.style = WS_CHILD, .parent = Host()}));

    EXPECT_EQ(window.Handle(), nullptr);
    EXPECT_EQ(::GetWindow(Host(), GW_CHILD), nullptr);
}

TEST_F(WindowLifeTest, ObjectMayDeleteItselfAtTheEnd) {
    auto* const window = new LoggedWindow{log};
    window->deletesItself = true;
    ASSERT_TRUE(window->Create({.style = WS_CHILD, .parent = Host()}));

    ::DestroyWindow(window->Handle());

    EXPECT_EQ(log, "create;destroy;final;");
}

TEST_F(WindowLifeTest, HandlerMayDestroyItsObject) {
    auto window = std::make_unique<LoggedWindow>(log);
    ASSERT_TRUE(window->Create({.style = WS_CHILD, .parent = Host()}));
    const HWND handle = window->Handle();
    window->onCall = [&] {
        // The function itself goes with the object, so it must not be running from inside it.
        auto doomed = std::move(window);
        auto self = std::move(doomed->onCall);
        doomed.reset();
    };

    EXPECT_EQ(Send(handle, WM_APP, 3), 3);

    EXPECT_FALSE(::IsWindow(handle));
    EXPECT_EQ(window, nullptr);
}

TEST_F(WindowLifeTest, HandlerMayDestroyItsWindow) {
    LoggedWindow window{log};
    ASSERT_TRUE(window.Create({.style = WS_CHILD, .parent = Host()}));
    window.onCall = [&] { ::DestroyWindow(window.Handle()); };

    EXPECT_EQ(Send(window.Handle(), WM_APP, 4), 4);

    EXPECT_EQ(window.Handle(), nullptr);
}

TEST_F(WindowLifeTest, NestedMessagesKeepTheirOwnResults) {
    LoggedWindow window{log};
    ASSERT_TRUE(window.Create({.style = WS_CHILD, .parent = Host()}));

    EXPECT_EQ(Send(window.Handle(), WM_APP + 1), 50);
}

TEST_F(WindowLifeTest, PassedOnMessageReachesTheDefaultProcedure) {
    LoggedWindow window{log};
    ASSERT_TRUE(window.Create({.style = WS_CHILD, .parent = Host()}));

    Send(window.Handle(), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L"new"));

    wchar_t text[8] = L"";
    ::GetWindowTextW(window.Handle(), text, 8);
    EXPECT_STREQ(text, L"new");
    EXPECT_EQ(log, "create;text;");
}

class SuperclassTest : public korvane::test::WindowTest {
protected:
    void SetUp() override {
        WindowTest::SetUp();
        ASSERT_TRUE(button.Create({.text = L"button",
                                   .rect = {0, 0, 100, 30},
                                   .style = WS_CHILD | WS_VISIBLE | BS_AUTOCHECKBOX,
                                   .parent = Host(),
                                   .id = 42}));
    }
    OwnButton button;
};

TEST_F(SuperclassTest, BehavesAsItsBaseDoes) {
    Click(button.Handle());

    EXPECT_EQ(host.CommandCount(42, BN_CLICKED), 1);
    EXPECT_EQ(Send(button.Handle(), BM_GETCHECK), BST_CHECKED);
}

TEST_F(SuperclassTest, AnswersItsOwnMessagesItself) {
    EXPECT_EQ(Send(button.Handle(), WM_APP), 99);
}

TEST_F(SuperclassTest, ServesManyButtonsAndLeavesTheSystemsAlone) {
    OwnButton another;
    ASSERT_TRUE(another.Create({.style = WS_CHILD | BS_PUSHBUTTON, .parent = Host(), .id = 43}));
    const HWND plain = ::CreateWindowExW(0, L"BUTTON", L"", WS_CHILD, 0, 0, 10, 10, Host(), nullptr, nullptr, nullptr);

    EXPECT_EQ(Send(another.Handle(), WM_APP), 99);
    EXPECT_EQ(Send(plain, WM_APP), 0);
    EXPECT_EQ(Send(another.Handle(), WM_GETDLGCODE) & DLGC_BUTTON, DLGC_BUTTON);
}

TEST_F(SuperclassTest, EndsInItsBaseWhenTheObjectDiesFirst) {
    HWND handle = nullptr;
    {
        OwnButton shortLived;
        ASSERT_TRUE(shortLived.Create({.style = WS_CHILD | BS_PUSHBUTTON, .parent = Host(), .id = 43}));
        handle = shortLived.Handle();
    }

    EXPECT_FALSE(::IsWindow(handle));
}

TEST_F(SuperclassTest, GetsItsNotificationsBackFromTheHost) {
    Click(button.Handle());

    EXPECT_EQ(button.commands, host.CommandCount(42, BN_CLICKED));
    EXPECT_EQ(button.commands, 1);
}

TEST_F(SuperclassTest, IsFoundInEveryKindOfReflectedMessage) {
    NMHDR header{button.Handle(), 42, static_cast<UINT>(NM_CLICK)};
    Send(Host(), WM_NOTIFY, 42, reinterpret_cast<LPARAM>(&header));
    DRAWITEMSTRUCT item{};
    item.hwndItem = button.Handle();
    Send(Host(), WM_DRAWITEM, 42, reinterpret_cast<LPARAM>(&item));

    EXPECT_EQ(button.notifications, 1);
    EXPECT_EQ(button.drawings, 1);
}

TEST_F(SuperclassTest, HearsNoMessageOfAnotherAsReflected) {
    DRAWITEMSTRUCT item{};
    item.hwndItem = button.Handle();
    // Where others keep such numbers.
    constexpr UINT kElsewhere = WM_USER + 0x1C00;

    Send(button.Handle(), WM_DRAWITEM, 42, reinterpret_cast<LPARAM>(&item));
    Send(button.Handle(), WM_DRAWITEM + kElsewhere, 42, kWildPointer);
    Send(button.Handle(), WM_COMMAND + kElsewhere, 42, kWildPointer);
    ::PostMessageW(button.Handle(), WM_NOTIFY + kElsewhere, 42, kWildPointer);
    Pump();

    EXPECT_EQ(button.drawings, 0);
    EXPECT_EQ(button.commands, 0);
    EXPECT_EQ(button.notifications, 0);
}

TEST_F(SuperclassTest, YieldsAnEmptyReplyWhenItDeclines) {
    const auto lparam = reinterpret_cast<LPARAM>(button.Handle());
    EXPECT_EQ(WindowObject::Reflect({Host(), WM_COMMAND, MAKEWPARAM(42, BN_CLICKED), lparam}), Reply{0});

    button.declines = true;

    EXPECT_EQ(WindowObject::Reflect({Host(), WM_COMMAND, MAKEWPARAM(42, BN_CLICKED), lparam}), Reply{});
}

TEST_F(SuperclassTest, GetsNothingThatHasNoSender) {
    EXPECT_EQ(WindowObject::Reflect({Host(), WM_COMMAND, 42, 0}), Reply{});
    EXPECT_EQ(WindowObject::Reflect({Host(), WM_SIZE, 0, reinterpret_cast<LPARAM>(button.Handle())}), Reply{});
    EXPECT_EQ(button.commands, 0);
}

class WithoutBase final : public Window<WithoutBase> {
public:
    static constexpr WindowClass kClass{.name = L"KorvaneTestWithoutBase_WndClass", .base = L"NO SUCH CLASS"};
    static constexpr auto Messages() { return MessageMap{}; }
};

TEST_F(WindowLifeTest, SuperclassOfNothingCannotBeCreated) {
    WithoutBase window;

    EXPECT_FALSE(window.Create({.style = WS_CHILD, .parent = Host()}));
    EXPECT_EQ(window.Handle(), nullptr);
}

} // namespace
} // namespace fw
