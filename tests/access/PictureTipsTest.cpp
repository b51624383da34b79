// Tool tips on buttons that show a picture alone.
#include <gmock/gmock.h>

#include "Controls.h"
#include "EveryDialog.h"
#include "SelectVarControls.h"
#include "ToolTips.h"

namespace {

using kztest::TextsOf;
using kztest::TipsOf;

void MoveMouseOver(HWND control)
{
    ::PostMessageW(control, WM_MOUSEMOVE, 0, MAKELPARAM(2, 2));
    MSG waiting;
    while (::PeekMessageW(&waiting, nullptr, 0, 0, PM_NOREMOVE))
        AfxPumpMessage();
}

class PictureTips : public testing::TestWithParam<KZLanguage> {
protected:
    PictureTips() { KZQuorvelantaSetup::Get()->SetLanguage(GetParam()); }

    DialogUser m_user;
};

TEST_P(PictureTips, ComeWithTheFirstMovementOfTheMouse)
{
    m_user.Use(OpenDialog::Selection, [](HWND dialog) {
        EXPECT_FALSE(TipsOf(dialog));
        MoveMouseOver(FindControl(dialog, IDC_GENERAL_NET_ROW));
        const HWND tips = TipsOf(dialog);
        ASSERT_TRUE(tips);
        MoveMouseOver(FindControl(dialog, IDC_GENERAL_NET_BOX));
        EXPECT_EQ(TipsOf(dialog), tips);
    });
}

TEST_P(PictureTips, SayWhatTheButtonIsCalled)
{
    m_user.Use(OpenDialog::Selection, [this](HWND dialog) {
        MoveMouseOver(dialog);
        const auto tips = TextsOf(TipsOf(dialog));
        EXPECT_EQ(tips.size(), 40U);
        for (const auto& [window, text] : tips) {
            EXPECT_EQ(text, m_user.accessibility.names[window]);
            EXPECT_EQ(::GetWindowTextLengthW(window), 0);
        }
        for (const HWND control : kztest::WorkableControls(dialog)) {
            const bool hasTip = ::GetWindowTextLengthW(control) == 0 && kztest::ClassOf(control) == L"Button";
            EXPECT_EQ(tips.count(control), hasTip ? 1U : 0U) << ::GetDlgCtrlID(control);
        }
    });
}

TEST_P(PictureTips, AreNotMadeWhereEveryButtonHasAText)
{
    for (const OpenDialog dialog : {OpenDialog::Device, OpenDialog::Limits, OpenDialog::Units}) {
        m_user.Use(dialog, [](HWND window) {
            MoveMouseOver(window);
            EXPECT_FALSE(TipsOf(window));
        });
    }
}

INSTANTIATE_TEST_SUITE_P(Languages, PictureTips, testing::Values(KZLanguage::English, KZLanguage::Spanish),
                         [](const auto& instance) {
                             return instance.param == KZLanguage::English ? "English" : "Spanish";
                         });

}  // namespace
