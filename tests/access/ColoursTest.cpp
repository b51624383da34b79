// New system colours while a dialog is open: the pictures on the tabs, whose edges are drawn in the button's colour.
#include <optional>

#include "Controls.h"
#include "EveryDialog.h"
#include "LimitsControls.h"
#include "MemoryFaults.h"
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

    // Changes a colour, of which the system tells the dialog, unless the dialog's procedure is away meanwhile.
    static void ChangeUnnoticed(HWND dialog, std::optional<kztest::SystemColour>& colour)
    {
        const auto nobody = reinterpret_cast<LONG_PTR>(&::DefWindowProcW);
        const LONG_PTR own = ::SetWindowLongPtrW(dialog, GWLP_WNDPROC, nobody);
        colour.emplace(COLOR_BTNFACE, RGB(20, 0, 40));
        ::SetWindowLongPtrW(dialog, GWLP_WNDPROC, own);
    }

    DialogUser m_user;
};

TEST_P(Colours, OfTheTabsPicturesFollowTheSystems)
{
    std::vector<std::string> followed;
    std::optional<kztest::SystemColour> dark;
    m_user.Use(GetParam().dialog, [&](HWND dialog) {
        const std::vector<std::string> before = Marks(dialog);
        ChangeUnnoticed(dialog, dark);
        EXPECT_EQ(Marks(dialog), before);
        ::SendMessageW(dialog, GetParam().message, 0, 0);
        followed = Marks(dialog);
        EXPECT_NE(followed, before);
        EXPECT_EQ(::ImageList_GetImageCount(Pictures(dialog)), 3);
    });
    m_user.Use(GetParam().dialog, [&](HWND dialog) { EXPECT_EQ(Marks(dialog), followed) << "as if opened now"; });
}

TEST_P(Colours, LeaveTheTabsTheirPicturesWhenThereIsNoMemoryForOthers)
{
    m_user.Use(GetParam().dialog, [&](HWND dialog) {
        const MemoryFaults memory({L"KZUsrZEP.dll", L"KZHost.dll", L"KZMfc.dll"});
        const std::vector<std::string> before = Marks(dialog);
        std::optional<kztest::SystemColour> dark;
        ChangeUnnoticed(dialog, dark);
        const auto marksWithout = [&](long allocation) {
            MemoryFaults::Arm(allocation);
            ::SendMessageW(dialog, GetParam().message, 0, 0);
            MemoryFaults::Disarm();
            return Marks(dialog);
        };
        long allocation = 1;
        std::vector<std::string> marks = before;
        while ((marks = marksWithout(allocation)) == before && allocation < 1000)
            ++allocation;
        EXPECT_GT(allocation, 1);
        EXPECT_EQ(marks, marksWithout(0)) << "all pictures or none, without allocation " << allocation;
    });
}

INSTANTIATE_TEST_SUITE_P(
    Dialogs, Colours,
    testing::Values(TabbedCase{OpenDialog::Limits, IDC_LIMITS_TAB, WM_SYSCOLORCHANGE, "Limits"},
                    TabbedCase{OpenDialog::Selection, IDC_SELECTVAR_TAB, WM_SYSCOLORCHANGE, "Selection"},
                    TabbedCase{OpenDialog::Selection, IDC_SELECTVAR_TAB, WM_THEMECHANGED, "SelectionWithANewTheme"}),
    [](const auto& instance) { return instance.param.name; });

}  // namespace
