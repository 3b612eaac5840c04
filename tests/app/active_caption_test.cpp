#include "app/active_caption.h"

#include "framework/handle.h"
#include "tests/support/message_count.h"
#include "tests/support/window_test.h"

using namespace korvane;

namespace {

class ActiveCaptionTest : public test::WindowTest {
protected:
    static fw::UniqueHandle<HWND, &::DestroyWindow> PopUpOf(HWND owner) {
        return fw::UniqueHandle<HWND, &::DestroyWindow>{::CreateWindowExW(
            WS_EX_NOACTIVATE, L"STATIC", L"", WS_POPUP | WS_VISIBLE, 0, 0, 10, 10, owner, nullptr, nullptr, nullptr)};
    }

    app::ActiveCaption caption;
};

} // namespace

TEST_F(ActiveCaptionTest, LooksActiveWhileAPopUpOfTheWindowIs) {
    const auto popUp = PopUpOf(Host());
    const test::MessageCount painted{Host(), WM_NCACTIVATE};

    caption.OnActivate(Host(), WA_INACTIVE, popUp.Get());

    EXPECT_EQ(painted.Count(), 1);
    EXPECT_EQ(painted.LastWparam(), WPARAM{TRUE});
}

TEST_F(ActiveCaptionTest, LooksActiveWhileAPopUpOfAPopUpIs) {
    const auto dialog = PopUpOf(Host());
    const auto box = PopUpOf(dialog.Get());
    const test::MessageCount painted{Host(), WM_NCACTIVATE};

    caption.OnActivate(Host(), WA_INACTIVE, box.Get());

    EXPECT_EQ(painted.LastWparam(), WPARAM{TRUE});
}

TEST_F(ActiveCaptionTest, APopUpBelongsToItsOwnersOwnerToo) {
    const auto dialog = PopUpOf(Host());
    const auto box = PopUpOf(dialog.Get());
    const auto stranger = PopUpOf(nullptr);

    EXPECT_TRUE(app::BelongsTo(Host(), box.Get()));
    EXPECT_FALSE(app::BelongsTo(Host(), stranger.Get()));
    EXPECT_FALSE(app::BelongsTo(Host(), nullptr));
}

TEST_F(ActiveCaptionTest, IsLeftToWindowsWhereAnotherWindowIsActive) {
    const auto stranger = PopUpOf(nullptr);
    const test::MessageCount painted{Host(), WM_NCACTIVATE};

    caption.OnActivate(Host(), WA_INACTIVE, stranger.Get());
    caption.OnActivate(Host(), WA_INACTIVE, nullptr);
    caption.OnActivateApp(Host(), false);
    caption.OnActivateApp(Host(), true);

    EXPECT_EQ(painted.Count(), 0);
}

TEST_F(ActiveCaptionTest, IsLeftToWindowsWhereTheWindowItselfIsActive) {
    const auto popUp = PopUpOf(Host());
    caption.OnActivate(Host(), WA_INACTIVE, popUp.Get());
    const test::MessageCount painted{Host(), WM_NCACTIVATE};

    caption.OnActivate(Host(), WA_ACTIVE, popUp.Get());
    caption.OnActivateApp(Host(), false);

    EXPECT_EQ(painted.Count(), 0);
}

TEST_F(ActiveCaptionTest, FollowsTheProgramThatLeavesTheFrontAndComesBackWithItsPopUp) {
    const auto popUp = PopUpOf(Host());
    caption.OnActivate(Host(), WA_INACTIVE, popUp.Get());
    const test::MessageCount painted{Host(), WM_NCACTIVATE};

    caption.OnActivateApp(Host(), false);
    EXPECT_EQ(painted.LastWparam(), WPARAM{FALSE});

    caption.OnActivateApp(Host(), true);
    EXPECT_EQ(painted.LastWparam(), WPARAM{TRUE});
}

TEST_F(ActiveCaptionTest, ForgetsAPopUpThatIsGone) {
    auto popUp = PopUpOf(Host());
    caption.OnActivate(Host(), WA_INACTIVE, popUp.Get());
    caption.OnActivateApp(Host(), false);
    popUp.Reset();
    const test::MessageCount painted{Host(), WM_NCACTIVATE};

    caption.OnActivateApp(Host(), true);

    EXPECT_EQ(painted.Count(), 0);
}
