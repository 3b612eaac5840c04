// The program on machines unlike the one that the other program tests run on. Each suite here is started on a desktop
// that was prepared for it, see CMakeLists.txt.

#include "tests/program/bar_picture.h"

namespace korvane::test {
namespace {

using testing::ElementsAre;

class On64BitWindows : public ProgramTest {};

TEST_F(On64BitWindows, The32BitEditionPointsToTheOther) {
    const Program program;

    const auto box = program.WaitForBox();

    ASSERT_TRUE(box);
    EXPECT_EQ(box.Caption(), L"Korvane");
    EXPECT_EQ(box.Text(), L"64bit 版 Windows では 64bit 版の Korvane をご利用ください。");
    EXPECT_EQ(box.Icon(), BoxIcon::kInformation);
    EXPECT_THAT(box.Buttons(), ElementsAre(IDOK));
    ASSERT_TRUE(box.Press(IDOK));
    EXPECT_EQ(program.WaitForExit(), 0u);
}

TEST_F(On64BitWindows, The64BitEditionStarts) {
    const Program program{{.program = OwnFolder() + KORVANE_64BIT_PROGRAM}};

    EXPECT_NE(program.WaitForBar(), nullptr);
}

class OnAScreen1023Wide : public ProgramTest {};

TEST_F(OnAScreen1023Wide, TheProgramDoesNotStart) {
    ASSERT_EQ(::GetSystemMetrics(SM_CXSCREEN), 1023);
    const Program program;

    const auto box = program.WaitForBox();

    ASSERT_TRUE(box);
    EXPECT_EQ(box.Caption(), L"Korvane");
    EXPECT_EQ(box.Text(), L"Korvane は 横幅 1,024 ピクセル以上の\n画面解像度でご利用いただけます。");
    EXPECT_EQ(box.Icon(), BoxIcon::kInformation);
    EXPECT_THAT(box.Buttons(), ElementsAre(IDOK));
    ASSERT_TRUE(box.Press(IDOK));
    EXPECT_EQ(program.WaitForExit(), 0u);
}

class OnAScreen1024Wide : public ProgramTest {};

TEST_F(OnAScreen1024Wide, TheProgramStarts) {
    ASSERT_EQ(::GetSystemMetrics(SM_CXSCREEN), 1024);
    const Program program;

    EXPECT_NE(program.WaitForBar(), nullptr);
}

class OnVistaWithTheInterfaceFont : public ProgramTest {};

TEST_F(OnVistaWithTheInterfaceFont, TheProgramStartsWithLowerControls) {
    PretendWindowsIs(L"vista");
    const Program program;
    const HWND bar = program.WaitForBar();
    ASSERT_NE(bar, nullptr);

    ASSERT_TRUE(SetClientWidth(bar, 1280));

    EXPECT_EQ(PictureOf(bar), kFloatingOnVistaAt1280);
}

} // namespace
} // namespace korvane::test
