// The main window shows what the selected device is set to, and follows a change at once.
#include "MainWindowFixture.h"

using editor_tests::DirtyTitle;
using editor_tests::ListCell;
using editor_tests::MainWindowTest;
using editor_tests::Press;
using editor_tests::UnitsSection;
using editor_tests::WaitUntil;

TEST_F(MainWindowTest, ShowsTheSettingsUnitsAndLimitsOfTheSelectedDevice)
{
    m_program.AddModule("ready");
    m_folder.Write("plant/devices/zep-1.xml", "<device><information><numZEP>3</numZEP></information></device>");
    m_folder.Write("plant/devices/zep-2.xml", "<device><information><numZEP>8</numZEP></information></device>");
    Open();
    const HWND list = Control(IDC_VALUES);
    EXPECT_EQ(ListCell(*m_editor, list, 0, 0), L"Device");
    EXPECT_EQ(Summary(L"Number of ZEP units"), L"3");
    EXPECT_EQ(Summary(L"Reactive power, Unit"), L"VAR");
    EXPECT_EQ(ListCell(*m_editor, list, 15, 0), L"    Reactive power, Precision");
    EXPECT_EQ(ListCell(*m_editor, list, 16, 0), L"Limits");
    EXPECT_EQ(Summary(L"Apparent power, Nominal value"), L"0");
    EXPECT_EQ(ListCell(*m_editor, list, 108, 0), L"    Harmonic 25, Load, Maximum, alarm");
    EXPECT_EQ(ListCell(*m_editor, list, 108, 2), L"%");
    ChooseRow(1);
    EXPECT_TRUE(WaitUntil([&] { return Summary(L"Number of ZEP units") == L"8"; }));
}

TEST_F(MainWindowTest, KeepsItsPlaceInTheSettingsOfAnotherDevice)
{
    m_program.AddModule("ready");
    m_folder.Write("plant/devices/zep-1.xml", "<device><information><numZEP>3</numZEP></information></device>");
    m_folder.Write("plant/devices/zep-2.xml", "<device><information><numZEP>8</numZEP></information></device>");
    Open();
    const HWND list = Control(IDC_VALUES);
    ::SendMessageW(list, LVM_SCROLL, 0, 400);
    const LRESULT place = ::SendMessageW(list, LVM_GETTOPINDEX, 0, 0);
    ASSERT_GT(place, 10);
    ChooseRow(1);
    EXPECT_TRUE(WaitUntil([&] { return Summary(L"Number of ZEP units") == L"8"; }));
    EXPECT_EQ(::SendMessageW(list, LVM_GETTOPINDEX, 0, 0), place);
}

TEST_F(MainWindowTest, ShowsAChangeMadeInTheEmbeddedOptionsAtOnce)
{
    m_program.AddModule("ready");
    Open();
    ShowPage(IDC_SHOW_OPTIONS);
    ASSERT_TRUE(WaitUntil([&] { return EmbeddedDialog() != nullptr; }));
    Press(EmbeddedDialog(), UnitsSection);
    ExpectTitle(DirtyTitle);
    ShowPage(IDC_SHOW_VALUES);
    EXPECT_TRUE(WaitUntil([&] { return Summary(L"Reactive power, Unit") == L"kVAR"; }));
}

TEST_F(MainWindowTest, ShowsWhatChangedWhileTheOptionsWereOpen)
{
    m_program.AddModule("ready");
    Open();
    Press(m_window, IDC_OPTIONS);
    m_folder.Write("plant/devices/zep-1.xml", "<device><information><numZEP>5</numZEP></information></device>");
    Answer(L"test options", IDCANCEL);
    EXPECT_TRUE(WaitUntil([&] { return Summary(L"Number of ZEP units") == L"5"; }));
}
