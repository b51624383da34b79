#include "KZDialogSetup.h"

#include <commctrl.h>
#include <gtest/gtest.h>

#include "KZLoadString.h"
#include "KZQuorvelantaSetup.h"
#include "MessageBoxes.h"
#include "TestDialog.h"

using namespace controls;

namespace {

TEST(DialogSetup, GivesOkAndCancelTheirTextsAndPictures)
{
    for (const KZLanguage language : {KZLanguage::Spanish, KZLanguage::English}) {
        KZQuorvelantaSetup::Get()->SetLanguage(language);
        TestDialog dialog{Push(IDOK, L"?"), Push(IDCANCEL, L"?")};
        CImageButton ok;
        CImageButton cancel;
        ok.SubclassDlgItem(IDOK, dialog.Window());
        cancel.SubclassDlgItem(IDCANCEL, dialog.Window());
        KZSetUpOkCancel(ok, cancel);
        CString text;
        ok.GetWindowText(text);
        EXPECT_EQ(KZBasicString(text), KZLoadString(311));
        cancel.GetWindowText(text);
        EXPECT_EQ(KZBasicString(text), KZLoadString(312));
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
    EXPECT_FALSE(KZLoadProgramIcon());
    TestDialog dialog{};
    KZSetBigIcon(*dialog.Window());
    EXPECT_EQ(dialog.Window()->SendMessage(WM_GETICON, ICON_BIG, 0), 0);
}

TEST(DialogSetup, SetsTheBigIcon)
{
    const HICON icon = ::LoadIconW(nullptr, IDI_APPLICATION);
    TestDialog dialog{};
    KZSetBigIcon(*dialog.Window(), icon);
    EXPECT_EQ(dialog.Window()->SendMessage(WM_GETICON, ICON_BIG, 0), reinterpret_cast<LRESULT>(icon));
}

TEST(DialogSetup, FitsAWindowsHeightToItsLayout)
{
    TestDialog dialog{Push(1)};
    KZVerticalLayout column(dialog.Window());
    column.AddControl(1, KZLayout::Pixels2Size(123).cy);
    CRect before;
    dialog.Window()->GetWindowRect(&before);
    KZFitDialogHeight(*dialog.Window(), column);
    CRect client;
    CRect after;
    dialog.Window()->GetClientRect(&client);
    dialog.Window()->GetWindowRect(&after);
    EXPECT_EQ(client.Height(), 123);
    EXPECT_EQ(after.TopLeft(), before.TopLeft());
    EXPECT_EQ(after.Width(), before.Width());
}

TEST(DialogSetup, ShowsAMessageAndThenSelectsTheFieldsText)
{
    TestDialog dialog{Push(1), Edit(2)};
    ::ShowWindow(dialog.Window()->m_hWnd, SW_SHOW);
    CEdit field;
    field.SubclassDlgItem(2, dialog.Window());
    field.SetWindowText(L"201");
    kztest::MessageBoxes boxes;
    KZShowMessageAndFocus(L"Between 0 and 200, please.", field);
    EXPECT_EQ(boxes.Texts(), (std::vector<std::wstring>{L"Between 0 and 200, please."}));
    EXPECT_EQ(::GetFocus(), field.m_hWnd);
    DWORD start = 9;
    DWORD end = 9;
    field.SendMessage(EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
    EXPECT_EQ(start, 0u);
    EXPECT_EQ(end, 3u);
}

}  // namespace
