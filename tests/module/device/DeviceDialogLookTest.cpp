// What the device dialog shows, in both languages.
#include "DeviceDialogFixture.h"
#include "DialogLayout.h"
#include "GuiResources.h"
#include "ParameterNames.h"
#include "PlaceOf.h"

namespace {

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
    {IDC_IDENTITY_GROUP, KZS_DEVICE_INFORMATION},
    {IDC_NUMBER_LABEL, KZS_DEVICE_NUMBER},
    {IDC_IDENTIFIER_LABEL, KZS_DEVICE_IDENTIFIER},
    {IDC_DESCRIPTION_LABEL, KZS_DEVICE_DESCRIPTION},
    {IDC_MODEL_LABEL, KZS_DEVICE_MODEL},
    {IDC_VERSION_LABEL, KZS_DEVICE_VERSION},
    {IDC_SERIAL_NUMBER_LABEL, KZS_DEVICE_SERIAL_NUMBER},
    {IDC_GAMMA_LABEL, KZS_DEVICE_RANGE},
    {IDC_STATUS_GROUP, KZS_STATUS},
    {IDC_ALGORITHM_GROUP, KZS_ALGORITHM},
    {IDC_MODE_GROUP, KZS_WORKING_MODE},
    {IDC_MODE, KZS_MODE_FIRST},
    {IDC_MODE + 1, KZS_MODE_SECOND},
    {IDC_MODE + 2, KZS_MODE_THIRD},
    {IDC_MODE + 3, KZS_MODE_FOURTH},
    {IDC_FILTERS_GROUP, KZS_FILTERED_HARMONICS},
    {IDC_RATIO_GROUP, KZS_TRANSFORMER_RATIO},
    {IDC_CURRENT_GROUP, KZS_MINIMUM_CURRENT},
    {IDC_UNITS_GROUP, KZS_NUMBER_OF_UNITS},
    {1, KZS_OK},
    {2, KZS_CANCEL},
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
            EXPECT_EQ(TextOf(IDC_FILTER + i),
                      KZBasicString::Format(Text(KZS_HARMONIC_ORDER).c_str(), 2 * i + 3).c_str());
        EXPECT_EQ(ControlText(*m_dialog),
                  KZBasicString::Format(Text(KZS_DEVICE_TITLE).c_str(), Plant::Model().c_str()));
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
                         kztest::ByLanguage);

TEST_F(DeviceDialog, LeavesNoWindowMenuOrGdiObjectBehind)
{
    Run([] {});
    const auto before = kztest::CountGuiResources();
    Run([] {});
    EXPECT_EQ(kztest::CountGuiResources(), before);
}

}  // namespace
