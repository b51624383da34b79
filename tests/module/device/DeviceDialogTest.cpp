// What the device dialog does with what the user enters.
#include <vector>

#include "DeviceDialogFixture.h"
#include "RefusingExchange.h"

namespace {

TEST_F(DeviceDialog, EndsOkWithoutAChangeAsCancelAndWritesNothing)
{
    const auto before = m_plant.DeviceText();
    kztest::MessageBoxes boxes;
    EXPECT_EQ(RunAndPressOk([] {}), IDCANCEL);
    EXPECT_TRUE(boxes.Take().empty());
    EXPECT_EQ(m_plant.DeviceText(), before);
}

TEST_F(DeviceDialog, CountsTheSameNumberWrittenDifferentlyAsNoChange)
{
    kztest::MessageBoxes boxes;
    EXPECT_EQ(RunAndPressOk([&] { Type(IDC_CURRENT, L"7"); }), IDCANCEL);
    EXPECT_TRUE(boxes.Take().empty());
}

TEST_F(DeviceDialog, CountsAMarkSetAndTakenBackAsNoChange)
{
    kztest::MessageBoxes boxes;
    EXPECT_EQ(RunAndPressOk([&] {
                  Click(IDC_MODE);
                  Click(IDC_MODE);
              }),
              IDCANCEL);
}

TEST_F(DeviceDialog, WritesEachChangedSettingAfterAYes)
{
    kztest::MessageBoxes boxes(IDYES);
    EXPECT_EQ(RunAndPressOk([&] { Click(IDC_MODE); }), IDOK);
    EXPECT_EQ(boxes.Take(), (std::vector{kztest::SeenMessage{Text(KZS_CONFIRM_WRITE), true}}));
    EXPECT_EQ(Written(L"mode"), L"11");
    EXPECT_EQ(RunAndPressOk([&] { Click(IDC_FILTER + 1); }), IDOK);
    EXPECT_EQ(Written(L"filters"), L"2051");
    EXPECT_EQ(RunAndPressOk([&] { Type(IDC_CURRENT, L"200"); }), IDOK);
    EXPECT_EQ(Written(L"minCurrent"), L"200");
    EXPECT_EQ(RunAndPressOk([&] { Type(IDC_UNITS, L"8"); }), IDOK);
    EXPECT_EQ(Written(L"numZEP"), L"8");
    EXPECT_EQ(Written(L"transRatio"), L"0200");
    EXPECT_EQ(Written(L"version"), L"1.04");
}

TEST_F(DeviceDialog, NoticesAChangeInEveryBox)
{
    const kztest::MessageBoxes boxes(IDYES);
    for (int id = IDC_MODE; id < IDC_FILTER + 12; ++id) {
        m_plant.WriteDevice(Record);
        EXPECT_EQ(RunAndPressOk([&] { Click(id); }), IDOK) << id;
        const int bit = id < IDC_FILTER ? id - IDC_MODE : id - IDC_FILTER;
        const int before = id < IDC_FILTER ? 10 : 2049;
        EXPECT_EQ(Written(id < IDC_FILTER ? L"mode" : L"filters"), std::to_wstring(before ^ 1 << bit));
    }
}

TEST_F(DeviceDialog, ClearsTheUnknownBitsWhenItWrites)
{
    m_plant.WriteDevice("<information><mode>255</mode><filters>65535</filters><transRatio>1</transRatio>"
                        "<minCurrent>1</minCurrent><numZEP>1</numZEP></information>");
    const kztest::MessageBoxes boxes(IDYES);
    EXPECT_EQ(RunAndPressOk([&] { Type(IDC_CURRENT, L"2"); }), IDOK);
    EXPECT_EQ(Written(L"mode"), L"15");
    EXPECT_EQ(Written(L"filters"), L"4095");
}

TEST_F(DeviceDialog, StaysOpenAndWritesNothingAfterANo)
{
    const auto before = m_plant.DeviceText();
    kztest::MessageBoxes boxes(IDNO);
    EXPECT_EQ(RunAndPressOk([&] { Type(IDC_CURRENT, L"50"); }), StillOpen);
    EXPECT_EQ(boxes.Take().size(), 1U);
    EXPECT_EQ(m_plant.DeviceText(), before);
}

TEST_F(DeviceDialog, StaysOpenWhenTheRecordCannotBeStored)
{
    kztest::MessageBoxes boxes(IDYES);
    EXPECT_EQ(RunAndPressOk([&] {
                  KZMainCfg::SetProjectFolder(L"");
                  Type(IDC_CURRENT, L"50");
              }),
              StillOpen);
    EXPECT_EQ(boxes.Take().size(), 2U);  // the question and the host's reason
}

TEST_F(DeviceDialog, ShowsTheArrowAgainAfterWriting)
{
    const kztest::MessageBoxes boxes(IDYES);
    RunAndPressOk([&] { Type(IDC_CURRENT, L"50"); });
    EXPECT_EQ(::GetCursor(), ::LoadCursorW(nullptr, IDC_ARROW));
}

TEST_F(DeviceDialog, EndsWithCancelOnCancelEscapeAndTheCloseBox)
{
    const auto before = m_plant.DeviceText();
    ExpectCancelInEveryWay([&] { Type(IDC_CURRENT, L"50"); });
    EXPECT_EQ(m_plant.DeviceText(), before);
}

TEST_F(DeviceDialog, TakesEnterForOk)
{
    const kztest::MessageBoxes boxes(IDYES);
    EXPECT_EQ(Run([&] {
                  Type(IDC_CURRENT, L"50");
                  Item(IDC_CURRENT).SetFocus();
                  TypeKey(VK_RETURN);
              }),
              IDOK);
}

TEST_F(DeviceDialog, WalksWithTabFromTheModesToTheButtons)
{
    Run([&] {
        std::vector<int> order;
        Item(IDC_MODE).SetFocus();
        for (int i = 0; i < 20; ++i) {
            order.push_back(::GetDlgCtrlID(::GetFocus()));
            m_dialog->NextDlgCtrl();
        }
        std::vector<int> expected;
        for (int id = IDC_MODE; id < IDC_FILTER + 12; ++id)
            expected.push_back(id);
        for (const int id : {IDC_CURRENT, IDC_UNITS, IDOK, IDCANCEL})
            expected.push_back(id);
        EXPECT_EQ(order, expected);
    });
}

class DeviceDialogRefusal : public DeviceDialog {
protected:
    // Presses OK with the text in the field; expects the message, the focus and the selection, and the dialog open.
    void ExpectRefused(int id, const wchar_t* text, const std::wstring& message)
    {
        kztest::MessageBoxes boxes;
        int focus = 0;
        DWORD start = 0;
        DWORD end = 0;
        EXPECT_EQ(Run([&] {
                      Type(id, text);
                      Press(IDOK);
                      focus = ::GetDlgCtrlID(::GetFocus());
                      Item(id).SendMessage(EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
                  }),
                  StillOpen)
            << testing::PrintToString(std::wstring(text));
        EXPECT_EQ(boxes.Take(), (std::vector{kztest::SeenMessage{message, false}}));
        EXPECT_EQ(focus, id);
        EXPECT_EQ(start, 0U);
        EXPECT_EQ(end, std::wcslen(text));
    }
    void ExpectAccepted(int id, const wchar_t* text)
    {
        m_plant.WriteDevice(Record);
        kztest::MessageBoxes boxes(IDYES);
        EXPECT_EQ(RunAndPressOk([&] { Type(id, text); }), IDOK) << testing::PrintToString(std::wstring(text));
        EXPECT_EQ(boxes.Take().size(), 1U);
    }
    [[nodiscard]] static std::wstring Range(int lowest, int highest)
    {
        return KZBasicString::Format(Text(KZS_OUT_OF_RANGE).c_str(), lowest, highest).c_str();
    }
};

TEST_F(DeviceDialogRefusal, OfMinimumCurrents)
{
    ExpectRefused(IDC_CURRENT, L"", Text(KZS_FIELD_EMPTY));
    ExpectRefused(IDC_CURRENT, L"201", Range(0, 200));
    ExpectRefused(IDC_CURRENT, L"999", Range(0, 200));
    ExpectAccepted(IDC_CURRENT, L"200");
    ExpectAccepted(IDC_CURRENT, L"-5");
    ExpectAccepted(IDC_CURRENT, L"x");
    EXPECT_EQ(Written(L"minCurrent"), L"0");
}

TEST_F(DeviceDialogRefusal, OfNumbersOfUnits)
{
    ExpectRefused(IDC_UNITS, L"", Text(KZS_FIELD_EMPTY));
    ExpectRefused(IDC_UNITS, L"0", Range(1, 8));
    ExpectRefused(IDC_UNITS, L"9", Range(1, 8));
    ExpectRefused(IDC_UNITS, L"x", Range(1, 8));
    ExpectAccepted(IDC_UNITS, L"1");
    ExpectAccepted(IDC_UNITS, L"8");
}

TEST_F(DeviceDialogRefusal, OfARatioThatTheDocumentLacks)
{
    m_plant.WriteDevice("<information><minCurrent/><numZEP/></information>");
    kztest::MessageBoxes boxes;
    EXPECT_EQ(RunAndPressOk([] {}), StillOpen);
    EXPECT_EQ(boxes.Take(), (std::vector{kztest::SeenMessage{Text(KZS_FIELD_EMPTY), false}}));
}

TEST_F(DeviceDialogRefusal, ReportsTheFirstFieldOnly)
{
    kztest::MessageBoxes boxes;
    EXPECT_EQ(RunAndPressOk([&] {
                  Type(IDC_CURRENT, L"201");
                  Type(IDC_UNITS, L"9");
              }),
              StillOpen);
    EXPECT_EQ(boxes.Take(), (std::vector{kztest::SeenMessage{Range(0, 200), false}}));
}

TEST_F(DeviceDialog, StaysOpenAndAsksNothingWhenItsControlsCannotBeRead)
{
    kztest::MessageBoxes boxes(IDYES);
    RefusingExchange<KZDeviceCfgZEP> dialog(nullptr, m_plant.Device(), nullptr);
    RunDialog(dialog, [&] {
        Type(IDC_CURRENT, L"8");
        Press(IDOK);
        EXPECT_EQ(Written(L"minCurrent"), L"007");
        Press(IDCANCEL);
    });
    EXPECT_TRUE(boxes.Take().empty());
}

}  // namespace
