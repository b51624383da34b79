#include "DialogSetup.h"

#include <commctrl.h>
#include <gtest/gtest.h>

#include "KZQuorvelantaSetup.h"
#include "LayoutPlan.h"
#include "MessageBoxes.h"
#include "TestDialog.h"

using namespace controls;

namespace {

CString TextOf(const CWnd& window)
{
    CString text;
    window.GetWindowText(text);
    return text;
}

TEST(DialogSetup, GivesOkAndCancelTheirTextsAndPictures)
{
    constexpr struct {
        KZLanguage language;
        const wchar_t* cancel;
    } Cases[] = {{KZLanguage::Spanish, L"Cancelar"}, {KZLanguage::English, L"Cancel"}};
    for (const auto& expected : Cases) {
        KZQuorvelantaSetup::Get()->SetLanguage(expected.language);
        TestDialog dialog{Push(IDOK, L"?"), Push(IDCANCEL, L"?")};
        CImageButton ok;
        CImageButton cancel;
        ok.SubclassDlgItem(IDOK, dialog.Window());
        cancel.SubclassDlgItem(IDCANCEL, dialog.Window());
        SetUpOkCancel(ok, cancel);
        EXPECT_STREQ(TextOf(cancel), expected.cancel);
        EXPECT_STRNE(TextOf(ok), L"?");
        for (const CImageButton* button : {&ok, &cancel}) {
            BUTTON_IMAGELIST shown{};
            button->SendMessage(BCM_GETIMAGELIST, 0, reinterpret_cast<LPARAM>(&shown));
            EXPECT_TRUE(shown.himl);
        }
    }
}

TEST(DialogSetup, HasNoIconUntilTheProgramHasOne)
{
    KZQuorvelantaSetup::Get()->SetProgramIDResource(0);
    EXPECT_FALSE(LoadProgramIcon());
}

TEST(DialogSetup, ShowsAMessageAndThenSelectsTheFieldsText)
{
    TestDialog dialog{Push(1), Edit(2)};
    ::ShowWindow(dialog.Window()->m_hWnd, SW_SHOW);
    CEdit field;
    field.SubclassDlgItem(2, dialog.Window());
    field.SetWindowText(L"201");
    kztest::MessageBoxes boxes;
    ShowMessageAndFocus(L"Between 0 and 200, please.", field);
    EXPECT_EQ(boxes.Texts(), (std::vector<std::wstring>{L"Between 0 and 200, please."}));
    EXPECT_EQ(::GetFocus(), field.m_hWnd);
    DWORD start = 9;
    DWORD end = 9;
    field.SendMessage(EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
    EXPECT_EQ(start, 0u);
    EXPECT_EQ(end, 3u);
}

TEST(LayoutPlan, FitsADialogsHeightToItsControls)
{
    TestDialog dialog{Push(1)};
    LayoutPlan plan(*dialog.Window());
    plan.Root().AddControl(1, KZLayout::Pixels2Size(123).cy);
    CRect before;
    dialog.Window()->GetWindowRect(&before);
    plan.FitAndApply();
    CRect client;
    CRect after;
    dialog.Window()->GetClientRect(&client);
    dialog.Window()->GetWindowRect(&after);
    EXPECT_EQ(client.Height(), 123);
    EXPECT_EQ(after.TopLeft(), before.TopLeft());
    EXPECT_EQ(after.Width(), before.Width());
    EXPECT_EQ(dialog.Place(1).Height(), 123);
}

}  // namespace
