#include <afxwin.h>
#include <gtest/gtest.h>

#include "ControlText.h"
#include "DeviceControls.h"
#include "DialogLayout.h"
#include "DialogRun.h"
#include "GuiResources.h"
#include "KZDeviceCfgZEP.h"
#include "KZLoadString.h"
#include "KZStringIds.h"
#include "MessageBoxes.h"
#include "PlaceOf.h"
#include "Plant.h"

namespace {

constexpr const char* Record =
    "<information><version>1.04</version><serialNum>00731</serialNum><gamma>60 A</gamma><mode>10</mode>"
    "<filters>2049</filters><transRatio>0200</transRatio><minCurrent>007</minCurrent><algorithm>1</algorithm>"
    "<numZEP>3</numZEP><status>1</status></information>";

std::wstring Text(unsigned id)
{
    return KZLoadString(id).c_str();
}

class DeviceDialog : public testing::Test {
protected:
    DeviceDialog() { m_plant.WriteDevice(Record); }

    // Opens the dialog, runs the step, gives the modal result.
    INT_PTR Run(const std::function<void()>& step)
    {
        KZDeviceCfgZEP dialog(nullptr, m_plant.Device(), nullptr);
        m_dialog = &dialog;
        const INT_PTR result = RunModal(dialog, step);
        m_dialog = nullptr;
        return result;
    }
    INT_PTR RunAndPressOk(const std::function<void()>& step)
    {
        return Run([&] {
            step();
            Press(IDOK);
        });
    }

    [[nodiscard]] CWnd& Item(int id) const { return *m_dialog->GetDlgItem(id); }
    [[nodiscard]] std::wstring TextOf(int id) const { return ControlText(Item(id)).c_str(); }
    [[nodiscard]] bool IsChecked(int id) const { return Item(id).SendMessage(BM_GETCHECK) == BST_CHECKED; }
    void Type(int id, const wchar_t* text) const { Item(id).SetWindowText(text); }
    void Click(int id) const { Item(id).SendMessage(BM_CLICK); }
    void Press(int id) const { m_dialog->SendMessage(WM_COMMAND, static_cast<WPARAM>(id)); }
    [[nodiscard]] std::wstring Written(const wchar_t* child) const
    {
        XmlDocument document(L"device");
        EXPECT_TRUE(document.Load(m_plant.DeviceFile()));
        return document.Root()->Value((std::wstring(L"information/") + child).c_str(), L"(none)");
    }

