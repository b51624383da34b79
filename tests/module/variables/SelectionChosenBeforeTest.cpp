// What was chosen before the selection dialog opened: marked, disabled, neither counted nor collected.
#include <afxwin.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "MessageBoxes.h"
#include "SelectVarControls.h"
#include "SelectionFixture.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using zep::Family;

class ChosenBefore : public SelectionTest {};

TEST_F(ChosenBefore, IsMarkedAndDisabled)
{
    m_names = {L"DEV1.ARM5A2L", L"DEV1.HZIN", L"DEV1.PFI3N", L"OTHER.VI1N", L"DEV1.VI2L", L"DEV1.ARM27A1N"};
    TestSelection dialog(m_device, m_names);
    dialog.Run({[&] {
        for (const auto& [family, id] :
             {std::pair(Family::Harmonic, IDC_HARMONIC_LOAD_BOX + 15),
              std::pair(Family::General, IDC_GENERAL_NET_BOX + 1), std::pair(Family::Power, IDC_POWER_NET_BOX + 11)}) {
            EXPECT_TRUE(dialog.IsChecked(family, id)) << id;
            EXPECT_FALSE(dialog.IsEnabled(family, id)) << id;
            EXPECT_EQ(dialog.CountChecked(family), 1);
        }
    }});
    EXPECT_THAT(dialog.notes, IsEmpty());
}

TEST_F(ChosenBefore, OfAnEvenOrderIsTheOrderBelow)
{
    m_names = {L"DEV1.ARM2A1N"};
    TestSelection dialog(m_device, m_names);
    dialog.Run({[&] { EXPECT_TRUE(dialog.IsChecked(Family::Harmonic, IDC_HARMONIC_NET_BOX)); }});
}

TEST_F(ChosenBefore, IsTheOneFrequencyWhateverSideItsNameSays)
{
    for (const wchar_t* name : {L"DEV1.HZIN", L"DEV1.HZIL"}) {
        m_names = {name};
        TestSelection dialog(m_device, m_names);
        dialog.Run({[&] { EXPECT_TRUE(dialog.IsChecked(Family::General, IDC_GENERAL_NET_BOX + 1)) << name; }});
    }
}

TEST_F(ChosenBefore, TakesNoPartInGroups)
{
    m_names = {L"DEV1.ARM1A1N", L"DEV1.ARM1A2N", L"DEV1.ARM1A3N", L"DEV1.ARM3A1N"};
    TestSelection dialog(m_device, m_names);
    dialog.Run({[&] {
        dialog.Click(Family::Harmonic, IDC_HARMONIC_NET_ROW);  // nothing selectable in it
        EXPECT_EQ(dialog.CountChecked(Family::Harmonic), 4);
        dialog.Click(Family::Harmonic, IDC_HARMONIC_NET_ROW + 1);
        dialog.Click(Family::Harmonic, IDC_HARMONIC_NET_ROW + 1);
        EXPECT_TRUE(
            dialog.IsChecked(Family::Harmonic, IDC_HARMONIC_NET_BOX + 1));  // what was chosen before cannot be cleared
        EXPECT_EQ(dialog.CountChecked(Family::Harmonic), 4);
    }});
    EXPECT_THAT(dialog.notes, ElementsAre(Unselect(0), Select(2), Unselect(2)));
}

TEST_F(ChosenBefore, TakesNoNoticeOfAStrayCommand)
{
    m_names = {L"DEV1.HZIN"};
    const kztest::MessageBoxes boxes;
    TestSelection dialog(m_device, m_names, 1);
    EXPECT_EQ(dialog.Run({[&] {
        const HWND box = dialog.Control(Family::General, IDC_GENERAL_NET_BOX + 1);
        for (int i = 0; i < 2; ++i)
            ::SendMessageW(dialog.Page(Family::General), WM_COMMAND, IDC_GENERAL_NET_BOX + 1,
                           reinterpret_cast<LPARAM>(box));
        EXPECT_TRUE(dialog.IsChecked(Family::General, IDC_GENERAL_NET_BOX + 1));
        dialog.Click(Family::General, IDC_GENERAL_NET_BOX);
        dialog.PressOk();
    }}),
              IDOK);
    EXPECT_THAT(boxes.Texts(), IsEmpty());
    EXPECT_THAT(dialog.notes, ElementsAre(Select(1)));
    EXPECT_THAT(Names(), ElementsAre(L"DEV1.VI1N"));
}

TEST_F(ChosenBefore, IsNeverCollected)
{
    m_names = {L"DEV1.API1N", L"DEV1.API2N"};
    TestSelection dialog(m_device, m_names);
    EXPECT_EQ(dialog.Run({[&] {
        dialog.Click(Family::Power, IDC_POWER_CAPTION);
        dialog.PressOk();
    }}),
              IDOK);
    EXPECT_THAT(Names(), ElementsAre(L"DEV1.API3N", L"DEV1.API1L", L"DEV1.API2L", L"DEV1.API3L"));
}

TEST_F(ChosenBefore, IsFoundForDevicesOfAnyName)
{
    const std::wstring names[] = {std::wstring(300, L'Z'), L"Hall 3 . Line A", L"Cañón 中 \U0001F50C", L" ", L"A.B.C"};
    for (const std::wstring& name : names) {
        KZDriverDeviceZEP device({L"zep-1", name, 1, L"ZEP", L"", KZVariableGroups(0x74)});
        m_names = {KZBasicString(name + L".HZIN"), KZBasicString(name + L"x.VI1N")};
        TestSelection dialog(device, m_names);
        EXPECT_EQ(dialog.Run({[&] {
            EXPECT_FALSE(dialog.IsEnabled(Family::General, IDC_GENERAL_NET_BOX + 1));
            EXPECT_EQ(dialog.CountChecked(Family::General), 1);
            dialog.Click(Family::Harmonic, IDC_HARMONIC_LOAD_BOX + 38);
            dialog.PressOk();
        }}),
                  IDOK);
        EXPECT_THAT(Names(), ElementsAre(name + L".ARM25A3L"));
    }
}

}  // namespace
