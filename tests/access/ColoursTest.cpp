// New system colours while a dialog is open: the pictures on the tabs, whose edges are drawn in the button's colour.
#include "Controls.h"
#include "EveryDialog.h"
#include "LimitsControls.h"
#include "PictureMark.h"
#include "SelectVarControls.h"
#include "SystemColour.h"

namespace {

struct TabbedCase {
    OpenDialog dialog;
    int tabs;
    UINT message;  // that tells of the change
    const char* name;
};

class Colours : public testing::TestWithParam<TabbedCase> {
protected:
    static HIMAGELIST Pictures(HWND dialog)
    {
        return reinterpret_cast<HIMAGELIST>(::SendDlgItemMessageW(dialog, GetParam().tabs, TCM_GETIMAGELIST, 0, 0));
    }
    static std::vector<std::string> Marks(HWND dialog)
    {
        std::vector<std::string> marks;
        for (int picture = 0; picture < 3; ++picture)
            marks.push_back(kztest::PictureMark(Pictures(dialog), picture));
        return marks;
    }

    DialogUser m_user;
};

TEST_P(Colours, OfTheTabsPicturesFollowTheSystems)
{
    std::vector<std::string> followed;
    std::vector<std::string> before;
    m_user.Use(GetParam().dialog, [&](HWND dialog) {
        before = Marks(dialog);
        const kztest::SystemColour dark(COLOR_BTNFACE, RGB(20, 0, 40));
        ::SendMessageW(dialog, GetParam().message, 0, 0);
        followed = Marks(dialog);
        EXPECT_NE(followed, before);
        EXPECT_EQ(::ImageList_GetImageCount(Pictures(dialog)), 3);
    });
    const kztest::SystemColour dark(COLOR_BTNFACE, RGB(20, 0, 40));
    m_user.Use(GetParam().dialog, [&](HWND dialog) { EXPECT_EQ(Marks(dialog), followed) << "as if opened now"; });
}

INSTANTIATE_TEST_SUITE_P(
    Dialogs, Colours,
    testing::Values(TabbedCase{OpenDialog::Limits, IDC_LIMITS_TAB, WM_SYSCOLORCHANGE, "Limits"},
                    TabbedCase{OpenDialog::Selection, IDC_SELECTVAR_TAB, WM_SYSCOLORCHANGE, "Selection"},
                    TabbedCase{OpenDialog::Selection, IDC_SELECTVAR_TAB, WM_THEMECHANGED, "SelectionWithANewTheme"}),
    [](const auto& instance) { return instance.param.name; });

}  // namespace