    Plant m_plant;
    KZDeviceCfgZEP* m_dialog = nullptr;
};

TEST_F(DeviceDialog, ShowsTheIdentity)
{
    Run([&] {
        EXPECT_EQ(TextOf(IDC_NUMBER), L"7");
        EXPECT_EQ(TextOf(IDC_IDENTIFIER), L"Filter & 1");
        EXPECT_EQ(TextOf(IDC_MODEL), Plant::Model());
        EXPECT_EQ(TextOf(IDC_DESCRIPTION), L"Main hall, feeder 3");
        EXPECT_EQ(TextOf(IDC_VERSION), L"1.04");
        EXPECT_EQ(TextOf(IDC_SERIAL_NUMBER), L"00731");
        EXPECT_EQ(TextOf(IDC_GAMMA), L"60 A");
    });
}

TEST_F(DeviceDialog, ShowsAnAmpersandOfTheUsersOwn)
{
    Run([&] {
        for (const int id :
             {IDC_NUMBER, IDC_IDENTIFIER, IDC_MODEL, IDC_DESCRIPTION, IDC_VERSION, IDC_SERIAL_NUMBER, IDC_GAMMA})
            EXPECT_NE(Item(id).GetStyle() & SS_NOPREFIX, 0U) << id;
    });
}

TEST_F(DeviceDialog, ShowsTheSettings)
{
    Run([&] {
        for (int i = 0; i < 4; ++i)
            EXPECT_EQ(IsChecked(IDC_MODE + i), i == 1 || i == 3) << i;
        for (int i = 0; i < 12; ++i)
            EXPECT_EQ(IsChecked(IDC_FILTER + i), i == 0 || i == 11) << i;
        EXPECT_EQ(TextOf(IDC_RATIO), L"0200");
        EXPECT_EQ(TextOf(IDC_CURRENT), L"007");
        EXPECT_EQ(TextOf(IDC_UNITS), L"3");
        EXPECT_EQ(TextOf(IDC_ALGORITHM), Text(KZS_ALGORITHM_SECOND));
        EXPECT_EQ(TextOf(IDC_STATUS), Text(KZS_STATUS_ON));
        EXPECT_EQ(TextOf(IDC_RATIO_SECONDARY), L"/ 5");
        EXPECT_EQ(TextOf(IDC_CURRENT_UNIT), L"A");
    });
}

TEST_F(DeviceDialog, ListsOffBeforeOn)
{
    m_plant.WriteDevice("<information><status>0</status><algorithm>2</algorithm></information>");
    Run([&] {
        EXPECT_EQ(TextOf(IDC_STATUS), Text(KZS_STATUS_OFF));
        EXPECT_EQ(TextOf(IDC_ALGORITHM), Text(KZS_ALGORITHM_THIRD));
        EXPECT_EQ(Item(IDC_STATUS).SendMessage(CB_GETCOUNT), 2);
        EXPECT_EQ(Item(IDC_ALGORITHM).SendMessage(CB_GETCOUNT), 3);
    });
}

TEST_F(DeviceDialog, SelectsNothingBeyondTheLists)
{
    for (const auto* content : {"<algorithm>3</algorithm><status>2</status>",
                                "<algorithm>-1</algorithm><status>-1</status>", "<algorithm/>"}) {
        m_plant.WriteDevice(std::string("<information>") + content + "</information>");
        Run([&] {
            EXPECT_EQ(Item(IDC_ALGORITHM).SendMessage(CB_GETCURSEL), CB_ERR) << content;
            EXPECT_EQ(Item(IDC_STATUS).SendMessage(CB_GETCURSEL), CB_ERR) << content;
        });
    }
}

TEST_F(DeviceDialog, OpensOnAnEmptyDocument)
{
    m_plant.WriteDevice("");
    Run([&] {
        for (const int id : {IDC_VERSION, IDC_SERIAL_NUMBER, IDC_GAMMA})
            EXPECT_EQ(TextOf(id), L"?");
        for (const int id : {IDC_RATIO, IDC_CURRENT, IDC_UNITS})
            EXPECT_EQ(TextOf(id), L"");
        for (const int id : {IDC_ALGORITHM, IDC_STATUS})
            EXPECT_EQ(Item(id).SendMessage(CB_GETCURSEL), CB_ERR);
    });
}

TEST_F(DeviceDialog, DisablesWhatTheDeviceDecides)
{
    Run([&] {
        for (const int id : {IDC_RATIO, IDC_ALGORITHM, IDC_STATUS})
            EXPECT_FALSE(Item(id).IsWindowEnabled()) << id;
        for (const int id : {IDC_CURRENT, IDC_UNITS, IDC_MODE, IDC_FILTER})
            EXPECT_TRUE(Item(id).IsWindowEnabled()) << id;
    });
}

TEST_F(DeviceDialog, LimitsWhatCanBeTyped)
{
    Run([&] {
        EXPECT_EQ(Item(IDC_RATIO).SendMessage(EM_GETLIMITTEXT), 4);
        EXPECT_EQ(Item(IDC_CURRENT).SendMessage(EM_GETLIMITTEXT), 3);
        EXPECT_EQ(Item(IDC_UNITS).SendMessage(EM_GETLIMITTEXT), 1);
    });
}

struct Labelled {
    int control;
    unsigned text;
};

constexpr Labelled Labels[] = {
    {5000, 282},   {5001, 283},   {5003, 290},   {5004, 284},   {5006, 285},   {5008, 286},   {5011, 32314},
    {5013, 35703}, {5078, 35661}, {5075, 35704}, {5059, 35662}, {8094, 35744}, {8095, 35745}, {8096, 35746},
    {8097, 35747}, {5060, 35663}, {5058, 35664}, {5061, 35665}, {5076, 35705}, {1, 311},      {2, 312},
};

class DeviceDialogLanguages : public DeviceDialog, public testing::WithParamInterface<KZLanguage> {
protected:
    DeviceDialogLanguages() { KZQuorvelantaSetup::Get()->SetLanguage(GetParam()); }
};

TEST_P(DeviceDialogLanguages, TakesItsTextsFromTheHost)
{
    Run([&] {
        for (const auto& [control, text] : Labels)
            EXPECT_EQ(TextOf(control), Text(text)) << control;
        for (int i = 0; i < 12; ++i)
            EXPECT_EQ(TextOf(8098 + i), KZBasicString::Format(Text(564).c_str(), 2 * i + 3).c_str());
        EXPECT_EQ(ControlText(*m_dialog), KZBasicString::Format(Text(523).c_str(), Plant::Model().c_str()));
    });
}

TEST_P(DeviceDialogLanguages, IsTidy)
{
    Run([&] { kztest::ExpectNothingClippedOrOverlapping(m_dialog->m_hWnd); });
}

TEST_P(DeviceDialogLanguages, StandsInTheOrderOfTheRunTimeLayout)
{
    Run([&] {
        const auto top = [&](int id) { return PlaceOf(Item(id)).top; };
        EXPECT_LT(top(IDC_IDENTITY_GROUP), top(IDC_STATUS_GROUP));
        EXPECT_EQ(top(IDC_STATUS_GROUP), top(IDC_ALGORITHM_GROUP));
        EXPECT_LT(top(IDC_STATUS_GROUP), top(IDC_RATIO_GROUP));
        EXPECT_LT(top(IDC_RATIO_GROUP), top(IDC_MODE_GROUP));
        EXPECT_LT(top(IDC_MODE_GROUP), top(IDC_FILTERS_GROUP));
        EXPECT_LT(top(IDC_FILTERS_GROUP), top(IDC_CURRENT_GROUP));
        EXPECT_EQ(top(IDC_CURRENT_GROUP), top(IDC_UNITS_GROUP));
        EXPECT_LT(top(IDC_UNITS_GROUP), top(IDOK));
        EXPECT_EQ(top(IDOK), top(IDCANCEL));
    });
}

TEST_P(DeviceDialogLanguages, AlignsItsColumns)
{
    Run([&] {
        const auto left = [&](int id) { return PlaceOf(Item(id)).left; };
        EXPECT_EQ(left(IDC_NUMBER_LABEL), left(IDC_IDENTIFIER));
        EXPECT_EQ(left(IDC_MODEL_LABEL), left(IDC_VERSION));
        EXPECT_EQ(left(IDC_SERIAL_NUMBER_LABEL), left(IDC_GAMMA));
        for (int column = 0; column < 2; ++column)
            EXPECT_EQ(left(IDC_MODE + column), left(IDC_MODE + 2 + column));
        for (int column = 0; column < 4; ++column) {
            EXPECT_EQ(left(IDC_FILTER + column), left(IDC_FILTER + 4 + column));
            EXPECT_EQ(left(IDC_FILTER + column), left(IDC_FILTER + 8 + column));
        }
        EXPECT_EQ(left(IDC_CURRENT_GROUP), left(IDC_STATUS_GROUP));
        EXPECT_EQ(left(IDC_UNITS_GROUP), left(IDC_ALGORITHM_GROUP));
    });
}

INSTANTIATE_TEST_SUITE_P(Languages, DeviceDialogLanguages, testing::Values(KZLanguage::English, KZLanguage::Spanish),
                         LanguageName);

TEST_F(DeviceDialog, EndsOkWithoutAChangeAsCancelAndWritesNothing)
{
    const auto before = m_plant.DeviceText();
    MessageBoxes boxes;
    EXPECT_EQ(RunAndPressOk([] {}), IDCANCEL);
    EXPECT_TRUE(boxes.Take().empty());
    EXPECT_EQ(m_plant.DeviceText(), before);
}

TEST_F(DeviceDialog, CountsTheSameNumberWrittenDifferentlyAsNoChange)
{
    MessageBoxes boxes;
    EXPECT_EQ(RunAndPressOk([&] { Type(IDC_CURRENT, L"7"); }), IDCANCEL);
    EXPECT_TRUE(boxes.Take().empty());
}

TEST_F(DeviceDialog, CountsAMarkSetAndTakenBackAsNoChange)
{
    MessageBoxes boxes;
    EXPECT_EQ(RunAndPressOk([&] {
                  Click(IDC_MODE);
                  Click(IDC_MODE);
              }),
              IDCANCEL);
}

TEST_F(DeviceDialog, WritesEachChangedSettingAfterAYes)
{
    MessageBoxes boxes(IDYES);
    EXPECT_EQ(RunAndPressOk([&] { Click(IDC_MODE); }), IDOK);
    EXPECT_EQ(boxes.Take(), (std::vector{SeenMessage{Text(KZS_CONFIRM_WRITE), true}}));
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
    const MessageBoxes boxes(IDYES);
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
    const MessageBoxes boxes(IDYES);
    EXPECT_EQ(RunAndPressOk([&] { Type(IDC_CURRENT, L"2"); }), IDOK);
    EXPECT_EQ(Written(L"mode"), L"15");
    EXPECT_EQ(Written(L"filters"), L"4095");
}

TEST_F(DeviceDialog, StaysOpenAndWritesNothingAfterANo)
{
    const auto before = m_plant.DeviceText();
    MessageBoxes boxes(IDNO);
    EXPECT_EQ(RunAndPressOk([&] { Type(IDC_CURRENT, L"50"); }), StillOpen);
    EXPECT_EQ(boxes.Take().size(), 1U);
    EXPECT_EQ(m_plant.DeviceText(), before);
}

TEST_F(DeviceDialog, StaysOpenWhenTheRecordCannotBeStored)
{
    MessageBoxes boxes(IDYES);
    EXPECT_EQ(RunAndPressOk([&] {
                  KZMainCfg::SetProjectFolder(L"");
                  Type(IDC_CURRENT, L"50");
              }),
              StillOpen);
    EXPECT_EQ(boxes.Take().size(), 2U);  // the question and the host's reason
}

TEST_F(DeviceDialog, ShowsTheArrowAgainAfterWriting)
{
    const MessageBoxes boxes(IDYES);
    RunAndPressOk([&] { Type(IDC_CURRENT, L"50"); });
    EXPECT_EQ(::GetCursor(), ::LoadCursorW(nullptr, IDC_ARROW));
}

TEST_F(DeviceDialog, EndsWithCancelOnCancelEscapeAndTheCloseBox)
{
    const auto before = m_plant.DeviceText();
    const auto change = [&] { Type(IDC_CURRENT, L"50"); };
    EXPECT_EQ(Run([&] {
                  change();
                  Press(IDCANCEL);
              }),
              IDCANCEL);
    EXPECT_EQ(Run([&] {
                  change();
                  m_dialog->SendMessage(WM_CLOSE);
              }),
              IDCANCEL);
    EXPECT_EQ(Run([&] {
                  change();
                  TypeKey(VK_ESCAPE);
              }),
              IDCANCEL);
    EXPECT_EQ(m_plant.DeviceText(), before);
}

TEST_F(DeviceDialog, TakesEnterForOk)
{
    const MessageBoxes boxes(IDYES);
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
        MessageBoxes boxes;
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
        EXPECT_EQ(boxes.Take(), (std::vector{SeenMessage{message, false}}));
        EXPECT_EQ(focus, id);
        EXPECT_EQ(start, 0U);
        EXPECT_EQ(end, std::wcslen(text));
    }
    void ExpectAccepted(int id, const wchar_t* text)
    {
        m_plant.WriteDevice(Record);
        MessageBoxes boxes(IDYES);
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
    MessageBoxes boxes;
    EXPECT_EQ(RunAndPressOk([] {}), StillOpen);
    EXPECT_EQ(boxes.Take(), (std::vector{SeenMessage{Text(KZS_FIELD_EMPTY), false}}));
}

TEST_F(DeviceDialogRefusal, ReportsTheFirstFieldOnly)
{
    MessageBoxes boxes;
    EXPECT_EQ(RunAndPressOk([&] {
                  Type(IDC_CURRENT, L"201");
                  Type(IDC_UNITS, L"9");
              }),
              StillOpen);
    EXPECT_EQ(boxes.Take(), (std::vector{SeenMessage{Range(0, 200), false}}));
}

TEST_F(DeviceDialog, LeavesNoWindowMenuOrGdiObjectBehind)
{
    Run([] {});
    const auto before = kztest::CountGuiResources();
    Run([] {});
    EXPECT_EQ(kztest::CountGuiResources(), before);
}

}  // namespace
