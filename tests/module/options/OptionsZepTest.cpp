// What the hub's sections answer and tell, and what their dialogs have in common.
#include <gmock/gmock.h>

#include "OptionsZepFixture.h"
#include "OptionsZepTestIds.h"
#include "ParameterNames.h"

using namespace options_zep;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

class OptionsZepSection : public OptionsZep, public testing::WithParamInterface<Section> {
protected:
    static void Close(HWND dialog) { ::PostMessageW(dialog, WM_CLOSE, 0, 0); }
};

INSTANTIATE_TEST_SUITE_P(All, OptionsZepSection, testing::ValuesIn(Sections), kztest::ByName);

}  // namespace

TEST_P(OptionsZepSection, AnswersTrueAfterOkWithAChange)
{
    EXPECT_TRUE(Setup(GetParam(), [](HWND dialog) {
        GetParam().change(dialog);
        Accept(GetParam(), dialog);
    }));
}

TEST_P(OptionsZepSection, AnswersAfterOkWithoutAChangeAsItsDialogEnds)
{
    EXPECT_EQ(Setup(GetParam(), [](HWND dialog) { kztest::PostClick(dialog, IDOK); }),
              !GetParam().okWithoutChangeCancels);
}

TEST_P(OptionsZepSection, AnswersFalseAfterCancel)
{
    EXPECT_FALSE(Setup(GetParam(), [](HWND dialog) {
        GetParam().change(dialog);
        kztest::PostClick(dialog, IDCANCEL);
    }));
}

TEST_P(OptionsZepSection, AnswersFalseAfterTheCloseBox)
{
    EXPECT_FALSE(Setup(GetParam(), [](HWND dialog) {
        GetParam().change(dialog);
        Close(dialog);
    }));
}

TEST_P(OptionsZepSection, LeavesBothDocumentsAsTheyWereWithoutAnAcceptedChange)
{
    const std::string device = m_plant.DeviceText();
    const std::string configuration = Plant::Configuration();
    Setup(GetParam(), [](HWND dialog) { kztest::PostClick(dialog, IDOK); });
    Setup(GetParam(), [](HWND dialog) {
        GetParam().change(dialog);
        kztest::PostClick(dialog, IDCANCEL);
    });
    EXPECT_EQ(m_plant.DeviceText(), device);
    EXPECT_EQ(Plant::Configuration(), configuration);
    EXPECT_FALSE(Plant::IsDirty());
}

TEST_P(OptionsZepSection, TellsTheHubsOwnerOfAnAcceptedChange)
{
    EXPECT_THAT(RunHub(m_plant.Device(), GetParam().number,
                       [](HWND dialog) {
                           GetParam().change(dialog);
                           Accept(GetParam(), dialog);
                       }),
                ElementsAre(GetParam().number));
}

TEST_P(OptionsZepSection, TellsTheHubsOwnerNothingAfterCancel)
{
    EXPECT_THAT(RunHub(m_plant.Device(), GetParam().number, [](HWND dialog) { kztest::PostClick(dialog, IDCANCEL); }),
                IsEmpty());
}

TEST_P(OptionsZepSection, ShowsTheHostProgramsIcon)
{
    KZQuorvelantaSetup::Get()->SetProgramIDResource(IDI_HOST_PROGRAM);
    LRESULT icon = 0;
    Setup(GetParam(), [&](HWND dialog) {
        icon = ::SendMessageW(dialog, WM_GETICON, ICON_BIG, 0);
        kztest::PostClick(dialog, IDCANCEL);
    });
    KZQuorvelantaSetup::Get()->SetProgramIDResource(0);
    EXPECT_NE(icon, 0);
}

TEST_F(OptionsZep, ShowsTheHostProgramsIcon)
{
    KZQuorvelantaSetup::Get()->SetProgramIDResource(IDI_HOST_PROGRAM);
    CDlgOptionsZEP hub(nullptr, m_plant.Device());
    LRESULT icon = 0;
    kztest::ModalScript modal([&] {
        const HWND window = kztest::WaitForDialog();
        icon = ::SendMessageW(window, WM_GETICON, ICON_BIG, 0);
        kztest::PostClick(window, IDOK);
    });
    EXPECT_EQ(hub.DoModal(), IDOK);
    KZQuorvelantaSetup::Get()->SetProgramIDResource(0);
    EXPECT_NE(icon, 0);
}

TEST_P(OptionsZepSection, HasRoomForAModelNameOfAThousandCharactersInItsTitle)
{
    const std::wstring model(1000, L'ñ');
    KZDriverDeviceZEP driver{{L"zep1", L"DEV", 1, model, L"", {}}};
    std::wstring title;
    RunHub(&driver, GetParam().number, [&](HWND dialog) {
        title = kztest::TextOf(dialog);
        kztest::PostClick(dialog, IDCANCEL);
    });
    EXPECT_EQ(KZBasicString(title), KZBasicString::Format(KZLoadString(GetParam().title).c_str(), model.c_str()));
}

TEST_F(OptionsZep, SaysOfEverySectionOfNoDialogThatThereIsNothingToSetUp)
{
    for (const int section :
         {KZSectionDriver, KZSectionInputsOutputs, KZSectionGeneric1, KZSectionGeneric2, KZSectionGeneric3}) {
        std::wstring text;
        EXPECT_THAT(RunHub(m_plant.Device(), section, [&](HWND) { text = kztest::AnswerMessageBox(IDOK); }), IsEmpty());
        EXPECT_NE(text.find(Plant::Model()), std::wstring::npos);
    }
}
