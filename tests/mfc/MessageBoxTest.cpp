#include <gtest/gtest.h>

#include "Controls.h"
#include "ModalScript.h"
#include "TestDialog.h"

namespace {

TEST(MessageBox, ShowsItsTextUnderTheProgramsNameAndGivesTheButton)
{
    const kztest::ModalScript script([] {
        const HWND box = kztest::WaitForDialog();
        EXPECT_EQ(kztest::TextOf(box), L"Tests");
        EXPECT_EQ(kztest::TextOf(box, 0xFFFF), L"Are you sure?");
        kztest::PostClick(box, IDNO);
    });
    EXPECT_EQ(AfxMessageBox(L"Are you sure?", MB_YESNO), IDNO);
}

TEST(MessageBox, BelongsToTheDialogThatIsOpen)
{
    TestDialog dialog;
    dialog.pressed = [] { AfxMessageBox(L"inside"); };
    const kztest::ModalScript script([] {
        const HWND window = kztest::WaitForDialog();
        kztest::PostClick(window, IDC_BUTTON);
        const HWND box = kztest::WaitForDialog({window});
        EXPECT_EQ(::GetWindow(box, GW_OWNER), window);
        EXPECT_FALSE(::IsWindowEnabled(window));
        kztest::AnswerMessageBox(L"inside", IDOK);
        EXPECT_TRUE(::IsWindowEnabled(window));
        kztest::Click(window, IDOK);
    });
    EXPECT_EQ(dialog.DoModal(), IDOK);
}

}  // namespace
