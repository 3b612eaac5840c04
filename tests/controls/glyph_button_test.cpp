#include "controls/glyph_button.h"

#include <gtest/gtest.h>

#include "framework/window_text.h"
#include "tests/support/window_test.h"

using namespace korvane;
using namespace korvane::controls;

namespace {

class GlyphButtonTest : public test::WindowTest {
protected:
    void SetUp() override {
        WindowTest::SetUp();
        button = ::CreateWindowExW(0, L"BUTTON", L"参照(&B)", WS_CHILD | BS_PUSHBUTTON | BS_ICON, 0, 0, 24, 24, Host(),
                                   reinterpret_cast<HMENU>(INT_PTR{1011}), nullptr, nullptr);
    }
    [[nodiscard]] LRESULT Picture() const { return Send(button, BM_GETIMAGE, IMAGE_ICON); }

    HWND button = nullptr;
    GlyphButton glyph{&DotsGlyph};
};

TEST_F(GlyphButtonTest, ShowsItsGlyphAndKeepsTheTextForScreenReaders) {
    glyph.Attach(button, L"tip");

    EXPECT_NE(Picture(), 0);
    EXPECT_EQ(fw::WindowText(button), L"参照(&B)");
}

TEST_F(GlyphButtonTest, DrawsTheGlyphAnewWhenTheColoursChange) {
    glyph.Attach(button, L"tip");
    const LRESULT before = Picture();

    glyph.OnColoursChanged();

    EXPECT_NE(Picture(), 0);
    EXPECT_NE(Picture(), before);
}

TEST_F(GlyphButtonTest, HasAGlyphForMenusToo) {
    GlyphButton menu{&MenuGlyph};
    menu.Attach(button, L"tip");

    EXPECT_NE(Picture(), 0);
}

} // namespace
