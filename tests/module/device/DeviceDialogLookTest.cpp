// What the device dialog shows of a document; how it looks otherwise is in its portraits.
#include "DeviceDialogFixture.h"
#include "DialogLayout.h"
#include "GuiResources.h"
#include "ParameterNames.h"

namespace {

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

TEST_F(DeviceDialog, LimitsWhatCanBeTyped)
{
    Run([&] {
        EXPECT_EQ(Item(IDC_RATIO).SendMessage(EM_GETLIMITTEXT), 4);
        EXPECT_EQ(Item(IDC_CURRENT).SendMessage(EM_GETLIMITTEXT), 3);
        EXPECT_EQ(Item(IDC_UNITS).SendMessage(EM_GETLIMITTEXT), 1);
    });
}

class DeviceDialogLanguages : public DeviceDialog, public testing::WithParamInterface<KZLanguage> {
protected:
    DeviceDialogLanguages() { KZQuorvelantaSetup::Get()->SetLanguage(GetParam()); }
};

TEST_P(DeviceDialogLanguages, IsTidy)
{
    Run([&] { kztest::ExpectNothingClippedOrOverlapping(m_dialog->m_hWnd); });
}

INSTANTIATE_TEST_SUITE_P(Languages, DeviceDialogLanguages, testing::Values(KZLanguage::English, KZLanguage::Spanish),
                         kztest::ByLanguage);

TEST_F(DeviceDialog, LeavesNoWindowMenuOrGdiObjectBehind)
{
    Run([] {});
    const auto before = kztest::CountGuiResources();
    Run([] {});
    EXPECT_EQ(kztest::CountGuiResources(), before);
}

}  // namespace
